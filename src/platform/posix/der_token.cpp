// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/posix/der_token.h"

#include <cstddef>

namespace platform {

std::span<std::uint8_t> derToken(std::span<std::uint8_t> room) {
    constexpr std::size_t shortHead = 2;
    constexpr std::uint8_t longForm = 0x80;
    if (room.size() < shortHead)
        return room;
    std::size_t head = shortHead;
    std::size_t length = room[1];
    if (length >= longForm) {
        const std::size_t digits = length - longForm;
        if (digits == 0 || digits > sizeof(std::uint32_t) || digits > room.size() - head)
            return room;
        length = 0;
        for (const std::uint8_t digit : room.subspan(head, digits))
            length = length << 8 | digit;
        head += digits;
    }
    return length <= room.size() - head ? room.first(head + length) : room;
}

} // namespace platform
