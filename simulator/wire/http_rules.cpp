// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/wire/http_rules.h"

#include <algorithm>
#include <cctype>

namespace simulator::wire {
namespace {

bool sameText(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
        return std::tolower(x) == std::tolower(y);
    });
}

bool namesPort(std::string_view host) {
    const std::size_t colon = host.find(':');
    if (colon == std::string_view::npos || colon == 0)
        return false;
    const std::string_view port = host.substr(colon + 1);
    return !port.empty() && port.size() <= 5 &&
           std::all_of(port.begin(), port.end(), [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

const std::string* HttpRequest::header(std::string_view name) const {
    const auto found = std::find_if(headers.begin(), headers.end(), [name](const auto& header) {
        return sameText(header.first, name);
    });
    return found == headers.end() ? nullptr : &found->second;
}

std::optional<Refused> checkRequest(const HttpRequest& request) {
    const auto refuse = [](unsigned code, const char* reason, std::string why) {
        return Refused{{code, reason}, std::move(why)};
    };
    if (request.method != "POST")
        return refuse(405, "Method Not Allowed", "the method is " + request.method);
    const std::string* host = request.header("Host");
    if (!host || !namesPort(*host))
        return refuse(400, "Bad Request", "the Host header doesn't name host and port");
    const std::string* agent = request.header("User-Agent");
    if (!agent || *agent != "NorvelHessianCln/1.0")
        return refuse(403, "Forbidden", "the User-Agent isn't NorvelHessianCln/1.0");
    if (request.header("Content-Type"))
        return refuse(415, "Unsupported Media Type", "a Content-Type is set");
    if (!request.header("Content-Length"))
        return refuse(411, "Length Required", "there is no Content-Length");
    return std::nullopt;
}

std::string httpResponse(const HttpStatus& status, std::string_view body, bool keepAlive) {
    std::string response =
        "HTTP/1.1 " + std::to_string(status.code) + " " + status.reason +
        "\r\nServer: tarn-agent-simulator\r\nContent-Length: " + std::to_string(body.size()) +
        "\r\nConnection: " + (keepAlive ? "keep-alive" : "close") + "\r\n\r\n";
    response += body;
    return response;
}

} // namespace simulator::wire
