// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Streams that fail: each failure has its text, and no caller is left waiting.
#include <future>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include "tests/support/bytes.h"
#include "tests/support/signal.h"
#include "tests/support/system/failures.h"
#include "tests/support/system/sockets.h"
#include "tests/transport/raw_stream_fixture.h"
#include "transport/raw_stream_dispatcher.h"
#include "transport/trace_exception.h"

namespace {

using namespace hessiancln;
using support::bytes;
using support::LoopbackServer;
using support::Peer;
using support::responseFrame;
using support::Signal;
using Mode = LoopbackServer::Mode;

class RawStreamFailures : public RawStream {
protected:
    /// The text thrown by a single call to a server that plays this script.
    static std::string failureWith(LoopbackServer::Script script) {
        LoopbackServer server(GetParam(), std::move(script));
        CRawStreamDispacher dispatcher(0, "", true);
        return failureOf(dispatcher, server.url());
    }

    /// Reads one request, sends this response, and closes.
    static LoopbackServer::Script answer(const std::string& response) {
        return [response](Peer& peer) {
            peer.open().receiveFrame();
            peer.send(response);
            peer.close();
        };
    }
};

TARN_ON_PLAIN_AND_TLS(RawStreamFailures);

TEST_P(RawStreamFailures, AClosedPort) {
    const std::string scheme = GetParam() == Mode::tls ? "https" : "http";
    const std::string port = std::to_string(support::closedPort());
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(failureOf(dispatcher, scheme + "://127.0.0.1:" + port + "/api"),
              "Failed to connect to '127.0.0.1' on port " + port + ". O/S error " +
                  support::failures::refused().reported());
}

TEST_P(RawStreamFailures, AHostThatCannotExist) {
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_TRUE(failureOf(dispatcher, "https://no-such-host.invalid:4411/")
                    .starts_with("Failed to connect to 'no-such-host.invalid' on port 4411. O/S "
                                 "error "));
}

TEST_P(RawStreamFailures, APortThatCannotExist) {
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_TRUE(failureOf(dispatcher, "https://127.0.0.1:70000/")
                    .starts_with("Failed to connect to '127.0.0.1' on port 70000. O/S error "));
}

TEST_P(RawStreamFailures, AUrlThatIsNone) {
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(failureOf(dispatcher, "api"), "Invalid URL (does not start with http/https): 'api'");
    EXPECT_EQ(failureOf(dispatcher, "http://h:0/"), "Invalid port component in host 'h:0'");
}

TEST_P(RawStreamFailures, APeerThatClosesAtOnce) {
    const std::string text = failureWith([](Peer& peer) { peer.close(); });
    EXPECT_TRUE(text.starts_with(GetParam() == Mode::tls ? "SSL Handshake failed. Error "
                                                         : "Receive failed (header): "))
        << text;
}

TEST_P(RawStreamFailures, APeerThatClosesAfterTheRequest) {
    EXPECT_EQ(failureWith(answer("")), "Receive failed (header): " + cut());
}

TEST_P(RawStreamFailures, APeerThatClosesPolitely) {
    EXPECT_EQ(failureWith([](Peer& peer) {
                  peer.open().receiveFrame();
                  peer.closePolitely();
              }),
              "Receive failed (header): End of file (2)");
}

TEST_P(RawStreamFailures, APeerThatResets) {
    const auto [number, text] = support::failures::reset();
    EXPECT_EQ(failureWith([](Peer& peer) {
                  peer.open().receiveFrame();
                  peer.reset();
              }),
              "Receive failed (header): " + text + " (" + std::to_string(number) + ")");
}

TEST_P(RawStreamFailures, APeerThatClosesWithinTheHeader) {
    EXPECT_EQ(failureWith(answer(responseFrame(1, "pong").substr(0, 15))),
              "Receive failed (header): " + cut());
}

TEST_P(RawStreamFailures, APeerThatClosesWithinTheData) {
    EXPECT_EQ(failureWith(answer(responseFrame(1, "pong").substr(0, 18))),
              "Receive failed (data): " + cut());
}

TEST_P(RawStreamFailures, APeerThatClosesWithinLargeData) {
    EXPECT_EQ(failureWith(answer(responseFrame(1, std::string(1'000'000, 'x')).substr(0, 700'000))),
              "Receive failed (data): " + cut());
}

TEST_P(RawStreamFailures, APeerThatClosesWithinTheChecksum) {
    const std::string frame = responseFrame(1, "pong");
    EXPECT_EQ(failureWith(answer(frame.substr(0, frame.size() - 1))),
              "Receive failed (data): " + cut());
}

TEST_P(RawStreamFailures, APeerThatClosesWithinTheRequest) {
    // The client is then still writing, which must neither end the program nor wait forever.
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receive(12);
        peer.reset();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::string text = failureOf(dispatcher, server.url(), std::string(32'000'000, 'x'));
    EXPECT_TRUE(text.starts_with("Receive failed (header): ")) << text;
}

TEST_P(RawStreamFailures, AWriteThatFailsWhileThePeerIsSilent) {
    Signal failed;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong"));
        failed.wait(); // neither a reply nor an end of stream is sent
    });
    CRawStreamDispacher dispatcher(0, "", true);
    ASSERT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    const std::vector<support::sockets::Socket> sockets =
        support::sockets::connectedTo(server.port());
    ASSERT_EQ(sockets.size(), 1u);
    support::sockets::shutdownWrites(sockets.front()); // a write fails, the read goes on waiting

    auto call = std::async([&] { return failureOf(dispatcher, server.url()); });
    EXPECT_EQ(call.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    failed.raise();
    EXPECT_EQ(call.get(), "Receive failed (header): " + cut());
}

TEST_P(RawStreamFailures, FourOtherBytesAtTheStart) {
    EXPECT_EQ(failureWith(answer("HTTP/1.1 400 Bad Request\r\n\r\n")),
              "Remote side did not send a response back. (485454502F312E312034303020426164)");
}

TEST_P(RawStreamFailures, FourOtherBytesWithHighOnesAmongThem) {
    EXPECT_EQ(failureWith(answer(bytes("'@RSQ' 80 01 02 03 04 05 06 07 08 09 0a FE"))),
              "Remote side did not send a response back. (40525351FF0102030405060708090AFFFFFFFE)");
}

TEST_P(RawStreamFailures, AWrongChecksum) {
    // The correct one is C4B1AA43, printed as a signed number.
    EXPECT_EQ(
        failureWith(answer(bytes("'@RSP' 00 00 00 01 00 00 00 00 00 00 00 04 'pong' 00 00 00 01"))),
        "Response checksums mismatch: -994989501 != 1");
}

TEST_P(RawStreamFailures, AWrongChecksumEndsAllCallsOfTheConnection) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.receiveFrame();
        peer.receiveFrame();
        peer.send(bytes("'@RSP' 00 00 00 01 00 00 00 00 00 00 00 04 'pong' 00 00 00 01"));
        peer.expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::string expected = "Response checksums mismatch: -994989501 != 1";
    std::thread other([&] { EXPECT_EQ(failureOf(dispatcher, server.url()), expected); });
    EXPECT_EQ(failureOf(dispatcher, server.url()), expected);
    other.join();
    EXPECT_EQ(failureOf(dispatcher, server.url()), expected);
    EXPECT_TRUE(server.waitForEnded(1)); // the peer has seen the end too
}

TEST_P(RawStreamFailures, ALengthOfTwoToTheFortyIsRefused) {
    EXPECT_EQ(failureWith(answer(bytes("'@RSP' 00 00 00 01 00 00 01 00 00 00 00 00"))),
              "Failed to allocate 1099511628800 bytes for data receiving");
}

TEST_P(RawStreamFailures, ALengthThatIsOneMoreThanAMessageCanBeIsRefused) {
    EXPECT_EQ(failureWith(answer(bytes("'@RSP' 00 00 00 01 00 00 00 01 00 00 00 00"))),
              "Failed to allocate 4294968320 bytes for data receiving");
}

TEST_P(RawStreamFailures, ALengthNearTwoToTheSixtyFourIsRefused) {
    for (const char* length : {"FF FF FF FF FF FF FF FF", "FF FF FF FF FF FF FF FC",
                               "FF FF FF FF FF FF FF FB", "FF FF FF FF FF FF FC 00"}) {
        EXPECT_EQ(failureWith(answer(bytes("'@RSP' 00 00 00 01 " + std::string(length)))),
                  "Failed to allocate 18446744073709551615 bytes for data receiving");
    }
}

TEST_P(RawStreamFailures, EveryWaitingCallerFails) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        for (int i = 0; i < 16; ++i)
            peer.receiveFrame();
        peer.close();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    std::vector<std::thread> callers;
    for (int i = 0; i < 16; ++i) {
        callers.emplace_back([&] {
            EXPECT_EQ(failureOf(dispatcher, server.url()), "Receive failed (header): " + cut());
        });
    }
    for (std::thread& caller : callers)
        caller.join();
}

TEST_P(RawStreamFailures, AStreamThatDiedRaisesItsTextAgainWithoutConnecting) {
    LoopbackServer server(GetParam(), answer(""));
    CRawStreamDispacher dispatcher(0, "", true);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(failureOf(dispatcher, server.url()), "Receive failed (header): " + cut());
    EXPECT_EQ(server.connections(), 1u);
}

TEST_P(RawStreamFailures, AStreamThatDiedWhileIdleRaisesItsText) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong"));
        peer.close();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    ASSERT_TRUE(server.waitForEnded(1));
    // The call may precede the end of the stream; it fails in either case.
    const std::string text = failureOf(dispatcher, server.url());
    EXPECT_TRUE(text.starts_with("Receive failed (header): ")) << text;
    EXPECT_EQ(failureOf(dispatcher, server.url()), text);
    EXPECT_EQ(server.connections(), 1u);
}

