// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace support {

/// Whether `text` contains any 12 consecutive bytes of `secret`, verbatim, in hexadecimal or in
/// Base64. The secret is at least 12 bytes long.
bool revealsPartOf(std::string_view secret, std::string_view text);

} // namespace support
