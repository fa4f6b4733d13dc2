// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "tests/support/loopback_server.h"

namespace session_tests {

/// A web server without TLS on a free port of 127.0.0.1: answers each request with the handler's
/// response, then closes the connection.
class WebServer {
public:
    /// Takes the body of a request and returns the whole response, including the head; an empty one
    /// closes the connection without a response. Runs on a thread of the server.
    using Handler = std::function<std::string(const std::string& body)>;

    explicit WebServer(Handler handler);

    /// "127.0.0.1:4411"
    std::string authority() const;
    /// "http://127.0.0.1:4411"
    std::string url() const { return "http://" + authority(); }

    /// The first line, or the body, of each request so far.
    std::vector<std::string> requestLines() const;
    std::vector<std::string> bodies() const;

private:
    void serve(support::Peer& peer);

    Handler handler_;
    mutable std::mutex mutex_;
    std::vector<std::string> requestLines_;
    std::vector<std::string> bodies_;
    support::LoopbackServer server_;
};

/// A response with status 200 and `body`.
std::string webPage(const std::string& body);

} // namespace session_tests
