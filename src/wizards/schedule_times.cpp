// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/schedule_times.h"

#include <algorithm>
#include <cstdint>

#include <QtGlobal>

namespace wizards {

namespace {

constexpr int kHoursOfDay = 24;
constexpr int kMinutesOfHour = 60;
constexpr int kMinutesOfDay = kHoursOfDay * kMinutesOfHour;
constexpr int kFirstHour = 18;
constexpr int kStarts = 23;
constexpr int kQuarters = 4;
constexpr int kQuarterMinutes = 15;
constexpr int kDigitsThatCount = 5;

/// Qt would like to see another generator, but the start of a client must stay what it is.
int firstRandomNumber(uint seed) {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    qsrand(seed);
    return qrand();
    QT_WARNING_POP
}

/// Minutes since the day's begin, kept within so many days.
int minutesWithin(const hessiancln::time_in_day& time, int days) {
    const std::int64_t minutes =
        static_cast<std::int64_t>(time.hour) * kMinutesOfHour + time.minute;
    return static_cast<int>(
        std::clamp<std::int64_t>(minutes, 0, std::int64_t{days} * kMinutesOfDay - 1));
}

QTime timeOfMinutes(int minutes) {
    return {minutes / kMinutesOfHour % kHoursOfDay, minutes % kMinutesOfHour};
}

} // namespace

QTime defaultStart(const QString& clientNumber) {
    const int start = firstRandomNumber(clientNumber.right(kDigitsThatCount).toUInt()) % kStarts;
    return {kFirstHour + start / kQuarters, start % kQuarters * kQuarterMinutes};
}

hessiancln::time_in_day endTimeOf(const StopTime& stop) {
    return {stop.time.hour() + kHoursOfDay * stop.days, stop.time.minute(), 0};
}

StopTime stopTimeOf(const hessiancln::time_in_day& end) {
    const int minutes = minutesWithin(end, kLastStopDay + 1);
    return {timeOfMinutes(minutes), minutes / kMinutesOfDay};
}

QTime startTimeOf(const hessiancln::time_in_day& start) {
    return timeOfMinutes(minutesWithin(start, 1));
}

hessiancln::time_in_day wireTimeOf(const QTime& start) {
    return endTimeOf({start, 0});
}

bool isComplete(const ScheduleChoice& choice) {
    if (choice.daily && !choice.anyDay)
        return false;
    if (!choice.stops || choice.stop.days != 0)
        return true;
    return choice.stop.time >= choice.start;
}

} // namespace wizards
