// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/log_span.h"

#include <gtest/gtest.h>

#include "tests/support/time_zone.h"

namespace {

using support::TimeZone;

constexpr const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr const char* cairo = "EET-2EEST,M4.5.5/0,M10.5.4/24";

std::string text(const QDateTime& time) {
    return time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString();
}

TEST(LogSpan, IsTwoWholeDays) {
    const TimeZone zone(berlin);
    const app::LogSpan span = app::yesterdayAndToday({2026, 11, 21});
    EXPECT_EQ(text(span.from), "2026-11-20 00:00:00.000");
    EXPECT_EQ(text(span.to), "2026-11-21 23:59:59.999");
    EXPECT_EQ(span.from.toSecsSinceEpoch(), 1795129200);
}

TEST(LogSpan, CrossesTheEndOfAYear) {
    const TimeZone zone("UTC");
    EXPECT_EQ(text(app::yesterdayAndToday({2027, 1, 1}).from), "2026-12-31 00:00:00.000");
}

TEST(LogSpan, BeginsLaterOnADayWithoutMidnight) {
    const TimeZone zone(cairo);
    const app::LogSpan span = app::yesterdayAndToday({2026, 4, 25});
    EXPECT_EQ(text(span.from), "2026-04-24 01:00:00.000");
    EXPECT_EQ(span.from.toSecsSinceEpoch(), 1776981600);
}

} // namespace
