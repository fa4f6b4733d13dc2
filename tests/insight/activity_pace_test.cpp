// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <limits>

#include "insight/activity_pace.h"

using insight::ActivityPace;
using insight::Pace;

namespace {

struct Recorded {
    std::int64_t time;
    std::int64_t bytes;
    std::int64_t bytesLeft;
    std::int32_t files = 0;
    std::int32_t filesLeft = 0;
};

Pace replay(std::initializer_list<Recorded> sequence) {
    ActivityPace pace;
    for (const Recorded& one : sequence) {
        hessiancln::running_activity_info info;
        info.activity_id = 7;
        info.size_processed = one.bytes;
        info.size_left = one.bytesLeft;
        info.files_processed = one.files;
        info.files_left = one.filesLeft;
        pace.observe({info}, one.time);
    }
    return pace.of(7).value();
}

TEST(ActivityPace, AtFirstSightNothingIsKnown) {
    const Pace pace = replay({{1000, 500, 500}});
    EXPECT_FALSE(pace.bytesPerSecond);
    EXPECT_FALSE(pace.secondsLeft);
    EXPECT_EQ(pace.idleFor, 0);
}

TEST(ActivityPace, TheSpeedOfTheLastMinute) {
    // 100 a second for a minute, then 10 a second for another one.
    const Pace pace = replay({{0, 0, 9'000},
                              {30, 3'000, 6'000},
                              {60, 6'000, 3'000},
                              {90, 6'300, 2'700},
                              {120, 6'600, 2'400}});
    EXPECT_DOUBLE_EQ(pace.bytesPerSecond.value(), 10);
    EXPECT_EQ(pace.secondsLeft, 240);
}

TEST(ActivityPace, TotalsThatGrowMoveTheEnd) {
    const Pace before = replay({{0, 0, 1'000}, {5, 500, 500}});
    EXPECT_EQ(before.secondsLeft, 5);
    const Pace after = replay({{0, 0, 1'000}, {5, 500, 500}, {10, 1'000, 4'000}});
    EXPECT_EQ(after.secondsLeft, 40);
}

TEST(ActivityPace, WithoutTotalsThereIsASpeedAndNoEnd) {
    const Pace pace = replay({{0, 0, 0}, {5, 500, 0}});
    EXPECT_DOUBLE_EQ(pace.bytesPerSecond.value(), 100);
    EXPECT_FALSE(pace.secondsLeft);
}

TEST(ActivityPace, FilesAloneTellTheEndToo) {
    const Pace pace = replay({{0, 0, 0, 0, 100}, {10, 0, 0, 20, 80}});
    EXPECT_DOUBLE_EQ(pace.filesPerSecond.value(), 2);
    EXPECT_EQ(pace.secondsLeft, 40);
}

TEST(ActivityPace, StandsStillSinceTheLastMove) {
    EXPECT_EQ(replay({{0, 0, 900}, {10, 100, 800}, {130, 100, 800}, {250, 100, 800}}).idleFor, 240);
    // A file without bytes counts as progress.
    EXPECT_EQ(replay({{0, 0, 900, 1}, {10, 0, 900, 2}, {15, 0, 900, 2}}).idleFor, 5);
    // A growing total doesn't.
    EXPECT_EQ(replay({{0, 0, 900}, {10, 0, 1'000}, {20, 0, 2'000}}).idleFor, 20);
}

TEST(ActivityPace, AStandstillLeavesNoEstimate) {
    EXPECT_FALSE(replay({{0, 100, 800}, {30, 100, 800}, {60, 100, 800}}).secondsLeft);
}

TEST(ActivityPace, CountsThatGoBackStartOver) {
    const Pace pace = replay({{0, 0, 900}, {10, 1'000, 800}, {20, 10, 800}, {30, 30, 800}});
    EXPECT_DOUBLE_EQ(pace.bytesPerSecond.value(), 2);
}

TEST(ActivityPace, AClockThatWasSetBackStartsOver) {
    const Pace pace = replay({{1000, 0, 900}, {1010, 1'000, 800}, {20, 1'000, 800}});
    EXPECT_FALSE(pace.bytesPerSecond);
    EXPECT_EQ(pace.idleFor, 0);
}

TEST(ActivityPace, TwoListsOfOneSecondAreOne) {
    const Pace pace = replay({{0, 0, 900}, {10, 500, 400}, {10, 1'000, 0}});
    EXPECT_DOUBLE_EQ(pace.bytesPerSecond.value(), 100);
}

TEST(ActivityPace, NumbersBeyondReasonDoNoHarm) {
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const Pace pace = replay({{0, -most, most}, {1, most, most}});
    EXPECT_GT(pace.bytesPerSecond.value(), 1e18);
    EXPECT_FALSE(replay({{0, 0, most}, {1'000, 1, most}}).secondsLeft);
}

TEST(ActivityPace, WhatHasGoneIsForgotten) {
    ActivityPace pace;
    hessiancln::running_activity_info info;
    info.activity_id = 7;
    pace.observe({info}, 0);
    EXPECT_TRUE(pace.of(7));
    EXPECT_FALSE(pace.of(8));
    pace.observe({}, 5);
    EXPECT_FALSE(pace.of(7));
}

} // namespace
