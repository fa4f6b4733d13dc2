// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// What waits until OpenSSL has freed the memory of a thread.
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

#include <boost/make_shared.hpp>
#include <boost/weak_ptr.hpp>
#include <gmock/gmock.h>

#include "tests/support/held_names.h"
#include "tests/support/signal.h"
#include "tests/transport/raw_stream_fixture.h"
#include "transport/pending_reply.h"
#include "transport/raw_stream_dispatcher.h"
#include "transport/tcp_connection.h"
#include "transport/tls_thread.h"

namespace {

/// A thread may still call it after its test.
std::atomic<void (*)()> freeing{[] {}};

} // namespace

/// Instead of the transport's.
void hessiancln::freeTlsOfThread() {
    freeing.load()();
}

namespace {

using namespace hessiancln;
using support::LoopbackServer;
using support::Peer;
using support::Signal;

TEST(ThreadEndDeathTest, ExitFunctionsDontRunBeforeIt) {
    const char* const exitFunctionRan = "The exit function ran.";
    const auto exitMeanwhile = [] {
        static_cast<void>(std::atexit([] { std::fputs("The exit function ran.", stderr); }));
        static Signal begun;
        static Signal never;
        freeing = [] {
            begun.raise();
            never.wait();
        };
        const auto reply = std::make_shared<PendingReply>([](const std::string&) {});
        answerBeside(reply, [] { return "pong"; });
        EXPECT_EQ(reply->wait(), "pong");
        EXPECT_TRUE(begun.wait());
        exitProcess(7);
    };
    EXPECT_EXIT(exitMeanwhile(), testing::ExitedWithCode(7),
                testing::Not(testing::HasSubstr(exitFunctionRan)));
}

TEST(ThreadEnd, ADispatcherWaitsForIt) {
    LoopbackServer server(LoopbackServer::Mode::plain, [](Peer& peer) {
        peer.open().receiveFrame();
        peer.send(support::responseFrame(1, "pong"));
        peer.expectClose();
    });
    static std::atomic<int> begun = 0;
    static std::atomic<int> ended = 0;
    freeing = [] {
        ++begun;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        ++ended;
    };
    {
        CRawStreamDispacher dispatcher(0, "", false);
        EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    }
    EXPECT_EQ(begun, 2); // of the connection, and of what ends it
    EXPECT_EQ(ended, 2);
}

/// All that a name resolution needs.
struct Resolution {
    boost::asio::io_context io;
    boost::asio::ssl::context tls = makeTlsContext();
    TcpConnection connection{io, tls, true};
};

TEST(ThreadEnd, FollowsTheEndOfAnAbandonedConnection) {
    static Signal freed;
    static boost::weak_ptr<Resolution> share;
    freeing = [] {
        EXPECT_TRUE(share.expired());
        freed.raise();
    };
    auto resolution = boost::make_shared<Resolution>();
    share = resolution;
    support::HeldNames names;
    resolution->connection.asyncResolve("agent.held", 1, resolution,
                                        [](const auto&, const auto&) {});
    EXPECT_TRUE(names.waitForHeld(1));
    resolution.reset();
    names.letGo();
    EXPECT_TRUE(freed.wait());
}

} // namespace
