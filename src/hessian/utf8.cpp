// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "hessian/utf8.h"

#include <cstdint>
#include <cstring>

#include "hessian/serialize_exception.h"

namespace hessianser {

void fail(const char* text) {
    throw serialize_exception(text);
}

std::size_t utf8SequenceLength(unsigned char first) {
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

bool isAscii(std::string_view text) {
    const char* at = text.data();
    std::size_t left = text.size();
    std::uint64_t seen = 0;
    for (; left >= sizeof seen; at += sizeof seen, left -= sizeof seen) {
        std::uint64_t word;
        std::memcpy(&word, at, sizeof word);
        seen |= word;
    }
    for (; left > 0; ++at, --left)
        seen |= static_cast<unsigned char>(*at);
    return (seen & 0x8080808080808080u) == 0;
}

} // namespace hessianser
