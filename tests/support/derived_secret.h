// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace support {

/// A secret that a process can type without ever holding all of it: each character is computed from
/// a seed and its position. No two neighbours are the same.
inline constexpr int derivedSecretLength = 24;

inline char derivedCharacter(std::uint32_t seed, int place) {
    std::uint32_t state = seed;
    std::uint32_t character = 0;
    for (int i = 0; i <= place; ++i) {
        state = state * 1664525 + 1013904223;
        character = (character + 1 + (state >> 16) % 25) % 26;
    }
    return static_cast<char>('a' + character);
}

/// The whole secret, for the process that searches for it.
inline std::string derivedSecret(std::uint32_t seed) {
    std::string secret;
    for (int place = 0; place < derivedSecretLength; ++place)
        secret += derivedCharacter(seed, place);
    return secret;
}

} // namespace support
