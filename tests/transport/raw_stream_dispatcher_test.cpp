// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// What a session lives on: calls that succeed, on streams that split, join and overtake.
#include "tests/support/system/sockets.h"
#include "transport/raw_stream_dispatcher.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "tests/support/bytes.h"
#include "tests/support/signal.h"
#include "tests/transport/raw_stream_fixture.h"
#include "transport/single_stream_connection.h"

namespace {

using namespace hessiancln;
using support::bytes;
using support::LoopbackServer;
using support::Peer;
using support::RequestFrame;
using support::responseFrame;
using support::Signal;

/// Answers each call with its own message until the client closes.
void echo(Peer& peer) {
    peer.open();
    for (;;) {
        const RequestFrame frame = peer.receiveFrame();
        peer.send(responseFrame(frame.id, frame.message));
    }
}

/// Answers `calls` calls with their own message.
LoopbackServer::Script echo(int calls) {
    return [calls](Peer& peer) {
        peer.open();
        for (int i = 0; i < calls; ++i) {
            const RequestFrame frame = peer.receiveFrame();
            peer.send(responseFrame(frame.id, frame.message));
        }
        peer.expectClose();
    };
}

TARN_ON_PLAIN_AND_TLS(RawStream);

TEST_P(RawStream, FramesAreAsTypedBothWays) {
    // The frame contains the URL as given: the connection to the listener already exists.
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.expect(bytes("'@REQ' 00 00 00 01 00 00 00 0c 'http://h/api' "
                          "00 00 00 00 00 00 00 04 'ping' 38 07 57 df"));
        peer.send(bytes("'@RSP' 00 00 00 01 00 00 00 00 00 00 00 04 'pong' c4 b1 aa 43"));
        peer.expectClose();
    });
    const bool useTls = GetParam() == LoopbackServer::Mode::tls;
    const auto connection =
        CSingleStreamDispatcherConnection::start({useTls, "127.0.0.1", server.port()}, 0, "");
    std::string response = "left over";
    connection->SendRequest("http://h/api", "ping", response);
    EXPECT_EQ(response, "pong");
    connection->WaitForStop();
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(RawStream, IdsCountUpFromOneOnEachConnection) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        for (std::uint32_t id = 1; id <= 3; ++id) {
            const RequestFrame frame = peer.receiveFrame();
            EXPECT_EQ(frame.id, id);
            peer.send(responseFrame(id, ""));
        }
        peer.expectClose();
    });
    for (int round = 0; round < 2; ++round) {
        CRawStreamDispacher dispatcher(0, "", true);
        for (int i = 0; i < 3; ++i)
            dispatcher.sendRequest(server.url(), "x");
    }
    EXPECT_TRUE(server.waitForEnded(2));
}

TEST_P(RawStream, IdsWrapAt32Bits) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        for (const std::uint32_t id : {0xFFFFFFFFu, 0u, 1u}) {
            const RequestFrame frame = peer.receiveFrame();
            EXPECT_EQ(frame.id, id);
            peer.send(responseFrame(frame.id, "pong"));
        }
        peer.expectClose();
    });
    const bool useTls = GetParam() == LoopbackServer::Mode::tls;
    const auto connection = CSingleStreamDispatcherConnection::start(
        {useTls, "127.0.0.1", server.port()}, 0, "", 0xFFFFFFFE);
    for (int i = 0; i < 3; ++i) {
        std::string response;
        connection->SendRequest(server.url(), "ping", response);
        EXPECT_EQ(response, "pong");
    }
    connection->WaitForStop();
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(RawStream, TheUrlGoesOutAsGiven) {
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open();
        const RequestFrame frame = peer.receiveFrame();
        peer.send(responseFrame(frame.id, frame.url)).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::string url = server.url("/api/objects/7?x=y#z");
    EXPECT_EQ(dispatcher.sendRequest(url, "ping"), url);
}

