// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <QString>

/// The border between the text of the screen and the text of the wire. Nothing else converts.
namespace session {

/// UTF-8. Half a surrogate pair becomes a replacement character.
std::string toWire(const QString& text);

/// Bytes that aren't UTF-8 become replacement characters. Raises `std::length_error` on more bytes
/// than a QString can be made from.
QString fromWire(std::string_view text);

} // namespace session
