// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QTimeZone>

#include "api/schedule_detail_type.h"
#include "api/time_in_day.h"

/// When a schedule starts backups. Schedules are in local time; instants are seconds since 1970
/// UTC.
namespace insight {

/// One part of a schedule, in the agent's format.
struct PlanDetail {
    hessiancln::ScheduleDetailType type{};
    hessiancln::time_in_day start;
    /// Relative to the day of the start, so its hour may exceed 23.
    std::optional<hessiancln::time_in_day> end;
    std::int32_t hourly = 0; ///< hours between two starts; 0 for one start a day
    std::int32_t tasks = 0;
    std::int32_t days = 0; ///< a mask, or the day of the month
};

struct SchedulePlan {
    std::vector<PlanDetail> details;
};

/// A backup started by a schedule.
struct PlannedStart {
    std::int64_t start = 0;
    std::optional<std::int64_t> stop; ///< when the agent gives up

    friend bool operator==(const PlannedStart&, const PlannedStart&) = default;
};

/// The starts at or after `from` and before `until`, in order and without duplicates. A day that a
/// month doesn't have is skipped. A time skipped by a clock change is delayed by the length of the
/// change; of a repeated time, the first one counts. Kinds of schedule other than weekly and
/// monthly have no known times, nor do parts with invalid times.
std::vector<PlannedStart> startsBetween(const SchedulePlan& plan, std::int64_t from,
                                        std::int64_t until, const QTimeZone& zone);

/// The last start at or before `time`; no value without a start in the previous 70 days.
std::optional<std::int64_t> lastStart(const SchedulePlan& plan, std::int64_t time,
                                      const QTimeZone& zone);

/// The first start at or after `from`; no value without a start in the next 70 days.
std::optional<std::int64_t> nextStart(const SchedulePlan& plan, std::int64_t from,
                                      const QTimeZone& zone);

/// The longest time between two consecutive starts, in seconds; no value without starts.
std::optional<std::int64_t> longestInterval(const SchedulePlan& plan);

} // namespace insight
