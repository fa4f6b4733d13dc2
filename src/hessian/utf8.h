// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>

#include "hessian/serialize_exception.h"

namespace hessianser {

/// Bytes in the UTF-8 sequence that begins with `first`; continuation bytes are never examined.
/// 0x80 counts as a sequence of its own. Throws `serialize_exception` on any other byte that can't
/// begin a sequence.
inline std::size_t utf8SequenceLength(unsigned char first) {
    // The peer counts a lone 0x80 as a character, so it must count here as well.
    if (first <= 0x80)
        return 1;
    if ((first & 0xC0) == 0x80)
        fail("Invalid UTF-8 character: continuation character at the beginning");
    if ((first & 0xE0) == 0xC0)
        return 2;
    if ((first & 0xF0) == 0xE0)
        return 3;
    if ((first & 0xF8) == 0xF0)
        return 4;
    fail("Invalid UTF-8 character: character byte count too large");
}

/// True if no byte of `text` is above 0x7F, so that it has as many characters as bytes.
bool isAscii(std::string_view text);

} // namespace hessianser
