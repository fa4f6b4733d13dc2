// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// What a call leaves in the memory that it frees.
#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/support/loopback_server.h"
#include "transport/http_call_dispatcher.h"

namespace {

const std::string secret = "a secret that crosses the wire";

thread_local bool watched = false;
thread_local int findings = 0;

/// Counts the blocks containing the secret that the current thread frees during the lifetime of
/// this object.
class FreedMemory {
public:
    FreedMemory() {
        findings = 0;
        watched = true;
    }
    FreedMemory(const FreedMemory&) = delete;
    FreedMemory& operator=(const FreedMemory&) = delete;
    ~FreedMemory() { watched = false; }

    int blocksWithSecret() const { return findings; }
};

// Each block is preceded by its size.
constexpr std::size_t headSize = alignof(std::max_align_t);

} // namespace

void* operator new(std::size_t size) {
    auto* const block = static_cast<char*>(std::malloc(headSize + size));
    if (!block)
        throw std::bad_alloc();
    new (block) std::size_t(size);
    return block + headSize;
}

void operator delete(void* memory) noexcept {
    if (!memory)
        return;
    char* const block = static_cast<char*>(memory) - headSize;
    const std::size_t size = *reinterpret_cast<std::size_t*>(block);
    if (watched &&
        std::string_view(static_cast<char*>(memory), size).find(secret) != std::string_view::npos)
        ++findings;
    std::free(block);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace {

using namespace hessiancln;
using support::LoopbackServer;
using support::Peer;

class FreedByACall : public testing::TestWithParam<LoopbackServer::Mode> {};

INSTANTIATE_TEST_SUITE_P(Both, FreedByACall,
                         testing::Values(LoopbackServer::Mode::plain, LoopbackServer::Mode::tls),
                         [](const auto& mode) {
                             return mode.param == LoopbackServer::Mode::tls ? "Tls" : "Plain";
                         });

TEST(FreedMemory, IsSeen) {
    const FreedMemory freed;
    { const std::string copy = secret; }
    EXPECT_EQ(freed.blocksWithSecret(), 1);
}

TEST_P(FreedByACall, MemoryHoldsNothingOfTheRequestOrTheReply) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\n" + secret);
        peer.send("HTTP/1.1 200 OK\r\nContent-Length: 30\r\n\r\n" + secret).close();
    });
    const std::string url = server.url();
    CHttpCallDispatcher dispatcher(0, "");
    std::string reply;
    int left = 0;
    {
        const FreedMemory freed;
        reply = dispatcher.sendRequest(url, secret);
        left = freed.blocksWithSecret();
    }
    EXPECT_EQ(reply, secret);
    EXPECT_EQ(left, 0);
}

} // namespace
