// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace support {

/// A message typed by hand. Pieces are separated by blanks: two hexadecimal digits are a byte, a
/// single character is itself, and text is in single quotes:
///
///     bytes("c 01 00 m 00 06 'logout' z")
///
/// Throws `std::invalid_argument` on anything else.
std::string bytes(std::string_view notation);

/// The bytes in human-readable form: printable characters as they are, the rest as \xNN.
std::string printable(std::string_view bytes);

} // namespace support
