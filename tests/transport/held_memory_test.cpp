// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// How much memory a call takes at a time.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/loopback_server.h"
#include "transport/http_call_dispatcher.h"

namespace {

// Of the current thread, in bytes.
thread_local std::ptrdiff_t held = 0;
thread_local std::ptrdiff_t mostHeld = 0;

// Each block is preceded by its size.
constexpr std::size_t headSize = alignof(std::max_align_t);

} // namespace

void* operator new(std::size_t size) {
    auto* const block = static_cast<char*>(std::malloc(headSize + size));
    if (!block)
        throw std::bad_alloc();
    new (block) std::size_t(size);
    held += static_cast<std::ptrdiff_t>(size);
    mostHeld = std::max(mostHeld, held);
    return block + headSize;
}

void operator delete(void* memory) noexcept {
    if (!memory)
        return;
    char* const block = static_cast<char*>(memory) - headSize;
    held -= static_cast<std::ptrdiff_t>(*reinterpret_cast<std::size_t*>(block));
    std::free(block);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
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
