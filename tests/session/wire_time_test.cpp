// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/wire_time.h"

#include <gtest/gtest.h>

namespace {

TEST(WireTime, ATimeIsSecondsSince1970) {
    EXPECT_EQ(session::wireTime(QDateTime({1970, 1, 2}, {0, 0, 1, 999}, Qt::UTC)), 86401);
}

TEST(WireTime, ATimeOutOfRangeBecomesTheNearest) {
    EXPECT_EQ(session::wireTime(QDateTime({2100, 1, 1}, {0, 0}, Qt::UTC)), INT32_MAX);
    EXPECT_EQ(session::wireTime(QDateTime({1800, 1, 1}, {0, 0}, Qt::UTC)), INT32_MIN);
}

TEST(WireTime, ATimeOfDayCountsToTheMinute) {
    const hessiancln::time_in_day wire = session::wireTime(QTime(23, 59, 58));
    EXPECT_EQ(wire.hour, 23);
    EXPECT_EQ(wire.minute, 59);
    EXPECT_EQ(wire.second, 0);
}

} // namespace
