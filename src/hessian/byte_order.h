// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

/// Big-endian integers in a byte buffer, at any alignment.
namespace hessianser {

namespace detail {

inline std::uint16_t swapBytes(std::uint16_t value) {
    return __builtin_bswap16(value);
}
inline std::uint32_t swapBytes(std::uint32_t value) {
    return __builtin_bswap32(value);
}
inline std::uint64_t swapBytes(std::uint64_t value) {
    return __builtin_bswap64(value);
}

} // namespace detail

template <class Unsigned>
Unsigned loadBigEndian(const char* from) {
    Unsigned value;
    std::memcpy(&value, from, sizeof value);
    if constexpr (std::endian::native == std::endian::little)
        value = detail::swapBytes(value);
    return value;
}

template <class Unsigned>
void storeBigEndian(Unsigned value, char* to) {
    if constexpr (std::endian::native == std::endian::little)
        value = detail::swapBytes(value);
    std::memcpy(to, &value, sizeof value);
}

} // namespace hessianser
