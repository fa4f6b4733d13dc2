// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "support.h"
#include "tests/support/sample_values.h"

/// A message may end anywhere. Each proper prefix of a sample is refused, and nothing is read past
/// its end.
namespace {

using namespace codec_test;
using namespace support;
using namespace hessianser;

template <class Read>
void expectEachPrefixRefused(const std::string& whole, Read read) {
    {
        const Message message(whole);
        auto in = message.cursor();
        EXPECT_NO_THROW(read(in));
        EXPECT_LE(in.remaining, 1u);
    }
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const Message message(std::string_view(whole).substr(0, length));
        auto in = message.cursor();
        EXPECT_THROW(read(in), serialize_exception) << length << " of " << whole.size();
    }
}

template <class T>
void expectEachPrefixRefused(std::string_view result) {
    expectEachPrefixRefused(bytes("72 01 00 ") + bytes(result) + bytes("7A"), [](Cursor& in) {
        readReplyStart(in);
        readValue<T>(in);
        readEnd(in);
    });
}

TEST(Truncation, Numbers) {
    expectEachPrefixRefused<std::int32_t>("49 00 00 00 05");
    expectEachPrefixRefused<std::int64_t>("4C 00 00 00 00 00 00 00 05");
    expectEachPrefixRefused<bool>("54");
    expectEachPrefixRefused<Colour>("49 00 00 00 05");
}

TEST(Truncation, Texts) {
    expectEachPrefixRefused<std::string>("73 00 02 'a' E2 82 AC 53 00 03 C3 A9 F0 9F 98 80 'b'");
    expectEachPrefixRefused<Binary>("62 00 02 01 02 42 00 03 03 04 05");
}

TEST(Truncation, References) {
    expectEachPrefixRefused<Handle>("72 74 00 03 'abc' 53 00 03 'url'");
    expectEachPrefixRefused<Handle>("72 53 00 03 'url'");
    expectEachPrefixRefused<Handle>("4E");
}

TEST(Truncation, Lists) {
    expectEachPrefixRefused<std::vector<std::string>>(
        "56 74 00 03 'abc' 6C 00 00 00 02 53 00 01 'a' 73 00 01 'b' 53 00 00 7A");
    expectEachPrefixRefused<std::vector<Handle>>("56 4E 72 53 00 01 'u' 4E 7A");
}

TEST(Truncation, ListOfRecords) {
    expectEachPrefixRefused<std::vector<label>>(
        "56 6C 00 00 00 02"
        "'Mt' 00 07 't.label' 'S' 00 04 'name' 'S' 00 01 'a' 'S' 00 05 'shown' 'T'"
        "  'S' 00 05 'value' 'S' 00 01 C3 A9 'z'"
        "'Mt' 00 07 't.label' 'S' 00 05 'value' 'S' 00 01 'v' 's' 00 02 'na' 'S' 00 02 'me'"
        "  'S' 00 00 'S' 00 05 'shown' 'T' 'z' 'z'");
}

TEST(Truncation, RecordOfEveryKind) {
    expectEachPrefixRefused<everything>(
        "'Mt' 00 0C 't.everything'"
        "'S' 00 04 'flag' 'T'"
        "'S' 00 06 'number' 'I' FF FF FF FE"
        "'S' 00 05 'count' 'I' FF FF FF FE"
        "'S' 00 04 'size' 'L' 00 00 01 00 00 00 00 00"
        "'S' 00 05 'total' 'L' 80 00 00 00 00 00 00 00"
        "'S' 00 04 'text' 'S' 00 02 E2 82 AC '5'"
        "'S' 00 04 'data' 'B' 00 01 7A"
        "'S' 00 06 'colour' 'I' 00 00 00 04"
        "'S' 00 05 'where' 'Mt' 00 07 't.point' 'S' 00 01 'x' 'I' 00 00 00 07 'z'"
        "'S' 00 05 'names' 'V' 'S' 00 01 'n' 'z'"
        "'S' 00 04 'path' 'V' 'Mt' 00 07 't.point' 'z' 'z'"
        "'S' 00 05 'owner' 'rt' 00 08 't.Handle' 'S' 00 01 'u'"
        "'S' 00 04 'last' 'I' 00 00 00 09"
        "'z'");
}

TEST(Truncation, Faults) {
    expectEachPrefixRefused(bytes("66 53 00 04 'code' 53 00 01 'c' 53 00 07 'message'"
                                  "73 00 01 'a' 53 00 01 'b' 7A"),
                            [](Cursor& in) { readFault(in); });
}

TEST(Truncation, FaultCutBehindACompleteValue) {
    const Message message(bytes("66 53 00 04 'code' 53 00 01 'c'"));
    auto in = message.cursor();
    EXPECT_EQ(failureOf([&] { readFault(in); }),
              "Data stream truncated (too short for block header)");
}

TEST(Truncation, MessageBeyond32BitsIsRefusedUnread) {
    EXPECT_EQ(failureOf([] { Cursor(std::string_view("", std::size_t{1} << 32)); }),
              "Message too large to be decoded");
}

} // namespace
