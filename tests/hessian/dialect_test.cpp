// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "support.h"
#include "tests/support/sample_values.h"

/// Differences between the wire format and published Hessian 1.0.
namespace {

using namespace codec_test;
using namespace support;

TEST(Dialect, CharactersBeyondTheBasicPlaneCountOnce) {
    EXPECT_EQ(written(std::string("\xF0\x9F\x98\x80")), bytes("53 00 01 F0 9F 98 80"));
    EXPECT_EQ(readWhole<std::string>(bytes("53 00 01 F0 9F 98 80")), "\xF0\x9F\x98\x80");
}

TEST(Dialect, ChunksHoldAtMost32767) {
    EXPECT_EQ(written(repeat("x", 32768)).substr(0, 3), bytes("73 7F FF"));
    EXPECT_EQ(written(repeat("x", 32768)).substr(32770), bytes("53 00 01 'x'"));
    EXPECT_EQ(written(hessianser::Binary(32768, 1)).substr(0, 3), bytes("62 7F FF"));
    EXPECT_EQ(written(hessianser::Binary(32768, 1)).substr(32770), bytes("42 00 01 01"));
}

TEST(Dialect, ListsAreWrittenWithNeitherTypeNorLength) {
    EXPECT_EQ(written(std::vector<bool>{true}), bytes("56 54 7A"));
    EXPECT_EQ(written(std::vector<nothing>{{}}), bytes("56 4D 74 00 09 't.nothing' 7A 7A"));
}

TEST(Dialect, MapsWithoutTypeAreRefused) {
    EXPECT_EQ(failureOfReading<point>("4D 53 00 01 'x' 49 00 00 00 01 7A"),
              "Map does not start with a type");
}

TEST(Dialect, FaultNeedsNoReplyHeader) {
    const Message message(bytes("66 53 00 07 'message' 53 00 01 'm' 7A"));
    auto in = message.cursor();
    ASSERT_TRUE(hessianser::isFault(in));
    EXPECT_EQ(hessianser::readFault(in).message, "m");
}

TEST(Dialect, FaultEndsAtTheFirstOtherKey) {
    const Message message(bytes("66 53 00 04 'code' 53 00 01 'c' 53 00 05 'other' 54"
                                "53 00 07 'message' 53 00 01 'm' 7A"));
    auto in = message.cursor();
    const auto fault = hessianser::readFault(in);
    EXPECT_EQ(fault.code, "c");
    EXPECT_EQ(fault.message, "<Message could not be parsed>");
}

/// Headers, doubles, dates, XML (last chunk and others) and references, both in place of a value
/// and in place of a reply's result.
TEST(Dialect, OtherFormsDoNotExist) {
    for (const std::string tag : {"'H'", "'D'", "'d'", "'X'", "'x'", "'R'"}) {
        const std::string typed = tag + " 00 00 00 00 00 00 00 00";
        EXPECT_EQ(failureOfReading<bool>(typed), "Not a bool value") << tag;
        EXPECT_EQ(failureOfReading<std::int32_t>(typed), "Not an int32 value") << tag;
        EXPECT_EQ(failureOfReading<std::int64_t>(typed), "Not an int64 value") << tag;
        EXPECT_EQ(failureOfReading<std::string>(typed),
                  "Invalid data stream part - unexpected data block type")
            << tag;
        EXPECT_EQ(failureOfReading<hessianser::Binary>(typed),
                  "Invalid data stream part - unexpected data block type")
            << tag;
        EXPECT_EQ(failureOfReading<Handle>(typed), "Not a remote object") << tag;
        EXPECT_EQ(failureOfReading<std::vector<bool>>(typed), "Not a list value") << tag;
        EXPECT_EQ(failureOfReading<point>(typed + " 00 00 00"), "Not a map start") << tag;
    }
}

TEST(Dialect, TypeOfARemoteReferenceIsOptional) {
    EXPECT_EQ(readWhole<Handle>(bytes("72 53 00 01 'u'")), Handle{"u"});
    EXPECT_EQ(readWhole<Handle>(bytes("72 74 00 05 'other' 53 00 01 'u'")), Handle{"u"});
}

} // namespace
