// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/objects/describe.h"

#include <array>

namespace simulator {

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        if (c == '\n')
            result += "\\n";
        else if (c == '\r')
            result += "\\r";
        else
            result += c;
    }
    return result + "\"";
}

bool isSecretKey(std::string_view key) {
    constexpr std::array<std::string_view, 3> secrets{"password", "private_key", "account_key"};
    return std::find(secrets.begin(), secrets.end(), key) != secrets.end();
}

} // namespace simulator
