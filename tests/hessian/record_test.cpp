// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "support.h"
#include "tests/support/sample_values.h"

/// Records beyond their plain form: order, repetition, absence, and their descriptions.
namespace {

using namespace codec_test;
using namespace support;
using hessianser::readValue;

constexpr const char* pointStart = "'Mt' 00 07 't.point' ";

point readPoint(const std::string& members) {
    return readWhole<point>(bytes(pointStart + members));
}

TEST(Record, WithoutMembersIsWrittenWhole) {
    EXPECT_EQ(written(nothing{}), bytes("'Mt' 00 09 't.nothing' 'z'"));
    readWhole<nothing>(bytes("'Mt' 00 09 't.nothing' 'z'"));
}

TEST(Record, EmptyTextIsWrittenWithItsKey) {
    EXPECT_EQ(written(label{}), bytes("4D 74 00 07 't.label' 53 00 04 'name' 53 00 00"
                                      "53 00 05 'shown' 46 53 00 05 'value' 53 00 00 7A"));
}

TEST(Record, MembersOfVaryingSizeAtBothEnds) {
    const label value{"a", true, "\xC3\xA9"};
    const auto wire = bytes("'Mt' 00 07 't.label' 'S' 00 04 'name' 'S' 00 01 'a'"
                            "'S' 00 05 'shown' 'T' 'S' 00 05 'value' 'S' 00 01 C3 A9 'z'");
    EXPECT_EQ(written(value), wire);
    EXPECT_EQ(readWhole<label>(wire), value);
}

TEST(Record, SizeIsTheBytesWrittenWhateverTheText) {
    for (const std::string& text :
         {std::string(), std::string("plain"), std::string("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"),
          repeat("x", 32767), repeat("x", 32768), repeat("\xC3\xA9", 32767),
          repeat("\xF0\x9F\x98\x80", 70000), std::string("x") + repeat("\xE2\x82\xAC", 32767)}) {
        std::string out;
        const label value{text, false, text};
        hessianser::writeValue(value, out);
        EXPECT_EQ(hessianser::sizeOfValue(value), out.size()) << text.size();
        EXPECT_TRUE(readWhole<label>(out) == value) << text.size();
    }
}

TEST(Record, SizeOfLargeBinaryIsTheBytesWritten) {
    everything value;
    value.data.assign(70000, 0x80);
    value.colour = static_cast<Colour>(3);
    value.names = {repeat("\xC3\xA9", 40000), ""};
    EXPECT_TRUE(readWhole<everything>(written(value)) == value);
}

TEST(Record, KeysInReverseOrder) {
    EXPECT_EQ(readPoint("53 00 01 'y' 49 00 00 00 02 53 00 01 'x' 49 00 00 00 01 'z'"),
              (point{1, 2}));
}

TEST(Record, EveryKindInReverseOrder) {
    const auto value = readWhole<everything>(
        bytes("'Mt' 00 0C 't.everything'"
              "'S' 00 04 'last' 'I' 00 00 00 09"
              "'S' 00 05 'owner' 'rS' 00 01 'u'"
              "'S' 00 04 'path' 'V' 'Mt' 00 07 't.point'"
              "  'S' 00 01 'y' 'I' 00 00 00 02 'S' 00 01 'x' 'I' 00 00 00 01 'z' 'z'"
              "'S' 00 05 'names' 'V' 'S' 00 01 'n' 'z'"
              "'S' 00 05 'where' 'Mt' 00 07 't.point' 'z'"
              "'S' 00 06 'colour' 'I' 00 00 00 04"
              "'S' 00 04 'data' 'B' 00 01 7A"
              "'S' 00 04 'text' 'S' 00 01 'x'"
              "'S' 00 05 'total' 'L' 80 00 00 00 00 00 00 00"
              "'S' 00 04 'size' 'L' 00 00 00 00 00 00 00 01"
              "'S' 00 05 'count' 'I' FF FF FF FE"
              "'S' 00 06 'number' 'I' FF FF FF FE"
              "'S' 00 04 'flag' 'T'"
              "'z'"));
    EXPECT_TRUE(value.flag);
    EXPECT_EQ(value.number, -2);
    EXPECT_EQ(value.count, 0xFFFFFFFEu);
    EXPECT_EQ(value.size, 1);
    EXPECT_EQ(value.total, 0x8000000000000000u);
    EXPECT_EQ(value.text, "x");
    EXPECT_EQ(value.data, hessianser::Binary{0x7A});
    EXPECT_EQ(value.colour, static_cast<Colour>(4));
    EXPECT_EQ(value.where, point{});
    EXPECT_EQ(value.names, std::vector<std::string>{"n"});
    EXPECT_EQ(value.path, (std::vector<point>{{1, 2}}));
    EXPECT_EQ(value.owner, Handle{"u"});
    EXPECT_EQ(value.last, 9);
}

TEST(Record, MissingMembersStayEmpty) {
    EXPECT_EQ(readPoint("53 00 01 'x' 49 00 00 00 01 'z'"), (point{1, 0}));
    EXPECT_EQ(readPoint("53 00 01 'y' 49 00 00 00 02 'z'"), (point{0, 2}));
    EXPECT_EQ(readPoint("'z'"), point{});
    EXPECT_EQ(readWhole<everything>(bytes("'Mt' 00 0C 't.everything' 'z'")), everything{});
}

TEST(Record, RepeatedMemberKeepsTheLastValue) {
    EXPECT_EQ(readPoint("53 00 01 'x' 49 00 00 00 01 53 00 01 'x' 49 00 00 00 02 'z'"),
              (point{2, 0}));
    EXPECT_EQ(readPoint("53 00 01 'x' 49 00 00 00 01 53 00 01 'y' 49 00 00 00 02"
                        "53 00 01 'x' 49 00 00 00 03 'z'"),
              (point{3, 2}));
}

TEST(Record, RepeatedListOrRecordKeepsNothingOfTheFirst) {
    const auto value = readWhole<everything>(
        bytes("'Mt' 00 0C 't.everything'"
              "'S' 00 05 'names' 'V' 'S' 00 01 'a' 'S' 00 01 'b' 'z'"
              "'S' 00 05 'names' 'V' 'S' 00 01 'c' 'z'"
              "'S' 00 05 'where' 'Mt' 00 07 't.point' 'S' 00 01 'x' 'I' 00 00 00 01 'z'"
              "'S' 00 05 'where' 'Mt' 00 07 't.point' 'S' 00 01 'y' 'I' 00 00 00 02 'z'"
              "'S' 00 04 'text' 'S' 00 02 'ab' 'S' 00 04 'text' 'S' 00 00"
              "'S' 00 04 'data' 'B' 00 02 01 02 'S' 00 04 'data' 'B' 00 00"
              "'S' 00 05 'owner' 'rS' 00 01 'u' 'S' 00 05 'owner' 'N' 'z'"));
    EXPECT_EQ(value.names, std::vector<std::string>{"c"});
    EXPECT_EQ(value.where, (point{0, 2}));
    EXPECT_EQ(value.text, "");
    EXPECT_EQ(value.data, hessianser::Binary{});
    EXPECT_EQ(value.owner, Handle{});
}

TEST(Record, KeysInSeveralChunks) {
    EXPECT_EQ(readPoint("73 00 01 'x' 53 00 00 49 00 00 00 01"
                        "73 00 00 73 00 00 53 00 01 'y' 49 00 00 00 02 'z'"),
              (point{1, 2}));
    EXPECT_EQ(readWhole<label>(bytes("'Mt' 00 07 't.label' 73 00 02 'na' 53 00 02 'me' 53 00 01 'n'"
                                     "53 00 05 'shown' 54 73 00 05 'value' 53 00 00 53 00 00 'z'")),
              (label{"n", true, ""}));
}

TEST(Record, UnknownKeyInSeveralChunks) {
    EXPECT_EQ(failureOfReading<point>(pointStart + std::string("73 00 01 'x' 53 00 01 'x' 'z'")),
              "Unknown map field type");
}

TEST(Record, TextInSeveralChunks) {
    EXPECT_EQ(
        readWhole<label>(bytes("'Mt' 00 07 't.label' 53 00 04 'name' 73 00 01 'a' 53 00 01 'b'"
                               "'z'"))
            .name,
        "ab");
}

TEST(Record, ExtraKeyIsRefusedEvenAsTheLast) {
    EXPECT_EQ(
        failureOfReading<point>(pointStart + std::string("53 00 01 'x' 49 00 00 00 01 53 00 01 'y'"
                                                         "49 00 00 00 02 53 00 03 'new' 54 'z'")),
        "Unknown map field type");
}

TEST(Record, ReplacesWhatStoodThere) {
    const Message message(bytes(pointStart + std::string("53 00 01 'y' 49 00 00 00 02 'z'")));
    auto in = message.cursor();
    point value{7, 7};
    readValue(in, value);
    EXPECT_EQ(value, (point{0, 2}));
}

TEST(Record, NullReferenceLeavesThePointerEmpty) {
    const auto value =
        readWhole<everything>(bytes("'Mt' 00 0C 't.everything' 'S' 00 05 'owner' 'N' 'z'"));
    EXPECT_FALSE(value.owner.url.has_value());
}

TEST(Enumeration, DeclaredValuesAreKept) {
    for (const std::int32_t number : {1, 3, 4, 16})
        EXPECT_EQ(hessianser::enumerationFrom<Colour>(number), static_cast<Colour>(number));
}

TEST(Enumeration, HolesAndOthersReadAsTheReservedValue) {
    for (const std::int32_t number : {0, 2, 17, 18, -1, INT32_MIN, INT32_MAX})
        EXPECT_EQ(hessianser::enumerationFrom<Colour>(number), static_cast<Colour>(17)) << number;
    EXPECT_EQ(hessianser::reservedValue<Colour>(), static_cast<Colour>(17));
}

TEST(Enumeration, MinusOneOnTheWireReadsAsTheReservedValue) {
    EXPECT_EQ(readWhole<Colour>(bytes("49 FF FF FF FF")), static_cast<Colour>(17));
    EXPECT_EQ(readWhole<everything>(bytes("'Mt' 00 0C 't.everything' 53 00 06 'colour'"
                                          "49 FF FF FF FF 'z'"))
                  .colour,
              static_cast<Colour>(17));
    EXPECT_EQ(readWhole<std::vector<Colour>>(bytes("56 49 FF FF FF FF 7A")),
              std::vector<Colour>{static_cast<Colour>(17)});
}

TEST(Enumeration, WritesWhateverIsStored) {
    EXPECT_EQ(written(static_cast<Colour>(17)), bytes("49 00 00 00 11"));
    EXPECT_EQ(written(static_cast<Colour>(-1)), bytes("49 FF FF FF FF"));
    EXPECT_EQ(written(static_cast<Colour>(2)), bytes("49 00 00 00 02"));
}

using hessianser::detail::areDistinct;
using hessianser::detail::isPlainName;
using Keys = std::array<std::string_view, 3>;

constexpr std::array<char, 32768> longName = [] {
    std::array<char, 32768> name{};
    name.fill('k');
    return name;
}();

enum class Undescribed : std::int32_t {};
struct Unknown {};

// The set of kinds is closed.
static_assert(hessianser::Value<everything>);
static_assert(hessianser::Value<std::vector<std::vector<Handle>>>);
static_assert(!hessianser::Value<double>);
static_assert(!hessianser::Value<std::int16_t>);
static_assert(!hessianser::Value<const char*>);
static_assert(!hessianser::Value<Undescribed>);
static_assert(!hessianser::Value<Unknown>);
static_assert(!hessianser::Value<std::vector<float>>);

// A record that violates one of these doesn't compile.
static_assert(isPlainName("name"));
static_assert(isPlainName({longName.data(), 32767}));
static_assert(!isPlainName({longName.data(), 32768}));
static_assert(!isPlainName("na\xC3\xAF"
                           "f"));
static_assert(areDistinct(Keys{"a", "b", "ab"}));
static_assert(!areDistinct(Keys{"a", "b", "a"}));
static_assert(!areDistinct(Keys{"a", "b", "b"}));

} // namespace
