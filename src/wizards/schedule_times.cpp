// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/schedule_times.h"

#include <algorithm>
#include <cstdint>

#include <QtGlobal>

#include "session/wire_time.h"

namespace wizards {

namespace {

constexpr int hoursOfDay = 24;
constexpr int minutesOfHour = 60;
constexpr int minutesOfDay = hoursOfDay * minutesOfHour;
constexpr int firstHour = 18;
constexpr int starts = 23;
constexpr int quarters = 4;
constexpr int quarterMinutes = 15;
constexpr int digitsThatCount = 5;

/// Qt deprecates this generator, but the start time of a client must not change.
int firstRandomNumber(uint seed) {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    qsrand(seed);
    return qrand();
    QT_WARNING_POP
}

/// Minutes since the start of the day, clamped to this many days.
int minutesWithin(const hessiancln::time_in_day& time, int days) {
    const std::int64_t minutes = static_cast<std::int64_t>(time.hour) * minutesOfHour + time.minute;
    return static_cast<int>(
        std::clamp<std::int64_t>(minutes, 0, std::int64_t{days} * minutesOfDay - 1));
}

QTime timeOfMinutes(int minutes) {
    return {minutes / minutesOfHour % hoursOfDay, minutes % minutesOfHour};
}

} // namespace

QTime defaultStart(const QString& clientNumber) {
    const int start = firstRandomNumber(clientNumber.right(digitsThatCount).toUInt()) % starts;
    return {firstHour + start / quarters, start % quarters * quarterMinutes};
}

hessiancln::time_in_day endTimeOf(const StopTime& stop) {
    hessiancln::time_in_day end = session::wireTime(stop.time);
    end.hour += hoursOfDay * stop.days;
    return end;
}

StopTime stopTimeOf(const hessiancln::time_in_day& end) {
    const int minutes = minutesWithin(end, lastStopDay + 1);
    return {timeOfMinutes(minutes), minutes / minutesOfDay};
}

QTime startTimeOf(const hessiancln::time_in_day& start) {
    return timeOfMinutes(minutesWithin(start, 1));
}

bool isComplete(const ScheduleChoice& choice) {
    if (choice.daily && !choice.anyDay)
        return false;
    if (!choice.stops || choice.stop.days != 0)
        return true;
    return choice.stop.time >= choice.start;
}

} // namespace wizards
