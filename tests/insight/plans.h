// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>

#include "insight/schedule_plan.h"

/// Schedules and times in the notation of the tests.
namespace plans {

inline const QTimeZone& berlin() {
    static const QTimeZone zone("Europe/Berlin");
    return zone;
}

/// Seconds of an ISO time with its offset, as in "2026-03-29T01:30:00Z".
inline std::int64_t at(const char* time) {
    const QDateTime read = QDateTime::fromString(QString::fromLatin1(time), Qt::ISODate);
    if (!read.isValid())
        throw std::invalid_argument(time);
    return read.toSecsSinceEpoch();
}

inline constexpr std::int32_t everyDay = 127;
inline constexpr std::int32_t workdays = 31;

inline insight::PlanDetail weekly(std::int32_t days, std::int32_t hour, std::int32_t minute = 0) {
    insight::PlanDetail detail;
    detail.type = hessiancln::ScheduleDetailType::Weekly;
    detail.start = {hour, minute, 0};
    detail.tasks = 1;
    detail.days = days;
    return detail;
}

inline insight::PlanDetail monthly(std::int32_t day, std::int32_t hour) {
    insight::PlanDetail detail = weekly(day, hour);
    detail.type = hessiancln::ScheduleDetailType::Monthly;
    return detail;
}

inline insight::PlanDetail hourly(std::int32_t hours, insight::PlanDetail detail,
                                  hessiancln::time_in_day end) {
    detail.hourly = hours;
    detail.end = end;
    return detail;
}

} // namespace plans
