// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "allocation_count.h"
#include "support.h"
#include "tests/support/sample_values.h"

/// The codec's allocations. In a separate program, as the count covers the whole process.
namespace {

using namespace codec_test;
using namespace support;

TEST(Allocation, IsCounted) {
    const std::size_t before = allocations;
    const std::string text(100, 'x');
    EXPECT_EQ(allocations, before + 1);
}

TEST(Allocation, KeysNeedNone) {
    const std::string message =
        bytes("'Mt' 00 07 't.label' 'S' 00 04 'name' 'S' 00 02 'ab' 'S' 00 05 'shown' 'T'"
              "'S' 00 05 'value' 'S' 00 01 'c' 'z'");
    label record;
    hessianser::Cursor in(message);
    const std::size_t before = allocations;
    hessianser::readValue(in, record);
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(record, (label{"ab", true, "c"}));
}

TEST(Allocation, KeysInAnotherOrderNeedNone) {
    const std::string message =
        bytes("'Mt' 00 07 't.label' 'S' 00 05 'value' 'S' 00 01 'c' 'S' 00 05 'shown' 'T'"
              "'S' 00 04 'name' 'S' 00 02 'ab' 'z'");
    label record;
    hessianser::Cursor in(message);
    const std::size_t before = allocations;
    hessianser::readValue(in, record);
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(record, (label{"ab", true, "c"}));
}

TEST(Allocation, ReservedBufferIsEnough) {
    const label record{"\xC3\xA9", true, repeat("\xE2\x82\xAC", 40000)};
    std::string out;
    out.reserve(hessianser::sizeOfValue(record));
    const std::size_t before = allocations;
    hessianser::writeValue(record, out);
    EXPECT_EQ(allocations, before);
}

} // namespace
