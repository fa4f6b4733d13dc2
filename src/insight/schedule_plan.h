// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QTimeZone>

#include "api/schedule_detail_type.h"
#include "api/time_in_day.h"

/// When a schedule starts backups. Schedules say local times; instants are seconds since 1970 UTC.
namespace insight {

/// One part of a schedule, as the agent keeps it.
struct PlanDetail {
    hessiancln::ScheduleDetailType type{};
    hessiancln::time_in_day start;
    /// Counted from the day of the start, so that its hour may be above 23.
    std::optional<hessiancln::time_in_day> end;
    std::int32_t hourly = 0; ///< hours between two starts; 0 for one start a day
    std::int32_t tasks = 0;
    std::int32_t days = 0; ///< a mask, or the day of the month
};

struct SchedulePlan {
    std::vector<PlanDetail> details;
};

/// A backup that a schedule starts.
struct PlannedStart {
    std::int64_t start = 0;
    std::optional<std::int64_t> stop; ///< when the agent gives up

    friend bool operator==(const PlannedStart&, const PlannedStart&) = default;
};

/// The starts from `from` on and before `until`, in order, none twice. A day that a month doesn't
/// have is skipped. A time that the clock skips comes as much later as the clock was put forward;
/// of a time that comes twice the first counts. Kinds of schedule other than weekly and monthly
/// say nothing about their times, and so do parts whose times are none.
std::vector<PlannedStart> startsBetween(const SchedulePlan& plan, std::int64_t from,
                                        std::int64_t until, const QTimeZone& zone);

/// The last start at or before `time`; nothing if there was none in the 70 days before.
std::optional<std::int64_t> lastStart(const SchedulePlan& plan, std::int64_t time,
                                      const QTimeZone& zone);

/// The first start at or after `from`; nothing if there is none in the 70 days to come.
std::optional<std::int64_t> nextStart(const SchedulePlan& plan, std::int64_t from,
                                      const QTimeZone& zone);

/// The longest time between a start and the next one, in seconds; nothing without starts.
std::optional<std::int64_t> longestInterval(const SchedulePlan& plan);

} // namespace insight
