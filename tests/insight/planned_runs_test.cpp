// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "insight/planned_runs.h"
#include "tests/insight/plans.h"

using insight::PlannedRun;
using insight::SchedulePlan;
using plans::at;
using plans::everyDay;
using plans::weekly;
using testing::ElementsAre;

namespace {

const QTimeZone utc = QTimeZone::utc();

/// As in "Mail 20:00-20:30!", where "!" marks an overlap.
std::vector<std::string> written(const std::vector<PlannedRun>& runs) {
    std::vector<std::string> list;
    for (const PlannedRun& run : runs) {
        const auto clock = [](std::int64_t time) {
            return QDateTime::fromSecsSinceEpoch(time, Qt::UTC)
                .toString(QStringLiteral("hh:mm"))
                .toStdString();
        };
        list.push_back(run.name + " " + clock(run.start) + "-" + clock(run.end) +
                       (run.overlaps ? "!" : ""));
    }
    return list;
}

TEST(PlannedRuns, OfSeveralSetsInTheOrderOfTheirStarts) {
    const SchedulePlan evening{{weekly(everyDay, 20)}};
    const SchedulePlan morning{{weekly(everyDay, 8)}};
    const auto runs =
        insight::plannedRuns({{1, "Mail", &evening, 600}, {2, "Music", &morning, 7'200}},
                             at("2026-11-20T00:00:00Z"), at("2026-11-21T00:00:00Z"), utc);
    EXPECT_THAT(written(runs), ElementsAre("Music 08:00-10:00", "Mail 20:00-20:10"));
}

TEST(PlannedRuns, RunsOfTwoSetsOverlap) {
    const SchedulePlan first{{weekly(everyDay, 20)}};
    const SchedulePlan second{{weekly(everyDay, 20, 30)}};
    const SchedulePlan third{{weekly(everyDay, 21)}};
    const auto runs = [&](std::int64_t duration) {
        return written(insight::plannedRuns(
            {{1, "A", &first, duration}, {2, "B", &second, 1'800}, {3, "C", &third, 1'800}},
            at("2026-11-20T00:00:00Z"), at("2026-11-21T00:00:00Z"), utc));
    };
    // A run that ends when the next one starts doesn't overlap it.
    EXPECT_THAT(runs(1'800), ElementsAre("A 20:00-20:30", "B 20:30-21:00", "C 21:00-21:30"));
    EXPECT_THAT(runs(1'801), ElementsAre("A 20:00-20:30!", "B 20:30-21:00!", "C 21:00-21:30"));
    EXPECT_THAT(runs(3'601), ElementsAre("A 20:00-21:00!", "B 20:30-21:00!", "C 21:00-21:30!"));
}

TEST(PlannedRuns, LongRunsOverlapAllThatStartDuringThem) {
    const SchedulePlan twice{{weekly(everyDay, 8), weekly(everyDay, 9)}};
    const SchedulePlan late{{weekly(everyDay, 11)}};
    const SchedulePlan later{{weekly(everyDay, 13)}};
    const auto runs = [&](std::int64_t first) {
        return written(insight::plannedRuns(
            {{1, "A", &twice, first}, {2, "B", &late, 1'800}, {3, "C", &later, 1'800}},
            at("2026-11-20T00:00:00Z"), at("2026-11-21T00:00:00Z"), utc));
    };
    // Only the second run of A lasts until B; neither overlaps the other.
    EXPECT_THAT(runs(3 * 3'600 - 60),
                ElementsAre("A 08:00-10:59", "A 09:00-11:59!", "B 11:00-11:30!", "C 13:00-13:30"));
    EXPECT_THAT(runs(3 * 3'600 + 60),
                ElementsAre("A 08:00-11:01!", "A 09:00-12:01!", "B 11:00-11:30!", "C 13:00-13:30"));
    EXPECT_THAT(runs(5 * 3'600 + 60), ElementsAre("A 08:00-13:01!", "A 09:00-14:01!",
                                                  "B 11:00-11:30!", "C 13:00-13:30!"));
}

TEST(PlannedRuns, RunsThatStartTogetherOverlap) {
    const SchedulePlan plan{{weekly(everyDay, 8)}};
    const auto runs =
        insight::plannedRuns({{1, "A", &plan, 60}, {2, "B", &plan, 60}}, at("2026-11-20T00:00:00Z"),
                             at("2026-11-21T00:00:00Z"), utc);
    EXPECT_THAT(written(runs), ElementsAre("A 08:00-08:01!", "B 08:00-08:01!"));
}

TEST(PlannedRuns, ARunOfYearsEndsWithTheTable) {
    const SchedulePlan plan{{weekly(everyDay, 20)}};
    const std::int64_t from = at("2026-11-20T00:00:00Z");
    const auto runs = insight::plannedRuns({{1, "A", &plan, 1'700'000'000}}, from,
                                           at("2026-11-21T00:00:00Z"), utc);
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].end, at("2026-11-20T20:00:00Z") + 14 * 86'400);
}

TEST(PlannedRuns, RunsOfOneSetDoNotOverlap) {
    const SchedulePlan plan{{weekly(everyDay, 20), weekly(everyDay, 20, 10)}};
    const auto runs = insight::plannedRuns({{1, "A", &plan, 3'600}}, at("2026-11-20T00:00:00Z"),
                                           at("2026-11-21T00:00:00Z"), utc);
    EXPECT_THAT(written(runs), ElementsAre("A 20:00-21:00", "A 20:10-21:10"));
}

TEST(PlannedRuns, AStopCutsARunOff) {
    SchedulePlan plan{{weekly(everyDay, 20)}};
    plan.details[0].end = {{20, 15, 0}};
    const auto runs = insight::plannedRuns({{1, "A", &plan, 3'600}}, at("2026-11-20T00:00:00Z"),
                                           at("2026-11-21T00:00:00Z"), utc);
    EXPECT_THAT(written(runs), ElementsAre("A 20:00-20:15"));
}

/// As in "run 0 day 1 0.25-0.50 lane 0".
std::vector<std::string> parts(const std::vector<PlannedRun>& runs, std::vector<int>& lanes) {
    std::vector<std::string> list;
    for (const auto& part : insight::dayParts(runs, at("2026-11-20T09:00:00Z"), 2, utc, lanes))
        list.push_back(QStringLiteral("run %1 day %2 %3-%4 lane %5")
                           .arg(part.run)
                           .arg(part.day)
                           .arg(part.begin, 0, 'f', 2)
                           .arg(part.end, 0, 'f', 2)
                           .arg(part.lane)
                           .toStdString());
    return list;
}

TEST(PlannedRuns, ARunAcrossMidnightHasAPartInEachDay) {
    std::vector<int> lanes;
    EXPECT_THAT(
        parts({{1, "A", at("2026-11-20T18:00:00Z"), at("2026-11-21T06:00:00Z"), false}}, lanes),
        ElementsAre("run 0 day 0 0.75-1.00 lane 0", "run 0 day 1 0.00-0.25 lane 0"));
    EXPECT_THAT(lanes, ElementsAre(1, 1));
}

TEST(PlannedRuns, ARunUntilMidnightHasNoPartInTheNextDay) {
    std::vector<int> lanes;
    EXPECT_THAT(
        parts({{1, "A", at("2026-11-20T18:00:00Z"), at("2026-11-21T00:00:00Z"), false}}, lanes),
        ElementsAre("run 0 day 0 0.75-1.00 lane 0"));
    EXPECT_THAT(lanes, ElementsAre(1, 0));
}

TEST(PlannedRuns, RunsOfOneTimeStandBesideEachOther) {
    std::vector<int> lanes;
    EXPECT_THAT(parts({{1, "A", at("2026-11-20T06:00:00Z"), at("2026-11-20T12:00:00Z"), true},
                       {2, "B", at("2026-11-20T09:00:00Z"), at("2026-11-20T15:00:00Z"), true},
                       {3, "C", at("2026-11-20T12:00:00Z"), at("2026-11-20T18:00:00Z"), true}},
                      lanes),
                ElementsAre("run 0 day 0 0.25-0.50 lane 0", "run 1 day 0 0.38-0.63 lane 1",
                            "run 2 day 0 0.50-0.75 lane 0"));
    EXPECT_THAT(lanes, ElementsAre(2, 0));
}

TEST(PlannedRuns, WhatLiesBeyondTheTableIsLeftOut) {
    std::vector<int> lanes;
    EXPECT_THAT(parts({{1, "A", at("2026-11-21T18:00:00Z"), at("2026-11-22T06:00:00Z"), false},
                       {1, "A", at("2026-11-22T18:00:00Z"), at("2026-11-22T19:00:00Z"), false}},
                      lanes),
                ElementsAre("run 0 day 1 0.75-1.00 lane 0"));
}

} // namespace
