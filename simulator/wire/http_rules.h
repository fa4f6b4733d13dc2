// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Which HTTP requests an agent's client may send, and the responses to the others.
namespace simulator::wire {

struct HttpStatus {
    unsigned code;
    std::string reason;
};

/// The parts of a request that the rules check.
struct HttpRequest {
    std::string method;
    std::string target;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;

    /// Names are case-insensitive. Null if there is no such header.
    const std::string* header(std::string_view name) const;
};

/// A rejected request: the status to send, and the reason.
struct Refused {
    HttpStatus status;
    std::string why;
};

/// The reason to reject the request, whatever its target object.
std::optional<Refused> checkRequest(const HttpRequest& request);

/// The bytes of a response.
std::string httpResponse(const HttpStatus& status, std::string_view body, bool keepAlive);

} // namespace simulator::wire
