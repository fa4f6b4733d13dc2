// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "support.h"
#include "tests/support/sample_values.h"

/// Each message that the readers refuse, and the error text. Where two checks would fail, the row
/// shows which one comes first.
namespace {

using namespace codec_test;
using namespace support;
using namespace hessianser;

struct Row {
    const char* name;
    void (*read)(Cursor&);
    const char* typed;
    const char* text;
};

void takeString(Cursor& in) {
    readString(in);
}
void takeMember(Cursor& in) {
    std::string_view name;
    std::string scratch;
    readMemberName(in, name, scratch);
}
template <class T>
void take(Cursor& in) {
    readValue<T>(in);
}

constexpr auto header = "Data stream truncated (too short for block header)";
constexpr auto wrongBlock = "Invalid data stream part - unexpected data block type";
constexpr auto contents = "Data stream truncated (block contents truncated)";
constexpr auto overflow = "Data stream truncated (block UTF-8 interpretation overflow)";
constexpr auto finalChar = "Data stream truncated (block contents truncated - final char)";
constexpr auto continuation = "Invalid UTF-8 character: continuation character at the beginning";
constexpr auto tooLarge = "Invalid UTF-8 character: character byte count too large";

const Row rows[] = {
    {"NullOfNothing", readNull, "", "Not enough space to decode a NULL"},
    {"NullOfAnotherTag", readNull, "'T'", "Not a NULL value"},

    {"BoolOfNothing", take<bool>, "", "Not enough space to decode a bool"},
    {"BoolOfAnotherTag", take<bool>, "'N'", "Not a bool value"},
    {"BoolOfSmallLetter", take<bool>, "'t'", "Not a bool value"},

    {"Int32OfNothing", take<std::int32_t>, "", "Not enough space to decode an int32"},
    {"Int32OneShort", take<std::int32_t>, "49 00 00 00", "Not enough space to decode an int32"},
    {"Int32ShortAndOfAnotherTag", take<std::int32_t>, "4C 00 00 00",
     "Not enough space to decode an int32"},
    {"Int32OfAnotherTag", take<std::int32_t>, "4C 00 00 00 00", "Not an int32 value"},
    {"Int32OfNull", take<std::int32_t>, "4E 7A 7A 7A 7A", "Not an int32 value"},
    {"Uint32OfAnotherTag", take<std::uint32_t>, "4C 00 00 00 00", "Not an int32 value"},
    {"EnumerationOneShort", take<Colour>, "49 00 00 00", "Not enough space to decode an int32"},
    {"EnumerationOfAnotherTag", take<Colour>, "53 00 02 'ab'", "Not an int32 value"},

    {"Int64OfNothing", take<std::int64_t>, "", "Not enough space to decode an int64"},
    {"Int64OneShort", take<std::int64_t>, "4C 00 00 00 00 00 00 00",
     "Not enough space to decode an int64"},
    {"Int64ShortAndOfAnotherTag", take<std::int64_t>, "49 00 00 00 00 7A 7A 7A",
     "Not enough space to decode an int64"},
    {"Int64OfAnotherTag", take<std::int64_t>, "49 00 00 00 00 7A 7A 7A 7A", "Not an int64 value"},

    {"StringOfNothing", takeString, "", header},
    {"StringTwoBytes", takeString, "53 00", header},
    {"StringTwoBytesOfAnotherTag", takeString, "49 00", header},
    {"StringOfBinary", takeString, "42 00 00", wrongBlock},
    {"StringOfNull", takeString, "4E 7A 7A", wrongBlock},
    {"StringOfAnotherTagAndCut", takeString, "42 00 05", wrongBlock},
    {"StringCut", takeString, "53 00 02 61", contents},
    {"StringOfLargestCountCut", takeString, "53 FF FF 61", contents},
    {"StringCutBeforeItsBadByte", takeString, "53 00 02 BF", contents},
    {"StringOfWideCharactersCut", takeString, "53 00 02 C3 A9", overflow},
    {"StringOfWideCharactersCutWithin", takeString, "53 00 02 F0 9F", overflow},
    {"StringCutInItsLastCharacter", takeString, "53 00 01 F0 9F", finalChar},
    {"StringCutInItsLastCharacterAfterOthers", takeString, "53 00 03 'ab' E2 82", finalChar},
    {"StringOfContinuation", takeString, "53 00 01 BF", continuation},
    {"StringOfContinuationLater", takeString, "53 00 02 'a' 81", continuation},
    {"StringOfImpossibleByte", takeString, "53 00 01 FF", tooLarge},
    {"StringOfFiveByteSequence", takeString, "53 00 01 F8 88 80 80 80", tooLarge},
    {"StringEndsAfterAChunkWithMore", takeString, "73 00 01 61", header},
    {"StringEndsInTheSecondHead", takeString, "73 00 01 61 53 00", header},
    {"StringGoesOnAsBinary", takeString, "73 00 01 61 42 00 00", wrongBlock},
    {"StringCutInItsSecondChunk", takeString, "73 00 01 61 53 00 02 61", contents},

    {"BinaryOfNothing", take<Binary>, "", header},
    {"BinaryTwoBytes", take<Binary>, "42 00", header},
    {"BinaryOfString", take<Binary>, "53 00 00", wrongBlock},
    {"BinaryCut", take<Binary>, "42 00 02 61", contents},
    {"BinaryEndsAfterAChunkWithMore", take<Binary>, "62 00 01 61", header},
    {"BinaryGoesOnAsString", take<Binary>, "62 00 01 61 53 00 00", wrongBlock},

    {"TypeOfNothing", [](Cursor& in) { readType(in); }, "", header},
    {"TypeTwoBytes", [](Cursor& in) { readType(in); }, "74 00", header},
    {"TypeOfString", [](Cursor& in) { readType(in); }, "53 00 00", wrongBlock},
    {"TypeCut", [](Cursor& in) { readType(in); }, "74 00 02 61", contents},

    {"RemoteOfNothing", [](Cursor& in) { readRemote(in); }, "",
     "Not enough space to decode a remote"},
    {"RemoteThreeBytes", [](Cursor& in) { readRemote(in); }, "72 53 00",
     "Not enough space to decode a remote"},
    {"RemoteThreeBytesOfAnotherTag", [](Cursor& in) { readRemote(in); }, "53 00 00",
     "Not enough space to decode a remote"},
    {"RemoteOfAnotherTag", [](Cursor& in) { readRemote(in); }, "53 00 01 61",
     "Not a remote object"},
    {"RemoteEndsAfterTheType", [](Cursor& in) { readRemote(in); }, "72 74 00 01 61", header},
    {"RemoteTypeCut", [](Cursor& in) { readRemote(in); }, "72 74 00 05 61", contents},
    {"RemoteOfBinary", [](Cursor& in) { readRemote(in); }, "72 42 00 00", wrongBlock},
    {"RemoteOfTwoTypes", [](Cursor& in) { readRemote(in); }, "72 74 00 00 74 00 00", wrongBlock},
    {"ReferenceOfNothing", take<Handle>, "", "Not enough space to decode a remote"},
    {"ReferenceOfAnotherTag", take<Handle>, "'TTTT'", "Not a remote object"},

    {"ReplyOfNothing", readReplyStart, "", "Not enough space to decode a reply"},
    {"ReplyTwoBytes", readReplyStart, "72 01", "Not enough space to decode a reply"},
    {"ReplyTwoBytesOfAnotherTag", readReplyStart, "63 01", "Not enough space to decode a reply"},
    {"ReplyOfAnotherTag", readReplyStart, "63 01 00", "Not a reply start"},
    {"ReplyOfAnotherMajor", readReplyStart, "72 02 00", "Not a reply start"},
    {"ReplyOfAnotherMinor", readReplyStart, "72 01 01", "Not a reply start"},

    {"FaultOfNothing", [](Cursor& in) { readFault(in); }, "",
     "Not enough space to decode a fault start"},
    {"FaultOfAnotherTag", [](Cursor& in) { readFault(in); }, "'z'", "Not a fault object"},
    {"FaultEndsAtOnce", [](Cursor& in) { readFault(in); }, "'f'", header},
    {"FaultEndsAfterAKey", [](Cursor& in) { readFault(in); }, "'f' 53 00 04 'code'", header},
    {"FaultEndsAfterAValue", [](Cursor& in) { readFault(in); }, "'f' 53 00 04 'code' 53 00 01 'c'",
     header},
    {"FaultOfNumericKey", [](Cursor& in) { readFault(in); }, "'f' 49 00 00 00 01", wrongBlock},
    {"FaultOfNumericValue", [](Cursor& in) { readFault(in); }, "'f' 53 00 04 'code' 49 00 00 00 01",
     wrongBlock},
    {"FaultOfNullMessage", [](Cursor& in) { readFault(in); }, "'f' 53 00 07 'message' 'Nzz'",
     wrongBlock},

    {"EndOfNothing", readEnd, "", "Not enough space to read a reply end"},
    {"EndOfAnotherTag", readEnd, "'N'", "Not a remote call end"},

    {"MapOfNothing", take<point>, "", "Not enough space to decode a map start"},
    {"MapOneShort", take<point>, "'Mt' 00 07 't.poin'", "Not enough space to decode a map start"},
    {"MapShortAndOfAnotherTag", take<point>, "'Vz'", "Not enough space to decode a map start"},
    {"MapOfAnotherTag", take<point>, "'Vt' 00 07 't.point'", "Not a map start"},
    {"MapWithoutType", take<point>, "'M' 53 00 07 't.point'", "Map does not start with a type"},
    {"MapOfShorterType", take<point>, "'Mt' 00 06 't.poin' 'z'",
     "Map type different than the expected type (length difference)"},
    {"MapOfLongerType", take<point>, "'Mt' 01 07 't.point'",
     "Map type different than the expected type (length difference)"},
    {"MapOfAnotherType", take<point>, "'Mt' 00 07 't.Point'",
     "Map type different than the expected type (content difference)"},

    {"MemberOfNothing", takeMember, "",
     "Not enough space to read a map end marker (or member name)"},
    {"MemberOneByte", takeMember, "'S'", header},
    {"MemberOfAnotherTag", takeMember, "49 00 00 00 01", wrongBlock},
    {"MemberCut", takeMember, "53 00 02 'x'", contents},
    {"MemberOfBadText", takeMember, "53 00 01 BF", continuation},
    {"MemberCutInItsSecondChunk", takeMember, "73 00 01 'x' 53 00 01", contents},

    {"RecordEndsAfterItsStart", take<point>, "'Mt' 00 07 't.point'",
     "Not enough space to read a map end marker (or member name)"},
    {"RecordEndsAfterAMember", take<point>, "'Mt' 00 07 't.point' 53 00 01 'x' 49 00 00 00 05",
     "Not enough space to read a map end marker (or member name)"},
    {"RecordEndsAfterAllMembers", take<point>,
     "'Mt' 00 07 't.point' 53 00 01 'x' 49 00 00 00 05 53 00 01 'y' 49 00 00 00 05",
     "Not enough space to read a map end marker (or member name)"},
    {"RecordEndsAfterAKey", take<point>, "'Mt' 00 07 't.point' 53 00 01 'x'",
     "Not enough space to decode an int32"},
    {"RecordEndsInANumber", take<point>, "'Mt' 00 07 't.point' 53 00 01 'x' 49 00 00 00",
     "Not enough space to decode an int32"},
    {"RecordWithShortMemberOfAnotherKind", take<point>, "'Mt' 00 07 't.point' 53 00 01 'x' 'TzTz'",
     "Not enough space to decode an int32"},
    {"RecordWithMemberOfAnotherKind", take<point>,
     "'Mt' 00 07 't.point' 53 00 01 'x' 4C 00 00 00 00 00 00 00 05 'z'", "Not an int32 value"},
    {"RecordWithNullMember", take<point>, "'Mt' 00 07 't.point' 53 00 01 'x' 'Nzzzz'",
     "Not an int32 value"},
    {"RecordWithNullText", take<label>, "'Mt' 00 07 't.label' 53 00 04 'name' 'Nzz'", wrongBlock},
    {"RecordWithTextForBool", take<label>, "'Mt' 00 07 't.label' 53 00 05 'shown' 53 00 00 'z'",
     "Not a bool value"},
    {"RecordWithUnknownKey", take<point>, "'Mt' 00 07 't.point' 53 00 01 'w' 49 00 00 00 05 'z'",
     "Unknown map field type"},
    {"RecordWithUnknownKeyCutBehindIt", take<point>, "'Mt' 00 07 't.point' 53 00 01 'w'",
     "Unknown map field type"},
    {"RecordWithUnknownKeyAtTheEnd", take<point>,
     "'Mt' 00 07 't.point' 53 00 01 'x' 49 00 00 00 05 53 00 01 'y' 49 00 00 00 06"
     "53 00 01 'w' 54 'z'",
     "Unknown map field type"},
    {"RecordWithKeyInAnotherCase", take<point>,
     "'Mt' 00 07 't.point' 53 00 01 'X' 49 00 00 00 05 'z'", "Unknown map field type"},
    {"RecordWithLongerKey", take<point>, "'Mt' 00 07 't.point' 53 00 02 'xx' 49 00 00 00 05 'z'",
     "Unknown map field type"},
    {"RecordWithEmptyKey", take<point>, "'Mt' 00 07 't.point' 53 00 00 49 00 00 00 05 'z'",
     "Unknown map field type"},
    {"RecordWithKeyOfAnotherTag", take<point>, "'Mt' 00 07 't.point' 74 00 01 'x' 'z'", wrongBlock},
    {"RecordWithoutMembersGetsOne", take<nothing>, "'Mt' 00 09 't.nothing' 53 00 01 'x' 'T' 'z'",
     "Unknown map field type"},
    {"NestedRecordOfAnotherType", take<everything>,
     "'Mt' 00 0C 't.everything' 53 00 05 'where' 'Mt' 00 07 't.label' 'zz'",
     "Map type different than the expected type (content difference)"},

    {"ListOfNothing", take<std::vector<bool>>, "", "Not enough space to decode a list"},
    {"ListOneByte", take<std::vector<bool>>, "'V'", "Not enough space to decode a list"},
    {"ListOneByteOfAnotherTag", take<std::vector<bool>>, "'M'",
     "Not enough space to decode a list"},
    {"ListOfAnotherTag", take<std::vector<bool>>, "'Mz'", "Not a list value"},
    {"ListOfNull", take<std::vector<bool>>, "'Nz'", "Not a list value"},
    {"ListTypeCutInItsHead", take<std::vector<bool>>, "'Vt' 00", header},
    {"ListTypeCut", take<std::vector<bool>>, "'Vt' 00 05 'a'", contents},
    {"ListEndsAfterItsType", take<std::vector<bool>>, "'Vt' 00 01 'a'",
     "List stream truncated (not enough space for end marker after type)."},
    {"ListEndsInItsLength", take<std::vector<bool>>, "'Vl' 00 00 00",
     "Not enough space for list content after list length"},
    {"ListEndsAfterItsLength", take<std::vector<bool>>, "'Vl' 00 00 00 05",
     "Not enough space for list content after list length"},
    {"ListEndsAfterTypeAndLength", take<std::vector<bool>>, "'Vt' 00 01 'a' 'l' 00 00 00 05",
     "Not enough space for list content after list length"},
    {"ListEndsAfterAnElement", take<std::vector<bool>>, "'VT'",
     "List stream truncated (not enough space for end marker)."},
    {"ListWithElementOfAnotherKind", take<std::vector<bool>>, "'VTNz'", "Not a bool value"},
    {"ListWithLengthBehindAnElement", take<std::vector<bool>>, "'VTl' 00 00 00 05 'z'",
     "Not a bool value"},
    {"ListWithTypeBehindItsLength", take<std::vector<bool>>, "'Vl' 00 00 00 05 't' 00 00 'z'",
     "Not a bool value"},
    {"ListOfRecordsCut", take<std::vector<point>>, "'V' 'Mt' 00 07 't.point' 'z'",
     "List stream truncated (not enough space for end marker)."},
};

class Refusal : public testing::TestWithParam<Row> {};

TEST_P(Refusal, HasItsText) {
    const Message message(bytes(GetParam().typed));
    EXPECT_EQ(failureOf([&] {
                  auto in = message.cursor();
                  GetParam().read(in);
              }),
              GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Reader, Refusal, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
