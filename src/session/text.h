// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <QString>

/// Conversion between text on the screen and text on the wire. All conversions happen here.
namespace session {

/// Converts to UTF-8. Unpaired surrogates become replacement characters.
std::string toWire(const QString& text);

/// Invalid UTF-8 becomes replacement characters. Throws `std::length_error` if the text doesn't fit
/// in a QString.
QString fromWire(std::string_view text);

} // namespace session
