// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "insight/schedule_plan.h"
#include "tests/insight/plans.h"

using insight::PlanDetail;
using insight::SchedulePlan;
using plans::at;
using plans::berlin;
using plans::everyDay;
using plans::hourly;
using plans::monthly;
using plans::weekly;
using plans::workdays;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The starts in UTC, as in "2026-11-23T19:00:00Z".
std::vector<std::string> starts(const std::vector<PlanDetail>& details, const char* from,
                                const char* until, const QTimeZone& zone = berlin()) {
    std::vector<std::string> list;
    for (const auto& start : insight::startsBetween({details}, at(from), at(until), zone))
        list.push_back(QDateTime::fromSecsSinceEpoch(start.start, Qt::UTC)
                           .toString(Qt::ISODate)
                           .toStdString());
    return list;
}

TEST(SchedulePlan, RunsOnItsDaysAtTheLocalTime) {
    // From a Friday to a Tuesday.
    EXPECT_THAT(
        starts({weekly(workdays, 20)}, "2026-11-20T00:00:00Z", "2026-11-25T00:00:00Z"),
        ElementsAre("2026-11-20T19:00:00Z", "2026-11-23T19:00:00Z", "2026-11-24T19:00:00Z"));
    EXPECT_THAT(starts({weekly(64, 20)}, "2026-11-20T00:00:00Z", "2026-11-25T00:00:00Z"),
                ElementsAre("2026-11-22T19:00:00Z"));
    EXPECT_THAT(starts({weekly(0, 20)}, "2026-11-20T00:00:00Z", "2026-11-25T00:00:00Z"), IsEmpty());
}

TEST(SchedulePlan, TheBordersOfTheSpan) {
    EXPECT_THAT(starts({weekly(everyDay, 20)}, "2026-11-20T19:00:00Z", "2026-11-21T19:00:00Z"),
                ElementsAre("2026-11-20T19:00:00Z"));
    EXPECT_THAT(starts({weekly(everyDay, 20)}, "2026-11-20T19:00:01Z", "2026-11-21T19:00:01Z"),
                ElementsAre("2026-11-21T19:00:00Z"));
}

TEST(SchedulePlan, RepeatsUntilItsEnd) {
    EXPECT_THAT(
        starts({hourly(4, weekly(everyDay, 8), {16, 0, 0})}, "2026-11-20T00:00:00Z",
               "2026-11-21T00:00:00Z"),
        ElementsAre("2026-11-20T07:00:00Z", "2026-11-20T11:00:00Z", "2026-11-20T15:00:00Z"));
    EXPECT_THAT(starts({hourly(4, weekly(everyDay, 8), {15, 59, 0})}, "2026-11-20T00:00:00Z",
                       "2026-11-21T00:00:00Z"),
                ElementsAre("2026-11-20T07:00:00Z", "2026-11-20T11:00:00Z"));
}

TEST(SchedulePlan, RepeatsAcrossMidnight) {
    EXPECT_THAT(
        starts({hourly(2, weekly(16, 22), {26, 0, 0})}, "2026-11-20T00:00:00Z",
               "2026-11-22T00:00:00Z", QTimeZone::utc()),
        ElementsAre("2026-11-20T22:00:00Z", "2026-11-21T00:00:00Z", "2026-11-21T02:00:00Z"));
    // The span starts on the day after the first start.
    EXPECT_THAT(starts({hourly(2, weekly(16, 22), {26, 0, 0})}, "2026-11-21T01:00:00Z",
                       "2026-11-22T00:00:00Z", QTimeZone::utc()),
                ElementsAre("2026-11-21T02:00:00Z"));
}

TEST(SchedulePlan, AnEndBeyondTheNextDayDoesNotRepeatTheNextSeries) {
    EXPECT_THAT(
        starts({hourly(12, weekly(everyDay, 6), {100, 0, 0})}, "2026-11-20T00:00:00Z",
               "2026-11-21T07:00:00Z", QTimeZone::utc()),
        ElementsAre("2026-11-20T06:00:00Z", "2026-11-20T18:00:00Z", "2026-11-21T06:00:00Z"));
}

TEST(SchedulePlan, TheStopIsCountedFromTheDayOfTheStart) {
    PlanDetail detail = weekly(everyDay, 20);
    detail.end = {{30, 0, 0}};
    const auto list = insight::startsBetween({{detail}}, at("2026-11-20T00:00:00Z"),
                                             at("2026-11-21T00:00:00Z"), berlin());
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].stop, at("2026-11-21T05:00:00Z"));
}

TEST(SchedulePlan, AMonthWithoutTheDayIsSkipped) {
    EXPECT_THAT(
        starts({monthly(31, 3)}, "2027-01-01T00:00:00Z", "2027-06-01T00:00:00Z"),
        ElementsAre("2027-01-31T02:00:00Z", "2027-03-31T01:00:00Z", "2027-05-31T01:00:00Z"));
    EXPECT_THAT(starts({monthly(29, 3)}, "2028-02-01T00:00:00Z", "2028-03-01T00:00:00Z"),
                ElementsAre("2028-02-29T02:00:00Z"));
}

