// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Ending streams from another thread, in any state.
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "tests/support/signal.h"
#include "tests/support/system/sockets.h"
#include "tests/transport/raw_stream_fixture.h"
#include "transport/raw_stream_dispatcher.h"
#include "transport/single_stream_connection.h"

namespace {

using namespace hessiancln;
using support::LoopbackServer;
using support::Peer;
using support::responseFrame;
using support::Signal;
using Mode = LoopbackServer::Mode;

class RawStreamStop : public RawStream {};

TARN_ON_PLAIN_AND_TLS(RawStreamStop);

TEST_P(RawStreamStop, FreesACallerOfASilentServer) {
    Signal asked;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveFrame();
        asked.raise();
        peer.expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::string text;
    std::thread caller([&] { text = failureOf(dispatcher, server.url()); });
    ASSERT_TRUE(asked.wait());
    dispatcher.stopConnections();
    caller.join();
    EXPECT_EQ(text, "Stream connection terminated");
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(RawStreamStop, FreesSixteenCallersOfASilentServer) {
    Signal asked;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open();
        for (int i = 0; i < 16; ++i)
            peer.receiveFrame();
        asked.raise();
        peer.expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::vector<std::thread> callers;
    for (int i = 0; i < 16; ++i) {
        callers.emplace_back([&] {
            EXPECT_EQ(failureOf(dispatcher, server.url()), "Stream connection terminated");
        });
    }
    ASSERT_TRUE(asked.wait());
    dispatcher.stopConnections();
    for (std::thread& caller : callers)
        caller.join();
}

TEST_P(RawStreamStop, FreesACallerWithinAReply) {
    Signal cut;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveFrame();
        peer.send(responseFrame(1, std::string(1'000'000, 'x')).substr(0, 500'000));
        cut.raise();
        peer.expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::string text;
    std::thread caller([&] { text = failureOf(dispatcher, server.url()); });
    ASSERT_TRUE(cut.wait());
    dispatcher.stopConnections();
    caller.join();
    EXPECT_EQ(text, "Stream connection terminated");
}

TEST_P(RawStreamStop, FreesACallerThatIsStillWriting) {
    Signal begun;
    Signal done;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receive(12);
        begun.raise();
        done.wait();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::string text;
    std::thread caller(
        [&] { text = failureOf(dispatcher, server.url(), std::string(32'000'000, 'x')); });
    ASSERT_TRUE(begun.wait());
    dispatcher.stopConnections();
    caller.join();
    done.raise();
    EXPECT_EQ(text, "Stream connection terminated");
}

TEST_P(RawStreamStop, FreesAnAsynchronousCallerThatWaitsForRoom) {
    Signal begun;
    Signal done;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receive(12);
        begun.raise();
        done.wait();
    });
    std::atomic<int> reported = 0;
    CRawStreamDispacher dispatcher(0, "", true);
    const auto call = [&](const std::string& request) {
        dispatcher.asyncSendRequest(
            server.url(), request, [](const std::string&) { ADD_FAILURE(); },
            [&](const std::string& text) {
                EXPECT_EQ(text, "Stream connection terminated");
                ++reported;
            });
    };
    call(std::string(32'000'000, 'x'));
    for (int i = 1; i < 16; ++i)
        call("small");
    Signal queued;
    std::thread caller([&] {
        call("one too many");
        queued.raise();
    });
    ASSERT_TRUE(begun.wait());
    EXPECT_FALSE(queued.wait(std::chrono::milliseconds(100)));
    dispatcher.stopConnections();
    EXPECT_TRUE(queued.wait());
    caller.join();
    done.raise();
    EXPECT_EQ(reported, 17);
}

TEST_P(RawStreamStop, ACallToAStoppedConnectionRaisesAtOnce) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
    });
    const auto connection = CSingleStreamDispatcherConnection::start(
        {GetParam() == Mode::tls, "127.0.0.1", server.port()}, 0, "");
    std::string response;
    connection->SendRequest(server.url(), "ping", response);
    connection->WaitForStop();
    EXPECT_FALSE(connection->isOpen());
    EXPECT_THROW(connection->SendRequest(server.url(), "ping", response), invoke_exception);

    std::string text;
    connection->asyncSendRequest(
        server.url(), "ping", [](const std::string&) { ADD_FAILURE(); },
        [&](const std::string& failure) { text = failure; });
    EXPECT_EQ(text, "Stream connection terminated");
    connection->WaitForStop(); // the second call does nothing
}

