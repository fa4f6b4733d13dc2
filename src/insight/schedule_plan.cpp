// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/schedule_plan.h"

#include <algorithm>
#include <array>

#include <QDate>
#include <QDateTime>

#include "api/schedule_detail.h"

namespace insight {

namespace {

using hessiancln::ScheduleDetailType;
using hessiancln::time_in_day;

constexpr std::int64_t secondsADay = 86'400;
constexpr std::int64_t longestStopDays = 7;
/// Most schedules have a start nearby, and a wide range has many days to examine.
constexpr std::array looks{2 * secondsADay, 8 * secondsADay, 70 * secondsADay};

std::int64_t secondsOf(const time_in_day& time) {
    return std::int64_t{time.hour} * 3600 + std::int64_t{time.minute} * 60 + time.second;
}

bool isTimeOfDay(const time_in_day& time) {
    return time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60 &&
           time.second >= 0 && time.second < 60;
}

/// Seconds from midnight; no value if the part has no end after its start.
std::optional<std::int64_t> endOf(const PlanDetail& detail) {
    if (!detail.end)
        return std::nullopt;
    const std::int64_t end = secondsOf(*detail.end);
    if (end < secondsOf(detail.start) || end > longestStopDays * secondsADay)
        return std::nullopt;
    return end;
}

bool runsOn(const PlanDetail& detail, const QDate& date) {
    if (detail.type == ScheduleDetailType::Weekly)
        return (detail.days >> (date.dayOfWeek() - 1) & 1) != 0;
    return detail.type == ScheduleDetailType::Monthly && detail.days == date.day();
}

/// The instant `seconds` of local clock time after the start of `date`.
std::int64_t instantOf(const QDate& date, std::int64_t seconds, const QTimeZone& zone) {
    const std::int64_t local = QDateTime(date, QTime(0, 0), Qt::UTC).toSecsSinceEpoch() + seconds;
    const auto offsetAt = [&zone](std::int64_t instant) {
        return zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(instant, Qt::UTC));
    };
    const int before = offsetAt(local - secondsADay);
    const int after = offsetAt(local + secondsADay);
    const bool isBefore = offsetAt(local - before) == before;
    const bool isAfter = offsetAt(local - after) == after;
    return isAfter && !isBefore ? local - after : local - before;
}

/// Adds the starts of a part on a day on which it runs.
void addStartsOf(const PlanDetail& detail, const QDate& date, const QTimeZone& zone,
                 std::vector<PlannedStart>& starts) {
    const std::int64_t first = secondsOf(detail.start);
    const auto end = endOf(detail);
    std::optional<std::int64_t> stop;
    if (end)
        stop = instantOf(date, *end, zone);
    starts.push_back({instantOf(date, first, zone), stop});
    if (detail.hourly <= 0 || detail.hourly > 24)
        return;
    // The next day has its own series.
    const std::int64_t last = std::min(end.value_or(secondsADay - 1), first + secondsADay - 1);
    const std::int64_t step = std::int64_t(detail.hourly) * 3600;
    for (std::int64_t at = first + step; at <= last; at += step)
        starts.push_back({instantOf(date, at, zone), stop});
}

} // namespace

std::vector<PlannedStart> startsBetween(const SchedulePlan& plan, std::int64_t from,
                                        std::int64_t until, const QTimeZone& zone) {
    std::vector<PlannedStart> starts;
    // A series may begin the day before, and days begin at different instants in other time zones.
    const QDate first = QDateTime::fromSecsSinceEpoch(from, Qt::UTC).date().addDays(-2);
    const QDate last = QDateTime::fromSecsSinceEpoch(until, Qt::UTC).date().addDays(1);
    for (const PlanDetail& detail : plan.details) {
        if ((detail.tasks & hessiancln::taskBackup) == 0 || !isTimeOfDay(detail.start))
            continue;
        for (QDate date = first; date <= last; date = date.addDays(1))
            if (runsOn(detail, date))
                addStartsOf(detail, date, zone, starts);
    }
    std::erase_if(starts, [from, until](const PlannedStart& start) {
        return start.start < from || start.start >= until;
    });
    std::ranges::stable_sort(starts, {}, &PlannedStart::start);
    starts.erase(std::unique(starts.begin(), starts.end(),
                             [](const PlannedStart& left, const PlannedStart& right) {
                                 return left.start == right.start;
                             }),
                 starts.end());
    return starts;
}

std::optional<std::int64_t> lastStart(const SchedulePlan& plan, std::int64_t time,
                                      const QTimeZone& zone) {
    for (const std::int64_t look : looks) {
        const auto starts = startsBetween(plan, time - look, time + 1, zone);
        if (!starts.empty())
            return starts.back().start;
    }
    return std::nullopt;
}

std::optional<std::int64_t> nextStart(const SchedulePlan& plan, std::int64_t from,
                                      const QTimeZone& zone) {
    for (const std::int64_t look : looks) {
        const auto starts = startsBetween(plan, from, from + look, zone);
        if (!starts.empty())
            return starts.front().start;
    }
    return std::nullopt;
}

std::optional<std::int64_t> longestInterval(const SchedulePlan& plan) {
    const bool hasMonths = std::ranges::any_of(plan.details, [](const PlanDetail& detail) {
        return detail.type == ScheduleDetailType::Monthly;
    });
    // 430 days include the longest gap between days of the month, two weeks that between weekdays.
    const std::int64_t from = QDateTime(QDate(2023, 1, 1), QTime(0, 0), Qt::UTC).toSecsSinceEpoch();
    const std::int64_t days = hasMonths ? 430 : 15;
    const auto starts = startsBetween(plan, from, from + days * secondsADay, QTimeZone::utc());
    std::optional<std::int64_t> longest;
    for (std::size_t i = 1; i < starts.size(); ++i)
        longest = std::max(longest.value_or(0), starts[i].start - starts[i - 1].start);
    return longest;
}

} // namespace insight