TEST_P(RawStreamFailures, AConnectThatFailedIsRetried) {
    const std::string scheme = GetParam() == Mode::tls ? "https" : "http";
    const std::uint16_t port = support::closedPort();
    const std::string url = scheme + "://127.0.0.1:" + std::to_string(port) + "/api";
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_TRUE(failureOf(dispatcher, url).starts_with("Failed to connect to "));

    LoopbackServer server(
        GetParam(),
        [](Peer& peer) {
            peer.open();
            peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
        },
        port);
    EXPECT_EQ(dispatcher.sendRequest(url, "ping"), "pong");
}

TEST_P(RawStreamFailures, WithoutReuseAFailureIsReportedAndTheNextCallConnectsAgain) {
    LoopbackServer server(GetParam(), std::vector<LoopbackServer::Script>{
                                          answer(""), answer(responseFrame(1, "pong"))});
    CRawStreamDispacher dispatcher(0, "", false);
    EXPECT_EQ(failureOf(dispatcher, server.url()), "Receive failed (header): " + cut());
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
}

TEST_P(RawStreamFailures, AnAsynchronousCallIsReportedOnce) {
    LoopbackServer server(GetParam(), answer(""));
    std::promise<std::string> reported;
    CRawStreamDispacher dispatcher(0, "", true);
    dispatcher.asyncSendRequest(
        server.url(), "ping", [](const std::string&) { ADD_FAILURE() << "no reply was sent"; },
        [&](const std::string& text) { reported.set_value(text); });
    EXPECT_EQ(reported.get_future().get(), "Receive failed (header): " + cut());
}

