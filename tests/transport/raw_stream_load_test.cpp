// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Large loads: many calls, much data.
#include <string>
#include <thread>
#include <vector>

#include "tests/support/bytes.h"
#include "tests/support/system/process.h"
#include "tests/transport/raw_stream_fixture.h"
#include "transport/raw_stream_dispatcher.h"

namespace {

using namespace hessiancln;
using support::bytes;
using support::LoopbackServer;
using support::Peer;
using support::RequestFrame;
using support::responseFrame;
using support::process::residentSize;

class RawStreamLoad : public RawStream {};

TARN_ON_PLAIN_AND_TLS(RawStreamLoad);

TEST_P(RawStreamLoad, CarriesAHundredThousandCallsInARow) {
    constexpr int calls = 100'000;
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open();
        for (int i = 0; i < calls; ++i) {
            const RequestFrame frame = peer.receiveFrame();
            peer.send(responseFrame(frame.id, frame.message));
        }
        peer.expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::string url = server.url();
    for (int i = 0; i < calls; ++i) {
        const std::string message = std::to_string(i);
        ASSERT_EQ(dispatcher.sendRequest(url, message), message);
    }
    EXPECT_EQ(server.connections(), 1u);
}

TEST_P(RawStreamLoad, CarriesAReplyOf64MiBWithoutASecondCopy) {
    constexpr std::size_t size = 64 * 1024 * 1024;
    std::string reply(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        reply[i] = static_cast<char>(i * 2654435761u >> 13);
    const std::string frame = responseFrame(1, reply);
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveFrame();
        peer.send(frame).expectClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::size_t before = residentSize();
    const std::string received = dispatcher.sendRequest(server.url(), "ping");
    const std::size_t grown = residentSize() - before;
    EXPECT_TRUE(received == reply);
#ifndef TARN_SANITIZED
    EXPECT_LT(grown, size + size / 4);
#endif
    RecordProperty("grown", static_cast<int>(grown / 1024));
}

TEST(RawStreamThreads, LeaveNothingWhenTheyEnd) {
    constexpr int connections = 300;
    const auto connectAndEnd = [] {
        LoopbackServer server(LoopbackServer::Mode::plain, [](Peer& peer) {
            const RequestFrame frame = peer.open().receiveFrame();
            peer.send(responseFrame(frame.id, "pong")).expectClose();
        });
        CRawStreamDispacher dispatcher(0, "", true);
        ASSERT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    };
    for (int i = 0; i < connections / 6; ++i)
        connectAndEnd();
    const std::size_t before = residentSize();
    for (int i = 0; i < connections; ++i)
        connectAndEnd();
    const std::size_t after = residentSize();
#ifndef TARN_SANITIZED
    EXPECT_LT(after, before + connections * 2048);
#endif
    RecordProperty("grown", static_cast<int>((after - before) / 1024));
}

TEST_P(RawStreamLoad, ALengthThatIsOnlyClaimedTouchesNoMemory) {
    // The largest accepted length, followed by only the start of its data.
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveFrame();
        peer.send(bytes("'@RSP' 00 00 00 01 00 00 00 00 FF FF FF FF 'only this'"));
        peer.close();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::size_t before = residentSize();
    const std::string text = failureOf(dispatcher, server.url());
    // Refused if the system doesn't allow that much memory.
    EXPECT_TRUE(text == "Receive failed (data): " + cut() ||
                text == "Failed to allocate 4294968320 bytes for data receiving")
        << text;
    EXPECT_LT(residentSize(), before + 16 * 1024 * 1024);
}

TEST_P(RawStreamLoad, ALengthThatIsRefusedTouchesNoMemory) {
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveFrame();
        peer.send(bytes("'@RSP' 00 00 00 01 00 00 01 00 00 00 00 00"));
        peer.receiveUntilClose();
    });
    CRawStreamDispacher dispatcher(0, "", true);
    const std::size_t before = residentSize();
    EXPECT_TRUE(failureOf(dispatcher, server.url()).starts_with("Failed to allocate "));
    EXPECT_LT(residentSize(), before + 16 * 1024 * 1024);
}

} // namespace
