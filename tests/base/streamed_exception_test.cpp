// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "base/streamed_exception.h"

#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace {

class failure final : public base::StreamedException<failure> {
    using StreamedException::StreamedException;
};

TEST(StreamedException, IsEmptyAtFirst) {
    EXPECT_STREQ(failure().what(), "");
}

TEST(StreamedException, BeginsWithAText) {
    EXPECT_STREQ(failure("text").what(), "text");
    EXPECT_STREQ((failure("text") << " and more").what(), "text and more");
}

TEST(StreamedException, JoinsTextsAndNumbers) {
    const std::string name = "end";
    EXPECT_STREQ((failure() << "from " << 1 << " to " << -2L << ", " << name).what(),
                 "from 1 to -2, end");
}

TEST(StreamedException, NumbersOfEveryWidthAreNumbers) {
    EXPECT_STREQ((failure() << std::numeric_limits<std::uint64_t>::max()).what(),
                 "18446744073709551615");
    EXPECT_STREQ((failure() << std::uint8_t{65}).what(), "65");
    EXPECT_STREQ((failure() << std::numeric_limits<std::int64_t>::min()).what(),
                 "-9223372036854775808");
}

TEST(StreamedException, ThrownWhileStreamingKeepsItsTypeAndText) {
    try {
        throw failure() << "code " << 7;
    } catch (const std::exception& caught) {
        EXPECT_STREQ(caught.what(), "code 7");
        EXPECT_NE(dynamic_cast<const failure*>(&caught), nullptr);
        return;
    }
    FAIL() << "nothing was caught";
}

} // namespace
