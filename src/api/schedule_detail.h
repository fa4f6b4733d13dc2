// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

#include "api/remote_object.h"
#include "api/schedule_detail_type.h"
#include "api/time_in_day.h"

namespace hessiancln {

/// Bits of `ScheduleDetail::setTasks`.
inline constexpr std::int32_t taskBackup = 1;
inline constexpr std::int32_t taskRetention = 2;

/// Bits of `WeeklyScheduleDetail::setScheduleDays`.
inline constexpr std::int32_t dayMonday = 1;
inline constexpr std::int32_t dayTuesday = 2;
inline constexpr std::int32_t dayWednesday = 4;
inline constexpr std::int32_t dayThursday = 8;
inline constexpr std::int32_t dayFriday = 16;
inline constexpr std::int32_t daySaturday = 32;
inline constexpr std::int32_t daySunday = 64;

/// One part of a schedule: on which days, from when to when, how often, and what.
class ScheduleDetail : public RemoteObject {
public:
    static constexpr std::string_view family = "ScheduleDetail";
    using RemoteObject::RemoteObject;

    ScheduleDetailType getType();
    time_in_day getStartTime();
    void setStartTime(const time_in_day& time);
    bool hasEndTime();
    /// Relative to the day of the start, so its hour may exceed 23.
    time_in_day getEndTime();
    void setEndTime(const time_in_day& time);
    void setNoEndTime();
    /// In hours; 0 for once a day.
    std::int32_t getHourlyFrequency();
    void setHourlyFrequency(std::int32_t hours);
    /// Task bits.
    std::int32_t getTasks();
    void setTasks(std::int32_t mask);
};

/// Runs on given days of the week.
class WeeklyScheduleDetail : public ScheduleDetail {
public:
    static constexpr std::string_view className = "WeeklyScheduleDetail";
    using ScheduleDetail::ScheduleDetail;

    /// Day bits.
    std::int32_t getScheduleDays();
    void setScheduleDays(std::int32_t mask);
};

/// Runs on one day of the month.
class MonthlyScheduleDetail : public ScheduleDetail {
public:
    static constexpr std::string_view className = "MonthlyScheduleDetail";
    using ScheduleDetail::ScheduleDetail;

    std::int32_t getScheduleDay();
    void setScheduleDay(std::int32_t day);
};

} // namespace hessiancln
