// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "hessian/writer.h"
#include "support.h"

/// The writers, and the sizes computed in advance.
namespace {

using namespace hessianser;
using codec_test::bytes;
using codec_test::failureOf;
using codec_test::repeat;

constexpr const char* continuation =
    "Invalid UTF-8 character: continuation character at the beginning";
constexpr const char* tooLarge = "Invalid UTF-8 character: character byte count too large";
constexpr const char* overflow = "Data stream truncated (last character overflows data buffer)";
constexpr const char* oneChunkOnly =
    "Cannot serialize data: chunk too large for 16-bit length (and only 1 chunk allowed)";

std::string textOf(std::string_view text) {
    std::string out;
    writeString(text, out);
    EXPECT_EQ(sizeOfString(text), out.size());
    return out;
}

std::string binaryOf(const Binary& data) {
    std::string out;
    writeBinary(data, out);
    EXPECT_EQ(sizeOfBinary(data), out.size());
    return out;
}

TEST(Writer, AppendsToWhatIsThere) {
    std::string out = "x";
    writeNull(out);
    writeBool(true, out);
    writeBool(false, out);
    writeInt32(-2, out);
    writeInt64(258, out);
    writeString("s", out);
    writeBinary({1, 2}, out);
    writeType("t", out);
    writeRemote("t", "u", out);
    writeEnd(out);
    EXPECT_EQ(out, bytes("'xNTF' 'I' FF FF FF FE 'L' 00 00 00 00 00 00 01 02 'S' 00 01 's'"
                         "'B' 00 02 01 02 't' 00 01 't' 'rt' 00 01 't' 'S' 00 01 'u' 'z'"));
}

TEST(Writer, SizesOfFixedForms) {
    EXPECT_EQ(sizeOfNull, 1u);
    EXPECT_EQ(sizeOfBool, 1u);
    EXPECT_EQ(sizeOfInt32, 5u);
    EXPECT_EQ(sizeOfInt64, 9u);
    EXPECT_EQ(sizeOfEnd, 1u);
}

TEST(Writer, EmptyStringIsOneEmptyChunk) {
    EXPECT_EQ(textOf(""), bytes("53 00 00"));
}

TEST(Writer, EmptyBinaryIsOneEmptyChunk) {
    EXPECT_EQ(binaryOf({}), bytes("42 00 00"));
}

TEST(Writer, AccentedCharacterCountsOnceAndTakesFiveBytes) {
    EXPECT_EQ(textOf("\xC3\xA9"), bytes("53 00 01 C3 A9"));
    EXPECT_EQ(sizeOfString("\xC3\xA9"), 5u);
}

TEST(Writer, FullChunkOfTextHasNoChunkBehindIt) {
    EXPECT_EQ(textOf(repeat("x", 32767)), bytes("53 7F FF") + repeat("x", 32767));
    EXPECT_EQ(sizeOfString(repeat("x", 32767)), 32770u);
}

TEST(Writer, OneCharacterMoreMakesASecondChunk) {
    EXPECT_EQ(textOf(repeat("x", 32767) + "y"),
              bytes("73 7F FF") + repeat("x", 32767) + bytes("53 00 01 'y'"));
    EXPECT_EQ(sizeOfString(repeat("x", 32767) + "y"), 32774u);
}

TEST(Writer, TwoFullChunksOfTextAreTwoChunks) {
    EXPECT_EQ(textOf(repeat("x", 65534)),
              bytes("73 7F FF") + repeat("x", 32767) + bytes("53 7F FF") + repeat("x", 32767));
}

TEST(Writer, ChunksOfTextAreCutByCharacters) {
    const std::string text = repeat("\xE2\x82\xAC", 32767);
    EXPECT_EQ(textOf(text), bytes("53 7F FF") + text);
    EXPECT_EQ(textOf(text + "\xC3\xA9"), bytes("73 7F FF") + text + bytes("53 00 01 C3 A9"));
    EXPECT_EQ(sizeOfString(text + "\xC3\xA9"), 3u + 3 * 32767 + 5);
}

TEST(Writer, OneWideCharacterShiftsTheCut) {
    EXPECT_EQ(textOf(std::string("\xC3\xA9") + repeat("x", 32767)),
              bytes("73 7F FF C3 A9") + repeat("x", 32766) + bytes("53 00 01 'x'"));
}

TEST(Writer, ChunksOfBinaryAreCutByBytes) {
    const Binary full(32767, 0xC3);
    EXPECT_EQ(binaryOf(full), bytes("42 7F FF") + repeat("\xC3", 32767));
    const Binary more(32768, 0xC3);
    EXPECT_EQ(binaryOf(more), bytes("62 7F FF") + repeat("\xC3", 32767) + bytes("42 00 01 C3"));
    EXPECT_EQ(sizeOfBinary(more), 32774u);
}

TEST(Writer, TextMayHoldZeroBytes) {
    EXPECT_EQ(textOf(std::string_view("a\0b", 3)), bytes("53 00 03 'a' 00 'b'"));
}

TEST(Writer, TextOf80PassesAsOneByte) {
    EXPECT_EQ(textOf("\x80"), bytes("53 00 01 80"));
}

TEST(Writer, ContinuationBytesAreNotExamined) {
    EXPECT_EQ(textOf("\xC3("), bytes("53 00 01 C3 '('"));
}

TEST(Writer, RefusesTextThatBeginsWithAContinuationByte) {
    std::string out;
    EXPECT_EQ(failureOf([&] { writeString("\xBF", out); }), continuation);
    EXPECT_EQ(failureOf([&] { writeString("ab\x81", out); }), continuation);
}

TEST(Writer, RefusesTextWithAnImpossibleByte) {
    std::string out;
    EXPECT_EQ(failureOf([&] { writeString("\xFF", out); }), tooLarge);
}

TEST(Writer, RefusesTextWhoseLastCharacterIsCut) {
    std::string out;
    EXPECT_EQ(failureOf([&] { writeString("\xF0\x9F", out); }), overflow);
    EXPECT_EQ(failureOf([&] { writeString("a\xC3", out); }), overflow);
    EXPECT_EQ(failureOf([&] { writeString(repeat("x", 32767) + "\xC3", out); }), overflow);
}

TEST(Writer, BadTextInTheSecondChunkFailsTheSizePassToo) {
    const std::string text = repeat("x", 32767) + "\xBF";
    std::string out;
    EXPECT_EQ(failureOf([&] { writeString(text, out); }), continuation);
    EXPECT_EQ(failureOf([&] { sizeOfString(text); }), continuation);
}

TEST(Writer, TypeNamesAreCountedInCharacters) {
    std::string out;
    writeType("\xC3\xA9t", out);
    EXPECT_EQ(out, bytes("74 00 02 C3 A9 't'"));
}

TEST(Writer, EmptyTypeNameIsOneEmptyChunk) {
    std::string out;
    writeType("", out);
    EXPECT_EQ(out, bytes("74 00 00"));
}

TEST(Writer, TypeNameOfFullLengthIsWritten) {
    std::string out;
    writeType(repeat("t", 32767), out);
    EXPECT_EQ(out, bytes("74 7F FF") + repeat("t", 32767));
}

TEST(Writer, RefusesALongerTypeName) {
    std::string out;
    EXPECT_EQ(failureOf([&] { writeType(repeat("t", 32768), out); }), oneChunkOnly);
    EXPECT_EQ(failureOf([&] { writeRemote(repeat("t", 32768), "u", out); }), oneChunkOnly);
}

TEST(Writer, RemoteReferenceAndItsSize) {
    std::string out;
    writeRemote("com.norvel.api.BackupSet", "https://h:4411/7", out);
    EXPECT_EQ(out, bytes("72 74 00 18 'com.norvel.api.BackupSet' 53 00 10 'https://h:4411/7'"));
    EXPECT_EQ(sizeOfRemote("com.norvel.api.BackupSet", "https://h:4411/7"), 47u);
    EXPECT_EQ(sizeOfRemote("", ""), 7u);
    EXPECT_EQ(sizeOfRemote("t", "\xC3\xA9"), 10u);
}

TEST(Writer, WholeCallWithoutArguments) {
    std::string out;
    writeCallStart("logout", out);
    writeEnd(out);
    EXPECT_EQ(out, bytes("63 01 00 6D 00 06 6C 6F 67 6F 75 74 7A"));
    EXPECT_EQ(sizeOfCallStart("logout"), 12u);
}

TEST(Writer, MethodNamesAreCountedInBytes) {
    std::string out;
    writeCallStart("\xC3\xA9\xFF", out);
    EXPECT_EQ(out, bytes("63 01 00 6D 00 03 C3 A9 FF"));
    EXPECT_EQ(sizeOfCallStart("\xC3\xA9\xFF"), 9u);
}

TEST(Writer, MethodNameOfFullLengthIsWritten) {
    std::string out;
    writeCallStart(repeat("m", 32767), out);
    EXPECT_EQ(out, bytes("63 01 00 6D 7F FF") + repeat("m", 32767));
    EXPECT_EQ(sizeOfCallStart(repeat("m", 32767)), 32773u);
}

TEST(Writer, RefusesALongerMethodName) {
    std::string out;
    EXPECT_EQ(failureOf([&] { writeCallStart(repeat("m", 32768), out); }), oneChunkOnly);
}

} // namespace
