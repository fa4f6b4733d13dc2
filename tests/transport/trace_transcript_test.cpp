// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The trace file of a call: the exact lines of each thread, in order.
#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "tests/support/system/failures.h"
#include "tests/support/temporary_file.h"
#include "tests/transport/raw_stream_fixture.h"
#include "transport/http_call_dispatcher.h"
#include "transport/raw_stream_dispatcher.h"
#include "transport/trace_exception.h"

namespace {

using namespace hessiancln;
using support::LoopbackServer;
using support::Peer;
using support::responseFrame;
using support::TemporaryFile;
using Lines = std::vector<std::string>;
using Mode = LoopbackServer::Mode;

/// The lines of the file without their prefix, one list for each thread, in the order in which the
/// threads first wrote.
std::vector<Lines> threadsOf(const TemporaryFile& file) {
    static const std::regex prefix(R"(^\d+ \((\d+)\) \d{1,2}/\d{1,2}/\d{4} \d\d:\d\d:\d\d (.*)$)");
    std::vector<std::string> order;
    std::map<std::string, Lines> threads;
    for (const std::string& line : file.lines()) {
        std::smatch parts;
        if (!std::regex_match(line, parts, prefix)) {
            ADD_FAILURE() << "no prefix: " << line;
            continue;
        }
        if (!threads.contains(parts[1]))
            order.push_back(parts[1]);
        threads[parts[1]].push_back(parts[2]);
    }
    std::vector<Lines> result;
    for (const std::string& thread : order)
        result.push_back(threads[thread]);
    return result;
}

/// The lines at this level: those starting with "+" are the details of level 2.
Lines atLevel(std::uint32_t level, const Lines& all) {
    Lines lines;
    for (const std::string& line : all)
        if (!line.starts_with('+'))
            lines.push_back(line);
        else if (level == 2)
            lines.push_back(line.substr(1));
    return lines;
}

void pong(Peer& peer) {
    peer.open();
    peer.send(responseFrame(peer.receiveFrame().id, "pong")).expectClose();
}

/// As a detail of level 2.
std::string tracedRefusal() {
    const auto [number, text] = support::failures::refused();
    return "+connect: " + std::to_string(number) + " msg: " + text;
}

std::string portOf(const LoopbackServer& server) {
    return std::to_string(server.port());
}

class RawTrace : public testing::TestWithParam<std::uint32_t> {};
class HttpTrace : public testing::TestWithParam<std::uint32_t> {};

INSTANTIATE_TEST_SUITE_P(Level, RawTrace, testing::Values(1, 2));
INSTANTIATE_TEST_SUITE_P(Level, HttpTrace, testing::Values(1, 2));

const std::string connection = "CSingleStreamDispatcherConnection::";

TEST_P(RawTrace, OfACallThatSucceeds) {
    const TemporaryFile file;
    LoopbackServer server(Mode::tls, pong);
    {
        CRawStreamDispacher dispatcher(GetParam(), file.path(), true);
        dispatcher.sendRequest(server.url(), "ping");
    }
    const auto threads = threadsOf(file);
    ASSERT_EQ(threads.size(), 2u);
    EXPECT_EQ(threads[0],
              (Lines{"CRawStreamDispacher::sendRequest ENTER", connection + "SendRequest ENTER",
                     connection + "SendRequest LEAVE", "CRawStreamDispacher::sendRequest LEAVE",
                     connection + "WaitForStop ENTER", connection + "WaitForStop LEAVE"}));
    Lines stream = threads[1];
    // The completion of the write may be processed before or after the reply.
    const auto written =
        std::find(stream.begin() + 1, stream.end(), connection + "prepareRequest LEAVE");
    ASSERT_NE(written, stream.end());
    EXPECT_EQ(std::count(written, stream.end(), connection + "startWriting ENTER"), 2);
    EXPECT_EQ(std::count(written, stream.end(), connection + "startWriting LEAVE"), 2);
    std::erase(stream, connection + "startWriting ENTER");
    std::erase(stream, connection + "startWriting LEAVE");
    EXPECT_EQ(stream, atLevel(GetParam(), {connection + "IOProcessingThread ENTER",
                                           "+boost::asio::ssl::context created",
                                           "+connecting: 127.0.0.1 port: " + portOf(server),
                                           "+issue async_read", connection + "prepareRequest ENTER",
                                           connection + "prepareRequest LEAVE",
                                           connection + "readResponseHeaderComplete ENTER",
                                           connection + "readResponseHeaderComplete LEAVE",
                                           connection + "IOProcessingThread LEAVE"}));
}

TEST_P(RawTrace, OfACallThatIsCutOff) {
    const TemporaryFile file;
    LoopbackServer server(Mode::plain, [](Peer& peer) {
        peer.open().receiveFrame();
        peer.close();
    });
    {
        CRawStreamDispacher dispatcher(GetParam(), file.path(), true);
        EXPECT_NE(failureOf(dispatcher, server.url()), "no failure");
    }
    const auto threads = threadsOf(file);
    ASSERT_EQ(threads.size(), 2u);
    EXPECT_EQ(threads[0],
              (Lines{"CRawStreamDispacher::sendRequest ENTER", connection + "SendRequest ENTER",
                     connection + "SendRequest EXCEPTION", connection + "WaitForStop ENTER",
                     connection + "WaitForStop LEAVE"}));
    // The header's completion throws, so its ENTER has no LEAVE.
    EXPECT_EQ(
        threads[1],
        atLevel(GetParam(),
                {connection + "IOProcessingThread ENTER", "+boost::asio::ssl::context created",
                 "+connecting: 127.0.0.1 port: " + portOf(server), "+issue async_read",
                 connection + "prepareRequest ENTER", connection + "prepareRequest LEAVE",
                 connection + "startWriting ENTER", connection + "startWriting LEAVE",
                 connection + "startWriting ENTER", connection + "startWriting LEAVE",
                 connection + "readResponseHeaderComplete ENTER",
                 connection + "IOProcessingThread LEAVE"}));
}

TEST_P(RawTrace, OfAConnectThatFails) {
    const TemporaryFile file;
    const std::string port = std::to_string(support::closedPort());
    {
        CRawStreamDispacher dispatcher(GetParam(), file.path(), true);
        EXPECT_NE(failureOf(dispatcher, "http://127.0.0.1:" + port + "/"), "no failure");
    }
    const auto threads = threadsOf(file);
    ASSERT_EQ(threads.size(), 2u);
    EXPECT_EQ(threads[1],
              atLevel(GetParam(), {connection + "IOProcessingThread ENTER",
                                   "+boost::asio::ssl::context created",
                                   "+connecting: 127.0.0.1 port: " + port, tracedRefusal()}));
}

TEST_P(RawTrace, OfAHandshakeThatFails) {
    const TemporaryFile file;
    LoopbackServer server(Mode::tls, [](Peer& peer) {
        peer.receive(5);
        peer.close();
    });
    std::string text;
    {
        CRawStreamDispacher dispatcher(GetParam(), file.path(), true);
        text = failureOf(dispatcher, server.url());
    }
    // "SSL Handshake failed. Error 1 (stream truncated)" is traced as its code and its text.
    static const std::regex parts(R"(SSL Handshake failed\. Error (-?\d+) \((.*)\))");
    std::smatch error;
    ASSERT_TRUE(std::regex_match(text, error, parts)) << text;
    const auto threads = threadsOf(file);
    ASSERT_EQ(threads.size(), 2u);
    EXPECT_EQ(threads[1],
              atLevel(GetParam(), {connection + "IOProcessingThread ENTER",
                                   "+boost::asio::ssl::context created",
                                   "+connecting: 127.0.0.1 port: " + portOf(server),
                                   "+SSL Handshake: " + error.str(1) + " msg: " + error.str(2)}));
}

TEST_P(RawTrace, OfAnAsynchronousCallOnAConnectionMadeByABlockingOne) {
    const TemporaryFile file;
    LoopbackServer server(Mode::plain, [](Peer& peer) {
        peer.open();
        peer.send(responseFrame(peer.receiveFrame().id, "pong"));
        peer.receiveFrame();
        peer.close();
    });
    {
        CRawStreamDispacher dispatcher(GetParam(), file.path(), true);
        dispatcher.sendRequest(server.url(), "ping");
        dispatcher.asyncSendRequest(
            server.url(), "ping", [](const std::string&) { ADD_FAILURE(); },
            [](const std::string&) {});
        ASSERT_TRUE(server.waitForEnded(1));
    }
    const auto threads = threadsOf(file);
    ASSERT_EQ(threads.size(), 2u);
    const Lines caller(threads[0].begin() + 4, threads[0].end());
    EXPECT_EQ(
        caller,
        (Lines{"CRawStreamDispacher::asyncSendRequest ENTER", connection + "asyncSendRequest ENTER",
               connection + "asyncSendRequest LEAVE", "CRawStreamDispacher::asyncSendRequest LEAVE",
               connection + "WaitForStop ENTER", connection + "WaitForStop LEAVE"}));
    const auto enter = std::find(threads[1].begin(), threads[1].end(),
                                 connection + "enqueueAsyncSendRequest ENTER");
    ASSERT_GE(threads[1].end() - enter, 6);
    EXPECT_EQ(
        Lines(enter, enter + 6),
        (Lines{connection + "enqueueAsyncSendRequest ENTER", connection + "prepareRequest ENTER",
               connection + "prepareRequest LEAVE", connection + "startWriting ENTER",
               connection + "startWriting LEAVE", connection + "enqueueAsyncSendRequest LEAVE"}));
}

TEST_P(RawTrace, OfAConnectionMadeByAnAsynchronousCallIsOff) {
    const TemporaryFile file;
    LoopbackServer server(Mode::plain, [](Peer& peer) {
        peer.open().receiveFrame();
        peer.close();
    });
    {
        CRawStreamDispacher dispatcher(GetParam(), file.path(), true);
        dispatcher.asyncSendRequest(
            server.url(), "ping", [](const std::string&) { ADD_FAILURE(); },
            [](const std::string&) {});
        ASSERT_TRUE(server.waitForEnded(1));
    }
    EXPECT_EQ(threadsOf(file),
              std::vector<Lines>{(Lines{"CRawStreamDispacher::asyncSendRequest ENTER",
                                        "CRawStreamDispacher::asyncSendRequest LEAVE"})});
}

TEST_P(HttpTrace, OfACallThatSucceeds) {
    const TemporaryFile file;
    LoopbackServer server(Mode::tls, [](Peer& peer) {
        peer.open().receiveUntil("ping");
        peer.send("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\npong").expectClose();
    });
    CHttpCallDispatcher dispatcher(GetParam(), file.path());
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(threadsOf(file),
              std::vector<Lines>{atLevel(
                  GetParam(), {"CHttpCallDispatcher::sendRequest ENTER",
                               "+parseURL: 127.0.0.1 port: " + portOf(server),
                               "+boost::asio::ssl::context created", "+connected: 127.0.0.1",
                               "CHttpCallDispatcher::sendRequest LEAVE"})});
}

TEST_P(HttpTrace, OfAConnectThatFails) {
    const TemporaryFile file;
    const std::string port = std::to_string(support::closedPort());
    CHttpCallDispatcher dispatcher(GetParam(), file.path());
    EXPECT_NE(failureOf(dispatcher, "http://127.0.0.1:" + port + "/"), "no failure");
    EXPECT_EQ(threadsOf(file),
              std::vector<Lines>{
                  atLevel(GetParam(), {"CHttpCallDispatcher::sendRequest ENTER",
                                       "+parseURL: 127.0.0.1 port: " + port,
                                       "+boost::asio::ssl::context created", tracedRefusal()})});
}

TEST_P(HttpTrace, OfAHandshakeThatFails) {
    const TemporaryFile file;
    LoopbackServer server(Mode::plain, [](Peer& peer) {
        peer.receive(1);
        peer.send("220 mail.example ESMTP ready\r\n");
        peer.close();
    });
    CHttpCallDispatcher dispatcher(GetParam(), file.path());
    const std::string text = failureOf(dispatcher, "https://127.0.0.1:" + portOf(server) + "/");
    static const std::regex parts(R"(SSL Handshake failed\. Error (-?\d+) \((.*)\))");
    std::smatch error;
    ASSERT_TRUE(std::regex_match(text, error, parts)) << text;
    EXPECT_EQ(threadsOf(file),
              std::vector<Lines>{atLevel(
                  GetParam(), {"CHttpCallDispatcher::sendRequest ENTER",
                               "+parseURL: 127.0.0.1 port: " + portOf(server),
                               "+boost::asio::ssl::context created", "+connected: 127.0.0.1",
                               "+SSL Handshake: " + error.str(1) + " msg: " + error.str(2)})});
}

TEST(RawTraceFailure, ABrokenTraceFileFailsTheCall) {
    const TemporaryFile missing;
    LoopbackServer server(Mode::plain, pong);
    CRawStreamDispacher dispatcher(1, missing.impossiblePath(), true);
    EXPECT_THROW(dispatcher.sendRequest(server.url(), "ping"), trace_exception);
    EXPECT_THROW(dispatcher.asyncSendRequest(server.url(), "ping", {}, {}), trace_exception);
}

/// Whatever is written to the file meanwhile.
void replaceByFolder(const std::string& path) {
    std::error_code ignored;
    while (!std::filesystem::is_directory(path)) {
        std::filesystem::remove(path, ignored);
        std::filesystem::create_directory(path, ignored);
    }
}

TEST(RawTraceFailure, ATraceFileThatBreaksUnderTheStreamLeavesNobodyBehind) {
    for (const bool reuse : {true, false}) {
        const TemporaryFile file;
        LoopbackServer server(Mode::plain, [&](Peer& peer) {
            peer.open().receiveFrame();
            replaceByFolder(file.path());
            peer.send(responseFrame(1, "pong")).expectClose();
        });
        {
            CRawStreamDispacher dispatcher(1, file.path(), reuse);
            EXPECT_THROW(dispatcher.sendRequest(server.url(), "ping"), trace_exception);
        }
        EXPECT_TRUE(server.waitForEnded(1));
    }
}

} // namespace
