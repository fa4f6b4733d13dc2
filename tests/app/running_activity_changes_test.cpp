// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "app/running_activity_changes.h"

namespace {

using app::compareRunningActivities;
using app::RunningActivityChanges;
using hessiancln::running_activity_info;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t now = 1'700'000'000;

running_activity_info activity(std::int32_t id, std::int64_t startTime = now) {
    running_activity_info info;
    info.activity_id = id;
    info.start_time = static_cast<std::int32_t>(startTime);
    return info;
}

std::vector<std::int32_t> ids(const QList<running_activity_info>& list) {
    std::vector<std::int32_t> ids;
    for (const auto& info : list)
        ids.push_back(info.activity_id);
    return ids;
}

TEST(RunningActivityChanges, NothingNewIsNothing) {
    const std::vector<running_activity_info> list{activity(1), activity(2)};
    const auto changes = compareRunningActivities(list, list, {1, 2}, now);
    EXPECT_THAT(ids(changes.appeared), IsEmpty());
    EXPECT_THAT(ids(changes.disappeared), IsEmpty());
}

TEST(RunningActivityChanges, NewOnesComeInTheOrderOfTheList) {
    const auto changes =
        compareRunningActivities({activity(9), activity(1), activity(4)}, {activity(1)}, {1}, now);
    EXPECT_THAT(ids(changes.appeared), ElementsAre(9, 4));
    EXPECT_THAT(ids(changes.disappeared), IsEmpty());
}

TEST(RunningActivityChanges, OnesThatHaveGoneComeFromTheListBefore) {
    auto gone = activity(5);
    gone.description = "as it was";
    const auto changes = compareRunningActivities({}, {activity(7), gone}, {5, 7}, now);
    EXPECT_THAT(ids(changes.disappeared), ElementsAre(7, 5));
    EXPECT_EQ(changes.disappeared.last().description, "as it was");
}

TEST(RunningActivityChanges, OneThatBeganHalfAMinuteAgoHasNotJustBegun) {
    const auto changes =
        compareRunningActivities({activity(1, now - 30), activity(2, now - 29)}, {}, {}, now);
    EXPECT_THAT(ids(changes.appeared), ElementsAre(2));
}

TEST(RunningActivityChanges, AnOldOneIsReportedWhenItEnds) {
    const std::vector<running_activity_info> list{activity(1, now - 3600)};
    EXPECT_THAT(ids(compareRunningActivities(list, {}, {}, now).appeared), IsEmpty());
    const auto changes = compareRunningActivities({}, list, app::idsOf(list), now);
    EXPECT_THAT(ids(changes.disappeared), ElementsAre(1));
}

TEST(RunningActivityChanges, OneOfAnAgentWhoseClockIsAheadHasJustBegun) {
    EXPECT_THAT(ids(compareRunningActivities({activity(1, now + 600)}, {}, {}, now).appeared),
                ElementsAre(1));
}

TEST(RunningActivityChanges, OneThatWasNotKnownIsNotReportedAsEnded) {
    const auto changes = compareRunningActivities({}, {activity(1)}, {}, now);
    EXPECT_THAT(ids(changes.disappeared), IsEmpty());
}

TEST(RunningActivityChanges, OneThatBeganAndEndedBetweenTwoListsIsNeverSeen) {
    const auto changes = compareRunningActivities({}, {}, {}, now);
    EXPECT_THAT(ids(changes.appeared), IsEmpty());
    EXPECT_THAT(ids(changes.disappeared), IsEmpty());
}

TEST(RunningActivityChanges, TimesAtTheEndsOfTheirRangeDoNotOverflow) {
    const auto changes =
        compareRunningActivities({activity(1, INT32_MIN), activity(2, INT32_MAX)}, {}, {}, now);
    EXPECT_THAT(ids(changes.appeared), ElementsAre(2));
}

} // namespace