TEST_P(RawStream, ASmallFrameLeavesAtOnce) {
    LoopbackServer server(GetParam(), echo(1));
    CRawStreamDispacher dispatcher(0, "", true);
    dispatcher.sendRequest(server.url(), "ping");
    const std::vector<support::sockets::Socket> sockets =
        support::sockets::connectedTo(server.port());
    ASSERT_EQ(sockets.size(), 1u);
    EXPECT_TRUE(support::sockets::hasNoDelay(sockets.front()));
}

TEST_P(RawStream, AReplyOfLengthZeroIsAnEmptyString) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveFrame();
        peer.send(bytes("'@RSP' 00 00 00 01 00 00 00 00 00 00 00 00 6c ae d2 2c")).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "");
}

TEST_P(RawStream, CarriesMessagesOfManySizes) {
    LoopbackServer server(GetParam(), [](Peer& peer) { echo(peer); });
    CRawStreamDispacher dispatcher(0, "", true);
    // Around the boundaries of memory growth, TLS records and single reads.
    for (const std::size_t size : {0u, 1u, 1019u, 1020u, 1021u, 16383u, 16384u, 16385u, 262139u,
                                   262140u, 262141u, 262144u, 262145u, 524284u, 1000000u}) {
        std::string message(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            message[i] = static_cast<char>(i * 31 + size);
        EXPECT_TRUE(dispatcher.sendRequest(server.url(), message) == message) << size;
    }
    server.stop();
}

TEST_P(RawStream, ReadsAReplyThatComesByteByByte) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveFrame();
        peer.sendByteByByte(responseFrame(1, "a reply in pieces")).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "a reply in pieces");
}

TEST_P(RawStream, RepliesMayComeInOneWrite) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        std::string all;
        for (int i = 0; i < 3; ++i) {
            const RequestFrame frame = peer.receiveFrame();
            all += responseFrame(frame.id, frame.message);
        }
        peer.send(all).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::vector<std::thread> callers;
    for (const std::string message : {"one", "two", "three"}) {
        callers.emplace_back(
            [&, message] { EXPECT_EQ(dispatcher.sendRequest(server.url(), message), message); });
    }
    for (std::thread& caller : callers)
        caller.join();
    EXPECT_EQ(server.connections(), 1u);
}

TEST_P(RawStream, RepliesMayOvertakeEachOther) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        const RequestFrame first = peer.receiveFrame();
        const RequestFrame second = peer.receiveFrame();
        peer.send(responseFrame(second.id, second.message));
        peer.send(responseFrame(first.id, first.message)).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::thread other([&] { EXPECT_EQ(dispatcher.sendRequest(server.url(), "one"), "one"); });
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "two"), "two");
    other.join();
}

TEST_P(RawStream, AReplyThatNobodyWaitsForIsDropped) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        const RequestFrame frame = peer.receiveFrame();
        peer.send(responseFrame(4711, "for nobody"))
            .send(responseFrame(0, std::string(300000, 'x')));
        peer.send(responseFrame(frame.id, "pong")).send(responseFrame(frame.id, "twice"));
        peer.send(responseFrame(peer.receiveFrame().id, "again")).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "again");
}

TEST_P(RawStream, BytesAfterAFrameBelongToTheNext) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.receiveFrame();
        const std::string second = responseFrame(2, "second");
        peer.send(responseFrame(1, "first") + second.substr(0, 7));
        peer.receiveFrame();
        peer.send(second.substr(7)).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "first");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "second");
}

TEST_P(RawStream, HostsThatDifferOnlyInCaseShareAConnection) {
    LoopbackServer server(GetParam(), echo(2));
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url("/a", "localhost"), "one"), "one");
    EXPECT_EQ(dispatcher.sendRequest(server.url("/b", "LocalHost"), "two"), "two");
    EXPECT_EQ(server.connections(), 1u);
}

TEST_P(RawStream, EndpointsHaveConnectionsOfTheirOwn) {
    LoopbackServer first(GetParam(), echo(1));
    LoopbackServer second(GetParam(), echo(1));
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(first.url(), "one"), "one");
    EXPECT_EQ(dispatcher.sendRequest(second.url(), "two"), "two");
    EXPECT_EQ(first.connections(), 1u);
    EXPECT_EQ(second.connections(), 1u);
}