TEST_P(RawStreamFailures, AnAsynchronousCallToADeadStreamIsReported) {
    LoopbackServer server(GetParam(), answer(""));
    CRawStreamDispacher dispatcher(0, "", true);
    const std::string expected = "Receive failed (header): " + cut();
    EXPECT_EQ(failureOf(dispatcher, server.url()), expected);
    std::promise<std::string> reported;
    dispatcher.asyncSendRequest(
        server.url(), "ping", [](const std::string&) { ADD_FAILURE() << "the stream is dead"; },
        [&](const std::string& text) { reported.set_value(text); });
    EXPECT_EQ(reported.get_future().get(), expected);
    EXPECT_EQ(server.connections(), 1u);
}

TEST_P(RawStreamFailures, AsynchronousCallsAreReportedInTheOrderOfTheirIds) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        for (int i = 0; i < 5; ++i)
            peer.receiveFrame();
        peer.close();
    });
    std::vector<int> order;
    Signal all;
    CRawStreamDispacher dispatcher(0, "", true);
    for (int i = 0; i < 5; ++i) {
        dispatcher.asyncSendRequest(
            server.url(), "ping", [](const std::string&) { ADD_FAILURE(); },
            [&, i](const std::string&) {
                order.push_back(i);
                if (i == 4)
                    all.raise();
                throw std::runtime_error("must not keep the others from hearing of it");
            });
    }
    ASSERT_TRUE(all.wait());
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST_P(RawStreamFailures, AHandlerThatRaisesEndsTheConnectionWithItsText) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
    });
    std::promise<std::string> reported;
    CRawStreamDispacher dispatcher(0, "", true);
    dispatcher.asyncSendRequest(
        server.url(), "ping",
        [](const std::string&) { throw std::runtime_error("the handler failed"); },
        [&](const std::string& text) { reported.set_value(text); });
    EXPECT_EQ(reported.get_future().get(), "the handler failed");
    EXPECT_EQ(failureOf(dispatcher, server.url()), "the handler failed");
}

