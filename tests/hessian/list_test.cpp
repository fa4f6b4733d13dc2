// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>
#include <stdexcept>

#include <gtest/gtest.h>

#include "support.h"
#include "tests/support/sample_values.h"

/// Lists beyond their plain form: what may precede the elements, and how large they grow.
namespace {

using namespace codec_test;
using namespace support;
using hessianser::readValue;

using Numbers = std::vector<std::int32_t>;
using Points = std::vector<point>;

TEST(List, EmptyIsTwoBytes) {
    EXPECT_EQ(written(Points{}), bytes("56 7A"));
    EXPECT_EQ(readWhole<Points>(bytes("56 7A")), Points{});
}

TEST(List, LengthInFrontIsIgnored) {
    EXPECT_EQ(readWhole<Points>(bytes("56 6C 00 00 00 05 7A")), Points{});
    EXPECT_EQ(readWhole<Numbers>(bytes("56 6C FF FF FF FF 49 00 00 00 07 7A")), Numbers{7});
    EXPECT_EQ(readWhole<Numbers>(bytes("56 6C 00 00 00 00 49 00 00 00 07 7A")), Numbers{7});
}

TEST(List, TypeInFrontIsDropped) {
    EXPECT_EQ(readWhole<Numbers>(bytes("56 74 00 03 'int' 49 00 00 00 07 7A")), Numbers{7});
    EXPECT_EQ(readWhole<Numbers>(bytes("56 74 00 00 7A")), Numbers{});
}

TEST(List, TypeAndLengthInFront) {
    EXPECT_EQ(readWhole<Numbers>(bytes("56 74 00 03 'int' 6C 00 00 00 01 7A")), Numbers{});
}

TEST(List, OfRecordsWithTypeAndLengthReadsTheSame) {
    const std::string elements = "'Mt' 00 07 't.point' 'S' 00 01 'x' 'I' 00 00 00 01"
                                 " 'S' 00 01 'y' 'I' 00 00 00 02 'z'"
                                 "'Mt' 00 07 't.point' 'S' 00 01 'x' 'I' 00 00 00 03"
                                 " 'S' 00 01 'y' 'I' 00 00 00 04 'z' 'z'";
    const Points expected{{1, 2}, {3, 4}};
    EXPECT_EQ(readWhole<Points>(bytes("56 " + elements)), expected);
    EXPECT_EQ(readWhole<Points>(bytes("56 74 00 08 '[t.point' 6C 00 00 00 02 " + elements)),
              expected);
}

TEST(List, ReplacesWhatStoodThere) {
    const Message message(bytes("56 49 00 00 00 07 7A"));
    auto in = message.cursor();
    Numbers list{1, 2, 3};
    readValue(in, list);
    EXPECT_EQ(list, Numbers{7});
}

TEST(List, OfListsKeepsTheEndsApart) {
    using Nested = std::vector<Numbers>;
    EXPECT_EQ(readWhole<Nested>(bytes("56 56 7A 56 6C 00 00 00 01 49 00 00 00 07 7A 56 7A 7A")),
              (Nested{{}, {7}, {}}));
}

TEST(List, KeepsTheOrderOfManyElements) {
    std::string wire = "V";
    for (int i = 0; i < 100'000; ++i) {
        const auto high = static_cast<char>(i >> 16);
        const auto middle = static_cast<char>(i >> 8);
        wire += {'I', '\0', high, middle, static_cast<char>(i)};
    }
    wire += 'z';
    const auto list = readWhole<Numbers>(wire);
    ASSERT_EQ(list.size(), 100'000u);
    for (int i = 0; i < 100'000; ++i)
        ASSERT_EQ(list[static_cast<std::size_t>(i)], i);
    EXPECT_EQ(written(list), wire);
}

/// Neither a length from the wire nor a small first element makes a list allocate without bound.
TEST(List, RoomIsBoundedByTheBytesThatCame) {
    const std::string text = repeat("x", 32767);
    std::string wire = bytes("56 6C 7F FF FF FF 53 00 00");
    for (int i = 0; i < 30; ++i)
        wire += bytes("73 7F FF") + text;
    wire += bytes("53 00 00 7A");
    const auto list = readWhole<std::vector<std::string>>(wire);
    ASSERT_EQ(list.size(), 2u);
    EXPECT_LE(list.capacity() * 3, wire.size()) << "no element takes less than 3 bytes";
}

/// An allocator that has room for two elements.
template <class T>
struct RoomForTwo : std::allocator<T> {
    template <class U>
    struct rebind {
        using other = RoomForTwo<U>;
    };
    std::size_t max_size() const { return 2; }
};

TEST(List, RefusesMoreThanItsContainerHolds) {
    using Short = std::vector<std::int32_t, RoomForTwo<std::int32_t>>;
    const Message full(bytes("56 49 00 00 00 01 49 00 00 00 02 7A"));
    auto in = full.cursor();
    EXPECT_EQ(readValue<Short>(in).size(), 2u);

    const Message more(bytes("56 49 00 00 00 01 49 00 00 00 02 49 00 00 00 03 7A"));
    in = more.cursor();
    try {
        readValue<Short>(in);
        FAIL() << "nothing was raised";
    } catch (const std::length_error& failure) {
        EXPECT_STREQ(failure.what(), "list<T> too long");
    }
}

} // namespace
