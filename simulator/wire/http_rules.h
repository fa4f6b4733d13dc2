// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Which HTTP requests an agent's client may send, and what the others get.
namespace simulator::wire {

struct HttpStatus {
    unsigned code;
    std::string reason;
};

/// A request as far as the rules look at it.
struct HttpRequest {
    std::string method;
    std::string target;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;

    /// Names are compared without regard to case. Null if there is none.
    const std::string* header(std::string_view name) const;
};

/// A request that is refused: the status that it gets, and what was wrong with it.
struct Refused {
    HttpStatus status;
    std::string why;
};

/// What speaks against the request, whatever object it goes to.
std::optional<Refused> checkRequest(const HttpRequest& request);

/// The bytes of a response.
std::string httpResponse(const HttpStatus& status, std::string_view body, bool keepAlive);

} // namespace simulator::wire