TEST_P(RawStreamFailures, AHandlerThatRaisesSomethingWithoutATextClosesTheConnection) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
    });
    std::promise<std::string> reported;
    CRawStreamDispacher dispatcher(0, "", true);
    dispatcher.asyncSendRequest(
        server.url(), "ping", [](const std::string&) { throw 42; },
        [&](const std::string& text) { reported.set_value(text); });
    EXPECT_EQ(reported.get_future().get(), "Stream connection closed");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong"); // its connection was closed
    EXPECT_EQ(server.connections(), 2u);
}

TEST_P(RawStreamFailures, ABlockingCallInAHandlerRaisesInPlaceOfWaitingForItself) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong"));
        peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
    });
    std::promise<std::string> reported;
    CRawStreamDispacher dispatcher(0, "", true);
    dispatcher.asyncSendRequest(
        server.url(), "ping",
        [&](const std::string&) { reported.set_value(failureOf(dispatcher, server.url())); },
        [](const std::string& text) { ADD_FAILURE() << text; });
    EXPECT_EQ(reported.get_future().get(),
              "A handler can't wait for a reply on its own connection");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong"); // the stream continues
}

TEST(RawStreamHandshake, APlainServerBehindHttps) {
    LoopbackServer server(Mode::plain, [](Peer& peer) {
        peer.receive(1);
        peer.send("HTTP/1.1 400 Bad Request\r\n\r\n");
        peer.close();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::string text =
        failureOf(dispatcher, "https://127.0.0.1:" + std::to_string(server.port()) + "/");
    EXPECT_TRUE(text.starts_with("SSL Handshake failed. Error ")) << text;
    EXPECT_TRUE(text.ends_with("(wrong version number)")) << text;
}

TEST(RawStreamHandshake, APeerThatClosesDuringTheHandshake) {
    LoopbackServer server(Mode::tls, [](Peer& peer) {
        peer.receive(5);
        peer.close();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_TRUE(failureOf(dispatcher, server.url()).starts_with("SSL Handshake failed. Error "));
}

TEST(RawStreamHandshake, OneThatFailedIsRetried) {
    LoopbackServer server(Mode::tls,
                          std::vector<LoopbackServer::Script>{
                              [](Peer& peer) { peer.close(); },
                              [](Peer& peer) {
                                  peer.open();
                                  peer.send(responseFrame(peer.receiveFrame().id, "pong"));
                                  peer.expectClose();
                              }});
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_TRUE(failureOf(dispatcher, server.url()).starts_with("SSL Handshake failed. Error "));
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
}

} // namespace
