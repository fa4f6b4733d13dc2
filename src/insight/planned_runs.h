// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QTimeZone>

#include "insight/schedule_plan.h"

namespace insight {

/// How long the next runs are looked ahead, in seconds: 14 days.
inline constexpr std::int64_t lookAhead = std::int64_t(14) * 86'400;

/// A run that nothing is known of yet is taken to last that long, in seconds.
inline constexpr std::int64_t assumedDuration = std::int64_t(30) * 60;

/// A set that a schedule backs up.
struct ScheduledSet {
    std::int32_t setId = 0;
    std::string name;
    const SchedulePlan* plan = nullptr;      ///< not null
    std::int64_t duration = assumedDuration; ///< that a backup is likely to take, in seconds
};

/// A backup to come. Times are seconds since 1970 UTC.
struct PlannedRun {
    std::int32_t setId = 0;
    std::string name;
    std::int64_t start = 0;
    std::int64_t end = 0;  ///< when it is likely to be over: after the start, and not after a stop
    bool overlaps = false; ///< with a run of another set
};

/// The runs of all sets that start from `from` on and before `until`, by their starts; those of one
/// instant in the order of the sets.
std::vector<PlannedRun> plannedRuns(const std::vector<ScheduledSet>& sets, std::int64_t from,
                                    std::int64_t until, const QTimeZone& zone);

/// A part of a run that lies within one day.
struct DayPart {
    std::size_t run = 0; ///< its place among the runs
    int day = 0;         ///< 0 for the first one
    double begin = 0;    ///< in parts of the day, by the clock on the wall
    double end = 0;
    int lane = 0; ///< runs of one time stand beside each other
};

/// How the runs look in a table of `days` days from the local day of `from` on. `lanes` gets the
/// number of lanes of each day.
std::vector<DayPart> dayParts(const std::vector<PlannedRun>& runs, std::int64_t from, int days,
                              const QTimeZone& zone, std::vector<int>& lanes);

} // namespace insight
