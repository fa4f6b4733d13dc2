// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Calls for which the system lacks memory or a thread: each fails like any failed call, and the
// dispatcher remains usable.
#include <future>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/failing_allocation.h"
#include "tests/support/loopback_server.h"
#include "tests/support/system/no_more_threads.h"
#include "transport/http_call_dispatcher.h"
#include "transport/invoke_exception.h"
#include "transport/raw_stream_dispatcher.h"

namespace {

using namespace hessiancln;
using support::FailingAllocation;
using support::LoopbackServer;
using support::Peer;
using support::RequestFrame;
using support::responseFrame;

const std::string request(100, 'q'); // too long for the small-string optimisation

void answerOneByHttp(Peer& peer) {
    peer.open().receiveUntil("\r\n\r\n");
    peer.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + peer.receive(100));
}

void echoFrames(Peer& peer) {
    peer.open();
    for (;;) {
        const RequestFrame frame = peer.receiveFrame();
        peer.send(responseFrame(frame.id, frame.message));
    }
}

/// The call's result: its reply, or the text that it throws.
std::string outcomeOf(ICallDispatcher& dispatcher, const std::string& url) {
    try {
        return dispatcher.sendRequest(url, request);
    } catch (const invoke_exception& failure) {
        return failure.what();
    }
}

class Shortage : public testing::TestWithParam<LoopbackServer::Mode> {};

INSTANTIATE_TEST_SUITE_P(Both, Shortage,
                         testing::Values(LoopbackServer::Mode::plain, LoopbackServer::Mode::tls),
                         [](const auto& mode) {
                             return mode.param == LoopbackServer::Mode::tls ? "Tls" : "Plain";
                         });

/// Fails each allocation of a call in turn, until a call needs no more. Each call either does
/// without or throws; returns how many threw.
int failEachAllocation(ICallDispatcher& dispatcher, const std::string& url) {
    int raised = 0;
    for (std::size_t nth = 1;; ++nth) {
        std::string outcome;
        bool reached = false;
        {
            const FailingAllocation failing(nth);
            outcome = outcomeOf(dispatcher, url);
            reached = failing.hasFailed();
        }
        if (outcome != request) {
            EXPECT_EQ(outcome, "Out of memory") << "allocation " << nth;
            ++raised;
        }
        if (!reached)
            return raised;
    }
}

TEST_P(Shortage, OfMemoryAnywhereInAnHttpCallFailsThatCall) {
    LoopbackServer server(GetParam(), answerOneByHttp);
    server.tolerateFailures(); // the calls it sees end anywhere
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_GT(failEachAllocation(dispatcher, server.url()), 10);
    EXPECT_EQ(outcomeOf(dispatcher, server.url()), request);
}

TEST_P(Shortage, OfMemoryOnTheCallersSideOfAStreamFailsThatCall) {
    LoopbackServer server(GetParam(), echoFrames);
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_GT(failEachAllocation(dispatcher, server.url()), 3);
    EXPECT_EQ(outcomeOf(dispatcher, server.url()), request);
    EXPECT_EQ(server.connections(), 1u);
    server.stop();
}

TEST_P(Shortage, OfMemoryLeavesNoConnectionWithoutReuse) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        const RequestFrame frame = peer.receiveFrame();
        peer.send(responseFrame(frame.id, frame.message)).expectClose();
    });
    server.tolerateFailures();
    {
        CRawStreamDispacher dispatcher(0, "", false);
        EXPECT_GT(failEachAllocation(dispatcher, server.url()), 3);
    }
    EXPECT_TRUE(server.waitForEnded(server.connections()));
}

/// The outcome of a call during which the n-th allocation of the stream's thread fails.
struct StreamOutcome {
    std::string text;     ///< the reply, or the text of the failure
    bool reached = false; ///< the thread made that many allocations
};

StreamOutcome failOnStream(CRawStreamDispacher& dispatcher, const std::string& url,
                           std::size_t nth) {
    std::unique_ptr<FailingAllocation> failing;
    std::promise<StreamOutcome> outcome;
    // The handlers run on that thread: the first one arms the failure for the call, the second
    // disarms it.
    dispatcher.asyncSendRequest(
        url, "arm",
        [&](const std::string&) {
            dispatcher.asyncSendRequest(
                url, request,
                [&](const std::string& reply) {
                    const bool reached = failing->hasFailed();
                    failing.reset();
                    outcome.set_value({reply, reached});
                },
                [&](const std::string& text) {
                    failing.reset();
                    outcome.set_value({text, true});
                });
            failing = std::make_unique<FailingAllocation>(nth);
        },
        [](const std::string& text) { ADD_FAILURE() << text; });
    return outcome.get_future().get();
}

TEST_P(Shortage, OfMemoryOnTheStreamsThreadFailsTheCall) {
    int raised = 0;
    int survived = 0;
    bool reached = true;
    for (std::size_t nth = 1; reached; ++nth) {
        LoopbackServer server(GetParam(), echoFrames);
        server.tolerateFailures(); // the stream ends anywhere
        CRawStreamDispacher dispatcher(0, "", true);
        const StreamOutcome outcome = failOnStream(dispatcher, server.url(), nth);
        reached = outcome.reached;
        if (outcome.text != request) {
            EXPECT_EQ(outcome.text, "Out of memory") << "allocation " << nth;
            ++raised;
            const std::string next = outcomeOf(dispatcher, server.url());
            EXPECT_TRUE(next == request || next == "Out of memory") << next;
            survived += next == request ? 1 : 0;
        }
    }
    EXPECT_GT(raised, 2);
    EXPECT_GT(survived, 0); // one call's frame must not end the other calls
}

TEST_P(Shortage, OfThreadsFailsAnAsynchronousHttpCall) {
    if (!support::NoMoreThreads::isPossible())
        GTEST_SKIP();
    LoopbackServer server(GetParam(), answerOneByHttp);
    CHttpCallDispatcher dispatcher(0, "");
    std::promise<std::string> reply;
    const auto call = [&] {
        dispatcher.asyncSendRequest(
            server.url(), request, [&](const std::string& text) { reply.set_value(text); },
            [](const std::string& text) { ADD_FAILURE() << text; });
    };
    {
        const support::NoMoreThreads none;
        try {
            call();
            ADD_FAILURE() << "nothing raised";
        } catch (const invoke_exception& failure) {
            EXPECT_EQ(std::string(failure.what()), "Failed to start a worker thread: Resource "
                                                   "temporarily unavailable");
        }
    }
    call();
    EXPECT_EQ(reply.get_future().get(), request);
}

TEST_P(Shortage, OfThreadsFailsACallThatConnects) {
    if (!support::NoMoreThreads::isPossible())
        GTEST_SKIP();
    LoopbackServer server(GetParam(), echoFrames);
    CRawStreamDispacher dispatcher(0, "", true);
    {
        const support::NoMoreThreads none;
        EXPECT_EQ(outcomeOf(dispatcher, server.url()),
                  "Failed to start a connection thread: Resource temporarily unavailable");
        dispatcher.stopConnections(); // there are no connections to stop
    }
    EXPECT_EQ(outcomeOf(dispatcher, server.url()), request);
    server.stop();
}

} // namespace
