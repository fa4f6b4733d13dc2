// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/agent_url.h"

namespace session {

void normalizeAgentUrl(const std::string& address, std::string& apiUrl, std::string& baseUrl) {
    const bool hasScheme = address.starts_with("https://") || address.starts_with("http://");
    std::string url = hasScheme ? address : "https://" + address;
    // After the colon of either scheme, and before that of any port.
    constexpr std::size_t behindScheme = 7;
    if (url.find(':', behindScheme) == std::string::npos)
        url += ":4411";
    apiUrl = url + "/api";
    baseUrl = std::move(url);
}

} // namespace session
