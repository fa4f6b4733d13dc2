// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/bytes.h"

#include <cctype>
#include <charconv>
#include <stdexcept>

namespace support {
namespace {

char hexByte(std::string_view digits) {
    unsigned value = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (error != std::errc() || end != digits.data() + digits.size())
        throw std::invalid_argument("not a byte: " + std::string(digits));
    return static_cast<char>(value);
}

} // namespace

std::string bytes(std::string_view notation) {
    std::string result;
    while (!notation.empty()) {
        if (notation.front() == ' ') {
            notation.remove_prefix(1);
            continue;
        }
        const bool text = notation.front() == '\'';
        const std::size_t end = notation.find(text ? '\'' : ' ', 1);
        const std::string_view piece = notation.substr(0, end);
        notation.remove_prefix(piece.size());
        if (text) {
            if (end == std::string_view::npos)
                throw std::invalid_argument("text without an end: " + std::string(piece));
            result += piece.substr(1);
            notation.remove_prefix(1);
        } else if (piece.size() == 1) {
            result += piece;
        } else if (piece.size() == 2) {
            result += hexByte(piece);
        } else {
            throw std::invalid_argument("neither byte nor text: " + std::string(piece));
        }
    }
    return result;
}

std::string printable(std::string_view bytes) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isprint(byte) != 0 && c != '\\')
            result += c;
        else
            (((result += "\\x") += digits[byte >> 4]) += digits[byte & 15]);
    }
    return result;
}

} // namespace support