TEST_P(RawStream, SixteenCallersAtOnceShareOneConnection) {
    LoopbackServer server(GetParam(), [](Peer& peer) { echo(peer); });
    CRawStreamDispacher dispatcher(0, "", true);
    std::vector<std::thread> callers;
    for (int caller = 0; caller < 16; ++caller) {
        callers.emplace_back([&, caller] {
            for (int call = 0; call < 100; ++call) {
                const std::string message = std::to_string(caller) + "/" + std::to_string(call);
                ASSERT_EQ(dispatcher.sendRequest(server.url(), message), message);
            }
        });
    }
    for (std::thread& caller : callers)
        caller.join();
    EXPECT_EQ(server.connections(), 1u);
    server.stop();
}

TEST_P(RawStream, WithoutReuseEachCallConnectsAgainAndIsClosedAfterwards) {
    LoopbackServer server(GetParam(), echo(1));
    {
        CRawStreamDispacher dispatcher(0, "", false);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "ping");
        EXPECT_EQ(server.connections(), 3u);
        EXPECT_TRUE(server.waitForEnded(3)); // each has seen its connection close
    }
}

TEST_P(RawStream, AnAsynchronousCallIsAnsweredOnTheConnectionsThread) {
    LoopbackServer server(GetParam(), echo(1));
    Signal done;
    std::thread::id handler;
    CRawStreamDispacher dispatcher(0, "", true);
    dispatcher.asyncSendRequest(
        server.url(), "ping",
        [&](const std::string& reply) {
            EXPECT_EQ(reply, "ping");
            handler = std::this_thread::get_id();
            done.raise();
        },
        [](const std::string& text) { ADD_FAILURE() << text; });
    ASSERT_TRUE(done.wait());
    EXPECT_NE(handler, std::this_thread::get_id());
}

TEST_P(RawStream, AHandlerMayCallOn) {
    constexpr int calls = 50; // more than the unwritten frames allowed per caller
    LoopbackServer server(GetParam(), echo(1 + calls));
    Signal done;
    std::atomic<int> answered = 0;
    CRawStreamDispacher dispatcher(0, "", true);
    const auto unexpected = [](const std::string& text) { ADD_FAILURE() << text; };
    dispatcher.asyncSendRequest(
        server.url(), "first",
        [&](const std::string&) {
            for (int i = 0; i < calls; ++i)
                dispatcher.asyncSendRequest(
                    server.url(), "next",
                    [&](const std::string&) {
                        if (++answered == calls)
                            done.raise();
                    },
                    unexpected);
        },
        unexpected);
    EXPECT_TRUE(done.wait());
}

TEST_P(RawStream, SixteenUnwrittenFramesBlockTheNextAsynchronousCaller) {
    Signal blocked;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open();
        blocked.wait();
        for (int i = 0; i < 17; ++i)
            peer.send(responseFrame(peer.receiveFrame().id, ""));
        peer.expectClose();
    });
    // The first frame is larger than the socket buffers, so nothing after it is written.
    const std::string large(16'000'000, 'x');
    std::atomic<int> answered = 0;
    Signal all;
    CRawStreamDispacher dispatcher(0, "", true);
    const auto call = [&](const std::string& request) {
        dispatcher.asyncSendRequest(
            server.url(), request,
            [&](const std::string&) {
                if (++answered == 17)
                    all.raise();
            },
            [](const std::string& text) { ADD_FAILURE() << text; });
    };
    call(large);
    for (int i = 1; i < 16; ++i)
        call("small");
    Signal queued;
    std::thread caller([&] {
        call("one too many");
        queued.raise();
    });
    EXPECT_FALSE(queued.wait(std::chrono::milliseconds(200)));
    blocked.raise();
    EXPECT_TRUE(queued.wait());
    caller.join();
    EXPECT_TRUE(all.wait());
}

TEST_P(RawStream, AfterStopConnectionsTheNextCallConnectsAgain) {
    LoopbackServer server(GetParam(), echo(1));
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "one"), "one");
    dispatcher.stopConnections();
    EXPECT_TRUE(server.waitForEnded(1));
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "two"), "two");
    EXPECT_EQ(server.connections(), 2u);
}

} // namespace
