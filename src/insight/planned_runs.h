// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QTimeZone>

#include "insight/schedule_plan.h"

namespace insight {

/// How far to look ahead for the next runs, in seconds: 14 days.
inline constexpr std::int64_t lookAhead = std::int64_t(14) * 86'400;

/// The assumed duration of a run without history, in seconds.
inline constexpr std::int64_t assumedDuration = std::int64_t(30) * 60;

/// A set that a schedule backs up.
struct ScheduledSet {
    std::int32_t setId = 0;
    std::string name;
    const SchedulePlan* plan = nullptr;      ///< not null
    std::int64_t duration = assumedDuration; ///< likely duration of a backup, in seconds
};

/// An upcoming backup. Times are seconds since 1970 UTC.
struct PlannedRun {
    std::int32_t setId = 0;
    std::string name;
    std::int64_t start = 0;
    std::int64_t end = 0;  ///< likely end: after the start, and not after a stop
    bool overlaps = false; ///< with a run of another set
};

/// The runs of all sets that start at or after `from` and before `until`, sorted by start;
/// simultaneous ones are in the order of the sets.
std::vector<PlannedRun> plannedRuns(const std::vector<ScheduledSet>& sets, std::int64_t from,
                                    std::int64_t until, const QTimeZone& zone);

/// The part of a run within one day.
struct DayPart {
    std::size_t run = 0; ///< index of the run
    int day = 0;         ///< 0 for the first day
    double begin = 0;    ///< fraction of the day, in local time
    double end = 0;
    int lane = 0; ///< concurrent runs are in separate lanes
};

/// Layout of the runs in a table of `days` days, starting with the local day of `from`. `lanes`
/// receives the number of lanes of each day.
std::vector<DayPart> dayParts(const std::vector<PlannedRun>& runs, std::int64_t from, int days,
                              const QTimeZone& zone, std::vector<int>& lanes);

} // namespace insight
