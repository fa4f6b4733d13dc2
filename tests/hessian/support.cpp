// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "support.h"

#include <cctype>
#include <stdexcept>

namespace codec_test {

std::string bytes(std::string_view typed) {
    std::string result;
    while (!typed.empty()) {
        if (typed.front() == ' ') {
            typed.remove_prefix(1);
        } else if (typed.front() == '\'') {
            const auto end = typed.find('\'', 1);
            if (end == typed.npos)
                throw std::invalid_argument("a quote isn't closed");
            result += typed.substr(1, end - 1);
            typed.remove_prefix(end + 1);
        } else {
            const std::string pair(typed.substr(0, 2));
            if (pair.size() != 2 || !std::isxdigit(static_cast<unsigned char>(pair[0])) ||
                !std::isxdigit(static_cast<unsigned char>(pair[1])))
                throw std::invalid_argument("not a pair of digits: " + pair);
            result += static_cast<char>(std::stoi(pair, nullptr, 16));
            typed.remove_prefix(2);
        }
    }
    return result;
}

std::string repeat(std::string_view unit, std::size_t times) {
    std::string result;
    for (std::size_t i = 0; i < times; ++i)
        result += unit;
    return result;
}

} // namespace codec_test