TEST_P(RawStreamStop, OfADeadStreamNeverWaits) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveFrame();
        peer.close();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_NE(failureOf(dispatcher, server.url()), "no failure");
    dispatcher.stopConnections();
    dispatcher.stopConnections();
}

TEST_P(RawStreamStop, AnIdleConnectionIsClosedByTheDestructor) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
    });
    {
        CRawStreamDispacher dispatcher(0, "", true);
        dispatcher.sendRequest(server.url(), "ping");
    }
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(RawStreamStop, TheDestructorWaitsForTheConnectionsThatNoOneJoins) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
    });
    // Without the wait, a connection hardly ever ends that soon.
    for (int round = 0; round < 10; ++round) {
        {
            CRawStreamDispacher dispatcher(0, "", false);
            dispatcher.sendRequest(server.url(), "ping");
        }
        EXPECT_TRUE(support::sockets::connectedTo(server.port()).empty());
    }
}

TEST_P(RawStreamStop, MayComeWhileManyThreadsCall) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        for (;;)
            peer.send(responseFrame(peer.receiveFrame().id, "pong"));
    });
    server.tolerateFailures(); // its scripts end wherever the stop catches them
    CRawStreamDispacher dispatcher(0, "", true);
    std::atomic<bool> ending = false;
    std::atomic<int> answered = 0;
    std::vector<std::thread> callers;
    for (int i = 0; i < 8; ++i) {
        callers.emplace_back([&, i] {
            while (!ending) {
                if (i % 2 == 0) {
                    const std::string text = failureOf(dispatcher, server.url());
                    EXPECT_TRUE(text == "no failure" || text == "Stream connection terminated")
                        << text;
                } else {
                    Signal done;
                    dispatcher.asyncSendRequest(
                        server.url(), "ping", [&](const std::string&) { done.raise(); },
                        [&](const std::string&) { done.raise(); });
                    EXPECT_TRUE(done.wait());
                }
                ++answered;
            }
        });
    }
    for (int stop = 0; stop < 50; ++stop) {
        const int before = answered;
        dispatcher.stopConnections();
        while (answered < before + 8)
            std::this_thread::yield();
    }
    ending = true;
    for (std::thread& caller : callers)
        caller.join();
}

TEST(RawStreamHandshakeStop, FreesACallerOfAServerThatIsSilentInTheHandshake) {
    Signal connected;
    LoopbackServer server(Mode::tls, [&](Peer& peer) {
        peer.receive(5);
        connected.raise();
        peer.receiveUntilClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::string text;
    std::thread caller([&] { text = failureOf(dispatcher, server.url()); });
    ASSERT_TRUE(connected.wait());
    dispatcher.stopConnections();
    caller.join();
    EXPECT_EQ(text, "Stream connection terminated");
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST(RawStreamHandshakeStop, FailsAsynchronousCallsThatNeverWentOut) {
    Signal connected;
    LoopbackServer server(Mode::tls, [&](Peer& peer) {
        peer.receive(5);
        connected.raise();
        peer.receiveUntilClose();
    });
    std::vector<std::string> reported;
    CRawStreamDispacher dispatcher(0, "", true);
    for (int i = 0; i < 3; ++i) {
        dispatcher.asyncSendRequest(
            server.url(), "ping", [](const std::string&) { ADD_FAILURE(); },
            [&](const std::string& text) { reported.push_back(text); });
    }
    ASSERT_TRUE(connected.wait());
    dispatcher.stopConnections();
    EXPECT_EQ(reported, std::vector<std::string>(3, "Stream connection terminated"));
}

} // namespace
