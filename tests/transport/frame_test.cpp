// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/frame.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/support/bytes.h"
#include "tests/support/loopback_server.h"
#include "transport/checksum.h"

namespace {

using support::bytes;
using support::printable;

hessiancln::ResponseHeader header(std::string_view notation) {
    const std::string typed = bytes(notation);
    hessiancln::ResponseHeader header{};
    EXPECT_EQ(typed.size(), header.size());
    std::copy_n(typed.begin(), std::min(typed.size(), header.size()), header.begin());
    return header;
}

TEST(Checksum, HasTheKnownValue) {
    EXPECT_EQ(hessiancln::continueChecksum(0, "123456789", 9), 0xCBF43926u);
}

TEST(Checksum, OfNothingIsZero) {
    EXPECT_EQ(hessiancln::continueChecksum(0, "", 0), 0u);
}

TEST(Checksum, GoesOnWhereItWasLeft) {
    const auto first = hessiancln::continueChecksum(0, "1234", 4);
    EXPECT_EQ(hessiancln::continueChecksum(first, "56789", 5), 0xCBF43926u);
}

TEST(Frame, RequestIsLaidOutAsTyped) {
    EXPECT_EQ(printable(hessiancln::requestFrame(1, "http://h/api", "ping")),
              printable(bytes("'@REQ' 00 00 00 01 00 00 00 0c 'http://h/api' "
                              "00 00 00 00 00 00 00 04 'ping' 38 07 57 df")));
}

TEST(Frame, RequestMayHaveAnEmptyMessage) {
    EXPECT_EQ(printable(hessiancln::requestFrame(0x01020304, "http://h/", "")),
              printable(bytes("'@REQ' 01 02 03 04 00 00 00 09 'http://h/' "
                              "00 00 00 00 00 00 00 00 62 4a b6 bd")));
}

TEST(Frame, RequestIsReservedOnce) {
    const std::string frame =
        hessiancln::requestFrame(1, std::string(100, 'u'), std::string(1000, 'm'));
    EXPECT_EQ(frame.size(), 24u + 100 + 1000);
    EXPECT_EQ(frame.capacity(), frame.size());
}

TEST(Frame, ResponseHeaderIsRead) {
    const auto typed = header("'@RSP' 01 02 03 04 11 12 13 14 15 16 17 18");
    EXPECT_TRUE(hessiancln::hasResponseMagic(typed));
    EXPECT_EQ(hessiancln::responseId(typed), 0x01020304u);
    EXPECT_EQ(hessiancln::responseLength(typed), 0x1112131415161718u);
}

TEST(Frame, ResponseMagicIsComparedWhole) {
    EXPECT_FALSE(
        hessiancln::hasResponseMagic(header("'@RSQ' 00 00 00 01 00 00 00 00 00 00 00 00")));
    EXPECT_FALSE(
        hessiancln::hasResponseMagic(header("'@REQ' 00 00 00 01 00 00 00 00 00 00 00 00")));
    EXPECT_FALSE(
        hessiancln::hasResponseMagic(header("'@rsp' 00 00 00 01 00 00 00 00 00 00 00 00")));
}

TEST(Frame, ChecksumOfAnEmptyResponseCoversIdAndLength) {
    EXPECT_EQ(hessiancln::checksumOf(header("'@RSP' 00 00 00 01 00 00 00 00 00 00 00 00")),
              0x6CAED22Cu);
    EXPECT_EQ(hessiancln::storedChecksum("\x6c\xae\xd2\x2c"), 0x6CAED22Cu);
}

TEST(Frame, DumpPrintsTwoDigitsForEachByte) {
    EXPECT_EQ(hessiancln::dump(header("'HTTP/1.1 400 Bad'")), "485454502F312E312034303020426164");
}

TEST(Frame, DumpShowsOnlyTheSignOfHighBytesExceptTheLast) {
    EXPECT_EQ(hessiancln::dump(header("80 01 FE 02 00 00 00 00 00 00 00 00 00 00 0A 85")),
              "FF01FF020000000000000000000"
              "00AFFFFFF85");
    EXPECT_EQ(hessiancln::dump(header("80 80 80 80 80 80 80 80 80 80 80 80 80 80 80 7F")),
              "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFF7F");
}

// The other tests rely on this server, which builds its own frames.
TEST(LoopbackServer, AnswersWithFramesAsTyped) {
    EXPECT_EQ(printable(support::responseFrame(1, "pong")),
              printable(bytes("'@RSP' 00 00 00 01 00 00 00 00 00 00 00 04 'pong' c4 b1 aa 43")));
    EXPECT_EQ(printable(support::responseFrame(2, "")),
              printable(bytes("'@RSP' 00 00 00 02 00 00 00 00 00 00 00 00 55 23 ee e9")));
}

TEST(Frame, AMessageIsCountedIn32Bits) {
    EXPECT_TRUE(hessiancln::isMessageLength(0));
    EXPECT_TRUE(hessiancln::isMessageLength(0xFFFF'FFFF));
    EXPECT_FALSE(hessiancln::isMessageLength(0x1'0000'0000));
    EXPECT_FALSE(hessiancln::isMessageLength(0xFFFF'FFFF'FFFF'FFFF));
}

} // namespace
