// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/parse_url.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "transport/ignore_case.h"
#include "transport/invoke_exception.h"

namespace hessiancln {

namespace {

bool startsWith(std::string_view text, std::string_view start) {
    return compareIgnoringCase(text.substr(0, start.size()), start) == 0;
}

/// Clamps a number that is too large, so that it can't wrap to a valid port.
std::uint32_t portNumber(const char* digits) {
    const long long number = std::strtoll(digits, nullptr, 10);
    return static_cast<std::uint32_t>(std::clamp<long long>(number, std::numeric_limits<int>::min(),
                                                            std::numeric_limits<int>::max()));
}

} // namespace

void parseUrl(const std::string& url, bool& useTls, std::string& host, std::string& path,
              std::uint32_t& port) {
    constexpr std::string_view secure = "https://";
    constexpr std::string_view plain = "http://";

    useTls = startsWith(url, secure);
    if (!useTls && !startsWith(url, plain))
        throw invoke_exception() << "Invalid URL (does not start with http/https): '" << url << "'";
    port = useTls ? 443 : 80;

    const std::string rest = url.substr(useTls ? secure.size() : plain.size());
    const std::size_t slash = rest.find('/');
    host = rest.substr(0, slash);
    path = slash == std::string::npos ? "/" : rest.substr(slash);

    if (const std::size_t colon = host.find(':'); colon != std::string::npos) {
        port = portNumber(host.c_str() + colon + 1);
        if (port == 0)
            throw invoke_exception() << "Invalid port component in host '" << host << "'";
        host.resize(colon);
    }
}

} // namespace hessiancln
