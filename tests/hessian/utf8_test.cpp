// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "hessian/utf8.h"
#include "support.h"

namespace {

using codec_test::failureOf;
using hessianser::utf8SequenceLength;

constexpr const char* continuation =
    "Invalid UTF-8 character: continuation character at the beginning";
constexpr const char* tooLarge = "Invalid UTF-8 character: character byte count too large";

TEST(Utf8, ReportsTheLengthFromTheFirstByte) {
    EXPECT_EQ(utf8SequenceLength(0x00), 1u);
    EXPECT_EQ(utf8SequenceLength(0x7F), 1u);
    EXPECT_EQ(utf8SequenceLength(0xC0), 2u);
    EXPECT_EQ(utf8SequenceLength(0xDF), 2u);
    EXPECT_EQ(utf8SequenceLength(0xE0), 3u);
    EXPECT_EQ(utf8SequenceLength(0xEF), 3u);
    EXPECT_EQ(utf8SequenceLength(0xF0), 4u);
    EXPECT_EQ(utf8SequenceLength(0xF7), 4u);
}

TEST(Utf8, CountsALone80AsOneByte) {
    EXPECT_EQ(utf8SequenceLength(0x80), 1u);
}

TEST(Utf8, RefusesAContinuationByteInFront) {
    EXPECT_EQ(failureOf([] { utf8SequenceLength(0x81); }), continuation);
    EXPECT_EQ(failureOf([] { utf8SequenceLength(0xBF); }), continuation);
}

TEST(Utf8, RefusesLongerSequences) {
    EXPECT_EQ(failureOf([] { utf8SequenceLength(0xF8); }), tooLarge);
    EXPECT_EQ(failureOf([] { utf8SequenceLength(0xFF); }), tooLarge);
}

TEST(Utf8, FindsTheByteThatIsNotAscii) {
    for (std::size_t length = 0; length < 40; ++length) {
        std::string text(length, 'x');
        EXPECT_TRUE(hessianser::isAscii(text)) << length;
        for (std::size_t at = 0; at < length; ++at) {
            text[at] = '\x80';
            EXPECT_FALSE(hessianser::isAscii(text)) << length << " at " << at;
            text[at] = 'x';
        }
    }
}

} // namespace
