// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/secret_search.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <stdexcept>

namespace support {

namespace {

// Divisible by three, to make a whole number of Base64 groups.
constexpr std::size_t partSize = 12;

std::string hexadecimal(std::string_view bytes) {
    std::string digits;
    for (const char letter : bytes) {
        const auto byte = static_cast<unsigned char>(letter);
        digits += "0123456789abcdef"[byte >> 4];
        digits += "0123456789abcdef"[byte & 15];
    }
    return digits;
}

std::string base64(std::string_view bytes) {
    constexpr std::string_view letters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        group = group << 8 | static_cast<unsigned char>(bytes[i]);
        if (i % 3 == 2)
            for (int shift = 18; shift >= 0; shift -= 6)
                text += letters[group >> shift & 63];
    }
    return text;
}

/// The hexadecimal digits as one lower-case string, ignoring what is between them.
std::string joinedDigits(std::string_view text) {
    std::string digits;
    for (const char letter : text)
        if (std::isxdigit(static_cast<unsigned char>(letter)))
            digits += static_cast<char>(std::tolower(letter));
    return digits;
}

} // namespace

bool revealsPartOf(std::string_view secret, std::string_view text) {
    if (secret.size() < partSize)
        throw std::invalid_argument("too short for a secret");
    const std::string digits = joinedDigits(text);
    for (std::size_t i = 0; i + partSize <= secret.size(); ++i) {
        const std::string_view part = secret.substr(i, partSize);
        if (text.find(part) != std::string_view::npos ||
            digits.find(hexadecimal(part)) != std::string::npos ||
            text.find(base64(part)) != std::string_view::npos)
            return true;
    }
    return false;
}

} // namespace support
