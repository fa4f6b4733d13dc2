// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/session/web_server.h"

#include <array>
#include <cstdlib>

#include <sys/socket.h>
#include <sys/time.h>

#include <boost/asio/buffer.hpp>
#include <boost/asio/write.hpp>

namespace session_tests {

namespace {

using boost::asio::ip::tcp;

const tcp::endpoint anyFreePort(boost::asio::ip::address_v4::loopback(), 0);

/// The length that the head of a request tells for its body.
std::size_t bodyLength(const std::string& head) {
    const std::string name = "Content-Length: ";
    const std::size_t at = head.find(name);
    return at == std::string::npos ? 0 : std::strtoul(head.c_str() + at + name.size(), nullptr, 10);
}

bool isWholeRequest(const std::string& received) {
    const std::size_t end = received.find("\r\n\r\n");
    return end != std::string::npos && received.size() >= end + 4 + bodyLength(received);
}

/// What doesn't begin with the name of a method is no HTTP, and nobody waits for the rest of it.
bool isHttp(const std::string& received) {
    return received.empty() || (received[0] >= 'A' && received[0] <= 'Z');
}

} // namespace

WebServer::WebServer(Handler handler)
    : handler_(std::move(handler))
    , acceptor_(io_, anyFreePort) {
    acceptNext();
    thread_ = std::thread([this] { io_.run(); });
}

WebServer::~WebServer() {
    io_.stop();
    thread_.join();
}

std::uint16_t WebServer::port() const {
    return acceptor_.local_endpoint().port();
}

std::string WebServer::authority() const {
    return "127.0.0.1:" + std::to_string(port());
}

std::vector<std::string> WebServer::requestLines() const {
    const std::lock_guard lock(mutex_);
    return requestLines_;
}

std::vector<std::string> WebServer::bodies() const {
    const std::lock_guard lock(mutex_);
    return bodies_;
}

void WebServer::acceptNext() {
    acceptor_.async_accept([this](const boost::system::error_code& error, tcp::socket socket) {
        if (!error) {
            serve(socket);
            acceptNext();
        }
    });
}

void WebServer::serve(tcp::socket& socket) {
    const timeval limit{5, 0};
    ::setsockopt(socket.native_handle(), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    std::string received;
    std::array<char, 4096> room;
    boost::system::error_code error;
    while (!error && isHttp(received) && !isWholeRequest(received)) {
        received.append(room.data(), socket.read_some(boost::asio::buffer(room), error));
    }
    std::string response = "HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n";
    if (isWholeRequest(received)) {
        const std::string body = received.substr(received.find("\r\n\r\n") + 4);
        {
            const std::lock_guard lock(mutex_);
            requestLines_.push_back(received.substr(0, received.find("\r\n")));
            bodies_.push_back(body);
        }
        response = handler_(body);
    }
    boost::asio::write(socket, boost::asio::buffer(response), error);
    socket.shutdown(tcp::socket::shutdown_both, error);
}

std::string webPage(const std::string& body) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::uint16_t closedPort() {
    boost::asio::io_context io;
    const tcp::acceptor acceptor(io, anyFreePort);
    return acceptor.local_endpoint().port();
}

} // namespace session_tests
