// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/sockets.h"
#include "transport/http_call_dispatcher.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <set>
#include <thread>
#include <typeindex>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/loopback_server.h"
#include "tests/support/signal.h"
#include "tests/support/system/failures.h"
#include "tests/support/temporary_file.h"
#include "transport/invoke_exception.h"
#include "transport/plain_file_logger.h"
#include "transport/trace_exception.h"

namespace {

using namespace hessiancln;
using namespace std::chrono_literals;
using support::LoopbackServer;
using support::Peer;
using testing::Test;

using Mode = LoopbackServer::Mode;

std::string failureOf(ICallDispatcher& dispatcher, const std::string& url,
                      const std::string& request = "ping") {
    try {
        dispatcher.sendRequest(url, request);
        return "no failure";
    } catch (const invoke_exception& failure) {
        return failure.what();
    }
}

std::string failureOf(const std::string& url, HttpLimits limits = {}) {
    CHttpCallDispatcher dispatcher(0, "", limits);
    return failureOf(dispatcher, url);
}

/// A server that reads one request with the body "ping", sends this response, and closes.
LoopbackServer::Script answer(const std::string& response) {
    return [response](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\nping");
        peer.send(response);
        peer.close();
    };
}

const std::string okStart = "HTTP/1.1 200 OK\r\n";

/// Holds for both kinds of connection.
class Http : public testing::TestWithParam<Mode> {};

INSTANTIATE_TEST_SUITE_P(Both, Http, testing::Values(Mode::plain, Mode::tls), [](const auto& mode) {
    return mode.param == Mode::tls ? "Tls" : "Plain";
});

TEST_P(Http, SendsExactlyThisRequestAndReturnsTheBody) {
    std::string expected;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().expect(expected).send(okStart + "Content-Length: 4\r\n\r\npong");
        peer.expectClose();
    });
    expected = "POST /api/42 HTTP/1.1\r\n"
               "Host: 127.0.0.1:" +
               std::to_string(server.port()) +
               "\r\n"
               "User-Agent: NorvelHessianCln/1.0\r\n"
               "Content-Length: 4\r\n"
               "\r\n"
               "ping";
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(dispatcher.sendRequest(server.url("/api/42"), "ping"), "pong");
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(Http, AUrlWithoutPathGoesToTheRoot) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().expect("POST / HTTP/1.1\r\n").receiveUntil("ping");
        peer.send(okStart + "Content-Length: 0\r\n\r\n");
    });
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(dispatcher.sendRequest(server.url(""), "ping"), "");
}

TEST_P(Http, EachCallHasAConnectionOfItsOwn) {
    LoopbackServer server(GetParam(), answer(okStart + "Content-Length: 4\r\n\r\npong"));
    CHttpCallDispatcher dispatcher(0, "");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(server.connections(), 3u);
}

TEST_P(Http, ReadsAResponseThatComesByteByByte) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveUntil("ping");
        peer.sendByteByByte(okStart + "Content-Length: 4\r\n\r\npong");
    });
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
}

TEST_P(Http, ReadsAChunkedResponse) {
    LoopbackServer server(GetParam(), answer(okStart + "Transfer-Encoding: chunked\r\n\r\n"
                                                       "2\r\npo\r\n2\r\nng\r\n0\r\n\r\n"));
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
}

TEST_P(Http, ABodyWithoutLengthEndsWithTheConnection) {
    LoopbackServer server(GetParam(), answer("HTTP/1.0 200 OK\r\n\r\npong"));
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
}

TEST_P(Http, CarriesLargeBodiesBothWays) {
    const std::string large(3'000'000, 'x');
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\n");
        peer.expect(large).send(okStart + "Content-Length: 3000000\r\n\r\n" + large);
    });
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_TRUE(dispatcher.sendRequest(server.url(), large) == large);
}

