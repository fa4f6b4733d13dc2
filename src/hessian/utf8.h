// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>

namespace hessianser {

/// Bytes in the UTF-8 sequence that begins with `first`; continuation bytes are never examined.
/// 0x80 counts as a sequence of its own. Raises `serialize_exception` on any other byte that
/// can't begin a sequence.
std::size_t utf8SequenceLength(unsigned char first);

/// True if no byte of `text` is above 0x7F, so that it has as many characters as bytes.
bool isAscii(std::string_view text);

} // namespace hessianser
