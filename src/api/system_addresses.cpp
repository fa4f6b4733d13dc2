// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/system_addresses.h"

namespace hessiancln {
namespace {

constexpr std::string_view separator = "\\;";

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace

std::string joinSystemAddresses(const std::vector<std::string>& addresses) {
    std::string text;
    for (const std::string& address : addresses) {
        if (!text.empty())
            text += separator;
        text += address;
    }
    return text;
}

std::vector<std::string> splitSystemAddresses(std::string_view text) {
    std::vector<std::string> addresses;
    for (bool more = true; more;) {
        const std::size_t end = text.find(separator);
        more = end != std::string_view::npos;
        if (const std::string_view address = trimmed(text.substr(0, end)); !address.empty())
            addresses.emplace_back(address);
        text.remove_prefix(more ? end + separator.size() : text.size());
    }
    return addresses;
}

} // namespace hessiancln
