// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <limits>

#include <gtest/gtest.h>

#include "support.h"
#include "tests/support/sample_values.h"

/// The kinds of value and their wire forms: the bytes written, the computed size, and the value
/// read back.
namespace {

using namespace codec_test;
using namespace support;
using hessianser::Binary;

template <class T>
void expectForm(const T& value, std::string_view wire) {
    EXPECT_EQ(written(value), bytes(wire));
    EXPECT_EQ(readWhole<T>(bytes(wire)), value);
}

TEST(TypeMap, Boolean) {
    expectForm(true, "'T'");
    expectForm(false, "'F'");
}

TEST(TypeMap, SignedInt32) {
    expectForm<std::int32_t>(0, "'I' 00 00 00 00");
    expectForm<std::int32_t>(5, "'I' 00 00 00 05");
    expectForm<std::int32_t>(-1, "'I' FF FF FF FF");
    expectForm<std::int32_t>(0x01020304, "'I' 01 02 03 04");
    expectForm(std::numeric_limits<std::int32_t>::min(), "'I' 80 00 00 00");
}

TEST(TypeMap, UnsignedInt32) {
    expectForm<std::uint32_t>(0xFFFFFFFF, "'I' FF FF FF FF");
    expectForm<std::uint32_t>(0x80000000, "'I' 80 00 00 00");
}

TEST(TypeMap, SignedInt64) {
    expectForm<std::int64_t>(0x0102030405060708, "'L' 01 02 03 04 05 06 07 08");
    expectForm<std::int64_t>(-2, "'L' FF FF FF FF FF FF FF FE");
    expectForm(std::numeric_limits<std::int64_t>::min(), "'L' 80 00 00 00 00 00 00 00");
}

TEST(TypeMap, UnsignedInt64) {
    expectForm<std::uint64_t>(0xFFFFFFFFFFFFFFFF, "'L' FF FF FF FF FF FF FF FF");
}

TEST(TypeMap, String) {
    expectForm<std::string>("", "'S' 00 00");
    expectForm<std::string>("hello", "'S' 00 05 'hello'");
    expectForm<std::string>("\xC3\xA9", "'S' 00 01 C3 A9");
}

TEST(TypeMap, Binary) {
    expectForm(Binary{}, "'B' 00 00");
    expectForm(Binary{0x00, 0x80, 0xFF}, "'B' 00 03 00 80 FF");
}

TEST(TypeMap, Enumeration) {
    expectForm(static_cast<Colour>(1), "'I' 00 00 00 01");
    expectForm(static_cast<Colour>(16), "'I' 00 00 00 10");
}

TEST(TypeMap, Record) {
    expectForm(point{5, -1}, "'Mt' 00 07 't.point'"
                             "'S' 00 01 'x' 'I' 00 00 00 05"
                             "'S' 00 01 'y' 'I' FF FF FF FF"
                             "'z'");
}

TEST(TypeMap, ListOfNumbers) {
    expectForm(std::vector<std::int32_t>{}, "'Vz'");
    expectForm(std::vector<std::int32_t>{1, 2}, "'V' 'I' 00 00 00 01 'I' 00 00 00 02 'z'");
    expectForm(std::vector<std::uint64_t>{3}, "'V' 'L' 00 00 00 00 00 00 00 03 'z'");
}

TEST(TypeMap, ListOfBooleans) {
    expectForm(std::vector<bool>{true, false, true}, "'VTFTz'");
}

TEST(TypeMap, ListOfStrings) {
    expectForm(std::vector<std::string>{"a", ""}, "'V' 'S' 00 01 'a' 'S' 00 00 'z'");
}

TEST(TypeMap, ListOfBinaries) {
    expectForm(std::vector<Binary>{{1}, {}}, "'V' 'B' 00 01 01 'B' 00 00 'z'");
}

TEST(TypeMap, ListOfEnumerations) {
    expectForm(std::vector<Colour>{static_cast<Colour>(3)}, "'V' 'I' 00 00 00 03 'z'");
}

TEST(TypeMap, ListOfRecords) {
    expectForm(std::vector<nothing>(2), "'V' 'Mt' 00 09 't.nothing' 'z' 'Mt' 00 09 't.nothing' 'z'"
                                        "'z'");
}

TEST(TypeMap, ListOfLists) {
    expectForm(std::vector<std::vector<bool>>{{}, {true}}, "'V' 'Vz' 'VTz' 'z'");
}

TEST(TypeMap, ListOfRemoteReferences) {
    expectForm(std::vector<Handle>{{"a"}, {}}, "'V' 'rt' 00 08 't.Handle' 'S' 00 01 'a' 'N' 'z'");
}

TEST(TypeMap, RemoteReference) {
    expectForm(Handle{}, "'N'");
    expectForm(Handle{"https://h/1"}, "'rt' 00 08 't.Handle' 'S' 00 0B 'https://h/1'");
}

TEST(TypeMap, RecordOfEveryKind) {
    everything value;
    value.flag = true;
    value.number = -2;
    value.count = 0xFFFFFFFE;
    value.size = 1LL << 40;
    value.total = 0x8000000000000000;
    value.text = "\xE2\x82\xAC"
                 "5";
    value.data = {0x7A};
    value.colour = static_cast<Colour>(4);
    value.where = {7, 8};
    value.names = {"n"};
    value.path = {point{1, 2}};
    value.owner = {"u"};
    value.last = 9;
    expectForm(value, "'Mt' 00 0C 't.everything'"
                      "'S' 00 04 'flag' 'T'"
                      "'S' 00 06 'number' 'I' FF FF FF FE"
                      "'S' 00 05 'count' 'I' FF FF FF FE"
                      "'S' 00 04 'size' 'L' 00 00 01 00 00 00 00 00"
                      "'S' 00 05 'total' 'L' 80 00 00 00 00 00 00 00"
                      "'S' 00 04 'text' 'S' 00 02 E2 82 AC '5'"
                      "'S' 00 04 'data' 'B' 00 01 7A"
                      "'S' 00 06 'colour' 'I' 00 00 00 04"
                      "'S' 00 05 'where' 'Mt' 00 07 't.point'"
                      "  'S' 00 01 'x' 'I' 00 00 00 07 'S' 00 01 'y' 'I' 00 00 00 08 'z'"
                      "'S' 00 05 'names' 'V' 'S' 00 01 'n' 'z'"
                      "'S' 00 04 'path' 'V' 'Mt' 00 07 't.point'"
                      "  'S' 00 01 'x' 'I' 00 00 00 01 'S' 00 01 'y' 'I' 00 00 00 02 'z' 'z'"
                      "'S' 00 05 'owner' 'rt' 00 08 't.Handle' 'S' 00 01 'u'"
                      "'S' 00 04 'last' 'I' 00 00 00 09"
                      "'z'");
}

} // namespace
