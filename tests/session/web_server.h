// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>

namespace session_tests {

/// A web server without TLS on a free port of 127.0.0.1, which is not an agent: it answers each
/// request with what the test says, then closes the connection.
class WebServer {
public:
    /// Takes the body of a request, gives the whole response, head included; an empty one closes
    /// the connection without a word. Runs on the server's thread.
    using Handler = std::function<std::string(const std::string& body)>;

    explicit WebServer(Handler handler);
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    std::uint16_t port() const;
    /// "127.0.0.1:4411"
    std::string authority() const;
    /// "http://127.0.0.1:4411"
    std::string url() const { return "http://" + authority(); }

    /// The first line of each request so far, and its body.
    std::vector<std::string> requestLines() const;
    std::vector<std::string> bodies() const;

private:
    void acceptNext();
    void serve(boost::asio::ip::tcp::socket& socket);

    Handler handler_;
    boost::asio::io_context io_;
    boost::asio::ip::tcp::acceptor acceptor_;
    mutable std::mutex mutex_;
    std::vector<std::string> requestLines_;
    std::vector<std::string> bodies_;
    std::thread thread_;
};

/// A response with status 200 and `body`.
std::string webPage(const std::string& body);

/// A port of 127.0.0.1 on which nobody listens.
std::uint16_t closedPort();

} // namespace session_tests