TEST_P(Http, CarriesEveryByteValue) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\n");
        peer.expect(all).send(okStart + "Content-Length: 256\r\n\r\n" + all);
    });
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(dispatcher.sendRequest(server.url(), all), all);
}

TEST_P(Http, AStatusOtherThan200Raises) {
    LoopbackServer server(
        GetParam(), answer("HTTP/1.1 500 Internal Server Error\r\nContent-Length: 4\r\n\r\npong"));
    EXPECT_EQ(failureOf(server.url()), "Server returned status code 500 (Internal Server Error)");
}

TEST_P(Http, AnEmptyReasonIsShownAsOne) {
    LoopbackServer server(GetParam(), answer("HTTP/1.1 404 \r\nContent-Length: 0\r\n\r\n"));
    EXPECT_EQ(failureOf(server.url()), "Server returned status code 404 ()");
}

TEST_P(Http, AlsoOtherStatusCodesOfSuccessRaise) {
    LoopbackServer server(GetParam(), answer("HTTP/1.1 204 No Content\r\n\r\n"));
    EXPECT_EQ(failureOf(server.url()), "Server returned status code 204 (No Content)");
}

TEST_P(Http, APeerThatClosesWithoutAnAnswerRaises) {
    LoopbackServer server(GetParam(), answer(""));
    EXPECT_TRUE(failureOf(server.url()).starts_with("Failed to receive the HTTP response. Error "));
}

TEST_P(Http, APeerThatClosesWithinTheHeaderRaises) {
    LoopbackServer server(GetParam(), answer("HTTP/1.1 200 O"));
    EXPECT_TRUE(failureOf(server.url()).starts_with("Failed to receive the HTTP response. Error "));
}

TEST_P(Http, APeerThatClosesWithinTheBodyRaises) {
    LoopbackServer server(GetParam(), answer(okStart + "Content-Length: 5\r\n\r\npong"));
    EXPECT_TRUE(failureOf(server.url()).starts_with("Failed to receive the HTTP response. Error "));
}

TEST_P(Http, APeerThatResetsRaises) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveUntil("ping");
        peer.reset();
    });
    EXPECT_TRUE(failureOf(server.url()).starts_with("Failed to receive the HTTP response. Error "));
}

TEST_P(Http, AnAnswerThatIsNotHttpRaises) {
    LoopbackServer server(GetParam(), answer("220 mail.example ESMTP ready\r\n"));
    EXPECT_TRUE(failureOf(server.url()).starts_with("Failed to receive the HTTP response. Error "));
}

TEST_P(Http, AContentBeyondTheLimitRaises) {
    LoopbackServer server(GetParam(), answer(okStart + "Content-Length: 1073741825\r\n\r\n"));
    EXPECT_EQ(failureOf(server.url()),
              "Failed to receive the HTTP response. Error 9 (body limit exceeded)");
}

TEST_P(Http, AContentThatGrowsBeyondTheLimitRaises) {
    LoopbackServer server(GetParam(), answer(okStart + "Transfer-Encoding: chunked\r\n\r\n"
                                                       "5\r\n12345\r\n5\r\n12345\r\n0\r\n\r\n"));
    EXPECT_EQ(failureOf(server.url(), {.largestContent = 8}),
              "Failed to receive the HTTP response. Error 9 (body limit exceeded)");
}

TEST_P(Http, ASilentServerRaisesAfterTheTimeOut) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveUntil("ping");
        peer.expectClose();
    });
    EXPECT_EQ(failureOf(server.url(), {.readTimeout = 300ms}),
              "Failed to receive the HTTP response. Error " +
                  support::failures::timedOut().reported());
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(Http, ARefusalBeforeTheWholeRequestIsReadIsReported) {
    const std::string large(32'000'000, 'x'); // more than the socket buffers hold
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\n");
        peer.send("HTTP/1.1 413 Too Large\r\nContent-Length: 0\r\n\r\n");
        peer.receive(large.size());
    });
    CHttpCallDispatcher dispatcher(0, "");
    EXPECT_EQ(failureOf(dispatcher, server.url(), large),
              "Server returned status code 413 (Too Large)");
}

