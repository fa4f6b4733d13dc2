// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "hessian/utf8.h"

#include <cstdint>
#include <cstring>

namespace hessianser {

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
