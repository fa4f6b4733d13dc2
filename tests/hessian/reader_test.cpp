// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "support.h"

/// The values that the readers take from well-formed bytes, and how far they advance.
namespace {

using namespace codec_test;
using namespace hessianser;

/// Reads from `typed` followed by one byte of another value, which has to be left unread.
template <class Read>
auto readOne(std::string_view content, Read read) {
    const Message message(std::string(content) + '?');
    auto in = message.cursor();
    const auto value = read(in);
    EXPECT_EQ(in.remaining, 1u);
    EXPECT_EQ(*in.pos, '?');
    return value;
}

std::string textIn(std::string_view content) {
    return readOne(content, [](Cursor& in) { return readString(in); });
}

Binary binaryIn(std::string_view content) {
    return readOne(content, [](Cursor& in) { return readBinary(in); });
}

TEST(Reader, Null) {
    const Message message("N?");
    auto in = message.cursor();
    readNull(in);
    EXPECT_EQ(in.remaining, 1u);
}

TEST(Reader, Booleans) {
    EXPECT_TRUE(readOne("T", readBool));
    EXPECT_FALSE(readOne("F", readBool));
}

TEST(Reader, Numbers) {
    EXPECT_EQ(readOne(bytes("49 80 00 00 01"), readInt32), -2147483647);
    EXPECT_EQ(readOne(bytes("4C 01 02 03 04 05 06 07 08"), readInt64), 0x0102030405060708);
}

TEST(Reader, EmptyStringAndBinary) {
    EXPECT_EQ(textIn(bytes("53 00 00")), "");
    EXPECT_EQ(binaryIn(bytes("42 00 00")), Binary{});
}

TEST(Reader, StringReplacesWhatStoodThere) {
    const Message message(bytes("53 00 01 'n'"));
    auto in = message.cursor();
    std::string text = "old";
    readString(in, text);
    EXPECT_EQ(text, "n");
}

TEST(Reader, StringInChunks) {
    EXPECT_EQ(textIn(bytes("73 00 02 'ab' 73 00 00 73 00 01 C3 A9 53 00 01 'c'")), "ab\xC3\xA9"
                                                                                   "c");
}

TEST(Reader, StringWhoseLastChunkIsEmpty) {
    EXPECT_EQ(textIn(bytes("73 00 01 'a' 53 00 00")), "a");
}

TEST(Reader, StringOf80PassesAsOneByte) {
    EXPECT_EQ(textIn(bytes("53 00 02 80 'a'")), "\x80"
                                                "a");
}

TEST(Reader, ContinuationBytesAreNotExamined) {
    EXPECT_EQ(textIn(bytes("53 00 01 C3 'S'")), "\xC3S");
}

TEST(Reader, WideCharacters) {
    EXPECT_EQ(textIn(bytes("53 00 04 'a' C3 A9 E2 82 AC F0 9F 98 80")),
              "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Reader, CountsUpTo65535AreTaken) {
    EXPECT_EQ(textIn(bytes("53 FF FF") + repeat("x", 65535)), repeat("x", 65535));
    EXPECT_EQ(textIn(bytes("53 FF FF") + repeat("\xF0\x9F\x98\x80", 65535)),
              repeat("\xF0\x9F\x98\x80", 65535));
    EXPECT_EQ(binaryIn(bytes("62 FF FF") + repeat("\xFF", 65535) + bytes("42 00 01 01")).size(),
              65536u);
}

TEST(Reader, BinaryInChunks) {
    EXPECT_EQ(binaryIn(bytes("62 00 02 00 FF 62 00 00 42 00 01 53")), (Binary{0x00, 0xFF, 0x53}));
}

TEST(Reader, TypeNamesAreCountedInBytes) {
    EXPECT_EQ(readOne(bytes("74 00 02 C3 A9"), readType), "\xC3\xA9");
    EXPECT_EQ(readOne(bytes("74 00 00"), readType), "");
}

TEST(Reader, RemoteReference) {
    const auto remote = readOne(bytes("72 74 00 01 't' 53 00 01 'u'"), readRemote);
    EXPECT_EQ(remote.type, "t");
    EXPECT_EQ(remote.url, "u");
}

TEST(Reader, RemoteReferenceWithoutType) {
    const auto remote = readOne(bytes("72 53 00 01 61"), readRemote);
    EXPECT_EQ(remote.type, "");
    EXPECT_EQ(remote.url, "a");
}

TEST(Reader, WholeReply) {
    const Message message(bytes("72 01 00 49 00 00 00 05 7A"));
    auto in = message.cursor();
    EXPECT_FALSE(isFault(in));
    readReplyStart(in);
    EXPECT_FALSE(isFault(in));
    EXPECT_EQ(readInt32(in), 5);
    readEnd(in);
    EXPECT_EQ(in.remaining, 0u);
}

TEST(Reader, NothingIsNoFault) {
    const Message message("");
    EXPECT_FALSE(isFault(message.cursor()));
}

TEST(Reader, FaultWithCodeAndMessage) {
    const Message message(bytes("66 53 00 04 63 6F 64 65 53 00 01 58 53 00 07 6D 65 73 73 61 67 65"
                                "53 00 02 68 69 7A"));
    auto in = message.cursor();
    EXPECT_TRUE(isFault(in));
    EXPECT_EQ(in.remaining, 28u);
    const Fault fault = readFault(in);
    EXPECT_EQ(fault.code, "X");
    EXPECT_EQ(fault.message, "hi");
    EXPECT_EQ(in.remaining, 1u) << "the end is looked at and left";
}

TEST(Reader, FaultWithMessageFirst) {
    const Message message(bytes("66 53 00 07 'message' 53 00 01 'm' 53 00 04 'code' 53 00 01 'c'"
                                "7A"));
    auto in = message.cursor();
    const Fault fault = readFault(in);
    EXPECT_EQ(fault.code, "c");
    EXPECT_EQ(fault.message, "m");
}

TEST(Reader, FaultReportsItsMessageTwice) {
    const Message message(bytes("66 53 00 07 'message' 53 00 01 'm' 53 00 07 'message'"
                                "53 00 01 'n' 7A"));
    auto in = message.cursor();
    EXPECT_EQ(readFault(in).message, "n");
}

TEST(Reader, FaultWithoutEntriesKeepsThePlaceholders) {
    const Message message(bytes("66 7A"));
    auto in = message.cursor();
    const Fault fault = readFault(in);
    EXPECT_EQ(fault.code, "<Code could not be parsed>");
    EXPECT_EQ(fault.message, "<Message could not be parsed>");
}

TEST(Reader, FaultWithDetailAloneKeepsThePlaceholders) {
    const Message message(bytes("66 53 00 06 'detail' 4D 7A"));
    auto in = message.cursor();
    const Fault fault = readFault(in);
    EXPECT_EQ(fault.code, "<Code could not be parsed>");
    EXPECT_EQ(fault.message, "<Message could not be parsed>");
    EXPECT_EQ(in.remaining, 2u) << "its value isn't read";
}

TEST(Reader, FaultIsReadAsFarAsTheDetail) {
    const Message message(bytes("66 53 00 04 'code' 53 00 01 'c' 53 00 06 'detail' 4D"));
    auto in = message.cursor();
    const Fault fault = readFault(in);
    EXPECT_EQ(fault.code, "c");
    EXPECT_EQ(fault.message, "<Message could not be parsed>");
}

TEST(Reader, FaultWithDetailInFrontKeepsThePlaceholders) {
    const Message message(bytes("66 53 00 06 'detail' 53 00 01 'd' 53 00 04 'code' 53 00 01 'c'"
                                "7A"));
    auto in = message.cursor();
    EXPECT_EQ(readFault(in).code, "<Code could not be parsed>");
}

TEST(Reader, KeysOfAFaultAreComparedWithCase) {
    const Message message(bytes("66 53 00 04 'Code' 53 00 01 'c' 7A"));
    auto in = message.cursor();
    EXPECT_EQ(readFault(in).code, "<Code could not be parsed>");
}

TEST(Reader, FaultInChunks) {
    const Message message(bytes("66 73 00 02 'co' 53 00 02 'de' 73 00 01 'a' 53 00 01 'b' 7A"));
    auto in = message.cursor();
    EXPECT_EQ(readFault(in).code, "ab");
}

} // namespace