TEST_P(Http, APeerThatResetsWithinTheRequestRaises) {
    const std::string large(32'000'000, 'x');
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\n");
        peer.reset();
    });
    CHttpCallDispatcher dispatcher(0, "");
    const std::string text = failureOf(dispatcher, server.url(), large);
    EXPECT_TRUE(text.starts_with("Failed to send the HTTP request. Error ")) << text;
}

TEST_P(Http, ManyThreadsMaySendAtOnce) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveUntil("\r\n\r\n");
        peer.send(okStart + "Content-Length: 4\r\n\r\n" + peer.receive(4));
    });
    CHttpCallDispatcher dispatcher(0, "");
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&, request = "req" + std::to_string(i)] {
            for (int call = 0; call < 5; ++call)
                EXPECT_EQ(dispatcher.sendRequest(server.url(), request), request);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(server.connections(), 40u);
}

TEST_P(Http, AnAsynchronousCallEndsBeforeTheDispatcher) {
    LoopbackServer server(GetParam(), answer(okStart + "Content-Length: 4\r\n\r\npong"));
    std::string reply;
    {
        support::Signal done;
        CHttpCallDispatcher dispatcher(0, "");
        dispatcher.asyncSendRequest(
            server.url(), "ping",
            [&](const std::string& text) {
                reply = text;
                done.raise();
            },
            [](const std::string& text) { ADD_FAILURE() << text; });
        EXPECT_TRUE(done.wait());
    }
    EXPECT_EQ(reply, "pong");
}

TEST_P(Http, ASmallRequestLeavesAtOnce) {
    std::vector<bool> noDelay;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveUntil("ping");
        for (const support::sockets::Socket socket : support::sockets::connectedTo(server.port()))
            noDelay.push_back(support::sockets::hasNoDelay(socket));
        peer.send(okStart + "Content-Length: 4\r\n\r\npong");
    });
    CHttpCallDispatcher dispatcher(0, "");
    dispatcher.sendRequest(server.url(), "ping");
    EXPECT_EQ(noDelay, std::vector<bool>{true});
}

TEST_P(Http, AWorkerNeverFindsAHalfDestroyedDispatcher) {
    LoopbackServer server(GetParam(), answer(okStart + "Content-Length: 4\r\n\r\npong"));
    support::Signal stopping;
    std::mutex mutex;
    std::set<std::type_index> seen;
    std::atomic<int> taken = 0;
    support::Signal allTaken;
    const auto ignore = [](const std::string&) {};

    std::unique_ptr<ICallDispatcher> dispatcher = std::make_unique<CHttpCallDispatcher>(0, "");
    ICallDispatcher& used = *dispatcher;
    for (int i = 0; i < 4; ++i) {
        used.asyncSendRequest(
            server.url(), "ping",
            [&](const std::string&) {
                if (++taken == 4)
                    allTaken.raise();
                EXPECT_TRUE(stopping.wait());
                const std::lock_guard lock(mutex);
                seen.insert(typeid(used));
            },
            [](const std::string& text) { ADD_FAILURE() << text; });
    }
    ASSERT_TRUE(allTaken.wait());
    for (int i = 0; i < 16; ++i)
        used.asyncSendRequest(server.url(), "ping", ignore, ignore);
    // The queue is full, so this call returns only once the destructor has stopped the dispatcher.
    std::thread late([&] { used.asyncSendRequest(server.url(), "ping", ignore, ignore); });
    std::thread destroyer([&] { dispatcher.reset(); });
    late.join();
    stopping.raise();
    destroyer.join();
    EXPECT_EQ(seen, (std::set<std::type_index>{typeid(CHttpCallDispatcher)}));
}

