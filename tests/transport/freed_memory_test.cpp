// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// What a call leaves in the memory that it frees.
#include <ostream>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "tests/support/freed_memory.h"
#include "tests/support/loopback_server.h"
#include "transport/http_call_dispatcher.h"
#include "transport/invoke_exception.h"

namespace {

using namespace hessiancln;
using support::FreedMemory;
using support::LoopbackServer;
using support::Peer;

using Mode = LoopbackServer::Mode;

const std::string secret = "a secret that crosses the wire";

/// So short that a string stores it in the object itself.
const std::string shortSecret = "a secret";

/// How the server answers a call: with the secret of the call between two parts.
struct Answer {
    const char* name;
    std::string secret;
    std::string head;
    std::string rest;
    bool isReply;
};

void PrintTo(const Answer& answer, std::ostream* out) {
    *out << answer.name;
}

const std::string ok = "HTTP/1.1 200 OK\r\n";

const Answer answers[] = {
    {"KnownLength", secret, ok + "Content-Length: 30\r\n\r\n", "", true},
    {"Chunked", secret, ok + "Transfer-Encoding: chunked\r\n\r\n1e\r\n",
     "\r\n1388\r\n" + std::string(5000, '.') + "\r\n0\r\n\r\n", true},
    {"Cut", secret, ok + "Content-Length: 100\r\n\r\n", "", false},
    {"ShortAndCut", shortSecret, ok + "Content-Length: 10\r\n\r\n", "", false},
    {"OtherStatus", secret, "HTTP/1.1 500 Error\r\nContent-Length: 30\r\n\r\n", "", false},
};

using Case = std::tuple<Mode, Answer>;

std::string nameOf(const testing::TestParamInfo<Case>& test) {
    const auto& [mode, answer] = test.param;
    return std::string(answer.name) + (mode == Mode::tls ? "Tls" : "Plain");
}

class FreedByACall : public testing::TestWithParam<Case> {};

INSTANTIATE_TEST_SUITE_P(Each, FreedByACall,
                         testing::Combine(testing::Values(Mode::plain, Mode::tls),
                                          testing::ValuesIn(answers)),
                         nameOf);

TEST(FreedMemory, IsSeen) {
    const FreedMemory freed(secret);
    { const std::string copy = secret; }
    EXPECT_EQ(freed.blocksWithSecret(), 1);
}

TEST_P(FreedByACall, MemoryHoldsNothingOfTheRequestOrTheReply) {
    const auto& [mode, answer] = GetParam();
    LoopbackServer server(mode, [&answer = answer](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\n" + answer.secret);
        peer.send(answer.head + answer.secret + answer.rest).close();
    });
    const std::string url = server.url();
    CHttpCallDispatcher dispatcher(0, "");
    std::string reply;
    int left = 0;
    {
        const FreedMemory freed(answer.secret);
        try {
            reply = dispatcher.sendRequest(url, answer.secret);
        } catch (const invoke_exception&) {
            EXPECT_FALSE(answer.isReply);
        }
        left = freed.blocksWithSecret();
    }
    EXPECT_EQ(reply.starts_with(answer.secret), answer.isReply);
    EXPECT_EQ(left, 0);
}

} // namespace
