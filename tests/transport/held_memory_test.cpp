// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// How much memory a call takes at a time.
#include <algorithm>
#include <cstddef>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/loopback_server.h"
#include "tests/support/watched_allocation.h"
#include "transport/http_call_dispatcher.h"

namespace {

// Of the current thread, in bytes.
thread_local std::ptrdiff_t held = 0;
thread_local std::ptrdiff_t mostHeld = 0;

} // namespace

void support::allocated(std::size_t size) noexcept {
    held += static_cast<std::ptrdiff_t>(size);
    mostHeld = std::max(mostHeld, held);
}

void support::freed(const char*, std::size_t size) noexcept {
    held -= static_cast<std::ptrdiff_t>(size);
}

namespace {

using namespace hessiancln;
using support::LoopbackServer;
using support::Peer;

class HeldByACall : public testing::TestWithParam<LoopbackServer::Mode> {};

INSTANTIATE_TEST_SUITE_P(Each, HeldByACall,
                         testing::Values(LoopbackServer::Mode::plain, LoopbackServer::Mode::tls),
                         [](const auto& test) {
                             return test.param == LoopbackServer::Mode::tls ? "Tls" : "Plain";
                         });

TEST_P(HeldByACall, MemoryIsThatOfOneReply) {
    constexpr std::size_t large = 32u << 20;
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\nping");
        peer.send("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(large) + "\r\n\r\n");
        peer.send(std::string(large, 'r')).receiveUntilClose();
    });
    CHttpCallDispatcher dispatcher(0, "");
    mostHeld = held;
    const std::ptrdiff_t before = held;
    const std::string reply = dispatcher.sendRequest(server.url(), "ping");
    EXPECT_EQ(reply.size(), large);
    EXPECT_GE(mostHeld - before, std::ptrdiff_t{large});
    EXPECT_LT(mostHeld - before, std::ptrdiff_t{large} * 5 / 4);
}

} // namespace