TEST(HttpFailures, AUrlWithoutHttpRaises) {
    EXPECT_EQ(failureOf("ftp://agent/"),
              "Invalid URL (does not start with http/https): 'ftp://agent/'");
}

TEST(HttpFailures, APortOfZeroRaises) {
    EXPECT_EQ(failureOf("http://127.0.0.1:0/"), "Invalid port component in host '127.0.0.1:0'");
}

TEST(HttpFailures, AClosedPortRaises) {
    const std::string port = std::to_string(support::closedPort());
    EXPECT_EQ(failureOf("https://127.0.0.1:" + port + "/"),
              "Failed to connect to '127.0.0.1' on port " + port + ". O/S error " +
                  support::failures::refused().reported());
}

TEST(HttpFailures, APortThatCannotExistRaises) {
    EXPECT_TRUE(failureOf("http://127.0.0.1:70000/")
                    .starts_with("Failed to connect to '127.0.0.1' on port 70000. O/S error "));
}

TEST(HttpFailures, AHostThatCannotExistRaises) {
    EXPECT_TRUE(failureOf("http://no-such-host.invalid:80/")
                    .starts_with("Failed to connect to 'no-such-host.invalid' on port 80. O/S "
                                 "error "));
}

TEST(HttpFailures, APlainServerBehindHttpsRaises) {
    LoopbackServer server(Mode::plain, [](Peer& peer) {
        peer.receive(1);
        peer.send("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n");
        peer.close();
    });
    const std::string text = failureOf("https://127.0.0.1:" + std::to_string(server.port()) + "/");
    EXPECT_TRUE(text.starts_with("SSL Handshake failed. Error ")) << text;
    EXPECT_TRUE(text.ends_with("(wrong version number)")) << text;
}

TEST(HttpFailures, APeerThatClosesDuringTheHandshakeRaises) {
    LoopbackServer server(Mode::tls, [](Peer& peer) { peer.close(); });
    const std::string text = failureOf(server.url());
    EXPECT_TRUE(text.starts_with("SSL Handshake failed. Error ")) << text;
}

TEST(HttpFailures, AServerThatIsSilentInTheHandshakeRaisesAfterTheTimeOut) {
    support::Signal done;
    LoopbackServer server(Mode::tls, [&](Peer&) { done.wait(); });
    EXPECT_EQ(failureOf(server.url(), {.readTimeout = 300ms}),
              "SSL Handshake failed. Error " + support::failures::timedOut().reported());
    done.raise();
}

TEST(HttpTrace, ABrokenTraceFileFailsTheCall) {
    LoopbackServer server(Mode::plain, answer(okStart + "Content-Length: 4\r\n\r\npong"));
    const support::TemporaryFile missing;
    CHttpCallDispatcher dispatcher(1, missing.impossiblePath());
    EXPECT_THROW(dispatcher.sendRequest(server.url(), "ping"), trace_exception);
    EXPECT_EQ(server.connections(), 0u);
}

TEST(HttpLog, ReportsTheSizeOfTheRequestOnceAFileIsOpen) {
    const support::TemporaryFile file;
    LoopbackServer server(Mode::plain, answer(okStart + "Content-Length: 4\r\n\r\npong"));
    CHttpCallDispatcher dispatcher(0, "");
    ASSERT_TRUE(pion::PlainFileLogger::instance().open(file.path()));
    dispatcher.sendRequest(server.url(), "ping");
    pion::PlainFileLogger::instance().close();
    const std::string size =
        std::to_string(std::string("POST /api HTTP/1.1\r\nHost: 127.0.0.1:\r\nUser-Agent: "
                                   "NorvelHessianCln/1.0\r\nContent-Length: 4\r\n\r\nping")
                           .size() +
                       std::to_string(server.port()).size());
    EXPECT_TRUE(file.text().ends_with(" : DEBUG : Sent HTTP request chunk of " + size + " bytes\n"))
        << file.text();
}

} // namespace