TEST(SchedulePlan, ATimeThatTheClockSkipsComesAnHourLater) {
    // 02:00 becomes 03:00 on 2026-03-29.
    EXPECT_THAT(
        starts({weekly(everyDay, 2, 30)}, "2026-03-28T00:00:00Z", "2026-03-31T00:00:00Z"),
        ElementsAre("2026-03-28T01:30:00Z", "2026-03-29T01:30:00Z", "2026-03-30T00:30:00Z"));
}

TEST(SchedulePlan, OfATimeThatComesTwiceTheFirstCounts) {
    // 03:00 becomes 02:00 on 2026-10-25.
    EXPECT_THAT(
        starts({weekly(everyDay, 2, 30)}, "2026-10-24T00:00:00Z", "2026-10-27T00:00:00Z"),
        ElementsAre("2026-10-24T00:30:00Z", "2026-10-25T00:30:00Z", "2026-10-26T01:30:00Z"));
}

TEST(SchedulePlan, ASkippedHourOfASeriesIsNotRunTwice) {
    EXPECT_THAT(
        starts({hourly(1, weekly(64, 1), {4, 0, 0})}, "2026-03-29T00:00:00Z",
               "2026-03-30T00:00:00Z"),
        ElementsAre("2026-03-29T00:00:00Z", "2026-03-29T01:00:00Z", "2026-03-29T02:00:00Z"));
}

TEST(SchedulePlan, WhatStartsNoBackupIsLeftOut) {
    PlanDetail retention = weekly(everyDay, 20);
    retention.tasks = 2;
    PlanDetail other = weekly(everyDay, 20);
    other.type = hessiancln::ScheduleDetailType{0};
    PlanDetail nonsense = weekly(everyDay, 25);
    PlanDetail negative = weekly(everyDay, -1);
    EXPECT_THAT(starts({retention, other, nonsense, negative}, "2026-11-20T00:00:00Z",
                       "2026-11-25T00:00:00Z"),
                IsEmpty());
}

TEST(SchedulePlan, PartsOfOneTimeStartOnce) {
    EXPECT_THAT(starts({weekly(everyDay, 20), weekly(everyDay, 20), weekly(everyDay, 8)},
                       "2026-11-20T00:00:00Z", "2026-11-21T00:00:00Z"),
                ElementsAre("2026-11-20T07:00:00Z", "2026-11-20T19:00:00Z"));
}

TEST(SchedulePlan, TheLastStartIsAtOrBeforeTheTime) {
    const SchedulePlan plan{{weekly(16, 20)}}; // Fridays
    const auto last = [&](const char* time) {
        return insight::lastStart(plan, at(time), berlin());
    };
    EXPECT_EQ(last("2026-11-20T19:00:00Z"), at("2026-11-20T19:00:00Z"));
    EXPECT_EQ(last("2026-11-20T18:59:59Z"), at("2026-11-13T19:00:00Z"));
    EXPECT_EQ(insight::lastStart({{monthly(31, 3)}}, at("2026-03-31T00:00:00Z"), berlin()),
              at("2026-01-31T02:00:00Z"));
    EXPECT_EQ(insight::lastStart({}, at("2026-11-20T19:00:00Z"), berlin()), std::nullopt);
}

TEST(SchedulePlan, TheNextStartIsAtOrAfterTheTime) {
    const SchedulePlan plan{{weekly(16, 20)}};
    EXPECT_EQ(insight::nextStart(plan, at("2026-11-20T19:00:00Z"), berlin()),
              at("2026-11-20T19:00:00Z"));
    EXPECT_EQ(insight::nextStart(plan, at("2026-11-20T19:00:01Z"), berlin()),
              at("2026-11-27T19:00:00Z"));
}

TEST(SchedulePlan, TheLongestInterval) {
    constexpr std::int64_t hour = 3600;
    constexpr std::int64_t day = 24 * hour;
    const auto interval = [](const PlanDetail& detail) {
        return insight::longestInterval({{detail}});
    };
    EXPECT_EQ(interval(weekly(everyDay, 20)), day);
    EXPECT_EQ(interval(weekly(workdays, 20)), 3 * day);
    EXPECT_EQ(interval(weekly(1, 20)), 7 * day);
    EXPECT_EQ(interval(hourly(4, weekly(everyDay, 8), {16, 0, 0})), 16 * hour);
    EXPECT_EQ(interval(monthly(1, 20)), 31 * day);
    EXPECT_EQ(interval(monthly(31, 20)), 61 * day); // from October to December
    EXPECT_EQ(interval(weekly(0, 20)), std::nullopt);
}

} // namespace
