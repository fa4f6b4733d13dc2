// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/session/web_server.h"

#include <cstdlib>
#include <utility>

namespace session_tests {

namespace {

/// The body length according to the head of a request.
std::size_t bodyLength(const std::string& head) {
    const std::string name = "Content-Length: ";
    const std::size_t at = head.find(name);
    return at == std::string::npos ? 0 : std::strtoul(head.c_str() + at + name.size(), nullptr, 10);
}

} // namespace

WebServer::WebServer(Handler handler)
    : handler_(std::move(handler))
    , server_(support::LoopbackServer::Mode::plain, [this](support::Peer& peer) { serve(peer); }) {}

std::string WebServer::authority() const {
    return "127.0.0.1:" + std::to_string(server_.port());
}

std::vector<std::string> WebServer::requestLines() const {
    const std::lock_guard lock(mutex_);
    return requestLines_;
}

std::vector<std::string> WebServer::bodies() const {
    const std::lock_guard lock(mutex_);
    return bodies_;
}

void WebServer::serve(support::Peer& peer) {
    const std::string head = peer.receiveUntil("\r\n\r\n");
    const std::string body = peer.receive(bodyLength(head));
    {
        const std::lock_guard lock(mutex_);
        requestLines_.push_back(head.substr(0, head.find("\r\n")));
        bodies_.push_back(body);
    }
    peer.send(handler_(body)).close();
}

std::string webPage(const std::string& body) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

} // namespace session_tests
