// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QTime>

#include "api/time_in_day.h"

/// When a schedule's backups start and have to be over.
namespace wizards {

/// The latest day on which a backup may be stopped, counted from the day of its start.
inline constexpr int lastStopDay = 6;

/// The start that is offered to a client: a quarter of an hour from 18:00 to 23:30, which spreads
/// the clients over the evening, and is the same for one client each time. `clientNumber` as the
/// agent gives it; its last five characters count, and as 0 if they are no number.
QTime defaultStart(const QString& clientNumber);

/// An end, as it is shown: a time, and how many days after the start's.
struct StopTime {
    QTime time;
    int days = 0;
};

/// The end as the agent keeps it: its hours are counted from the day of the start, up to 167.
hessiancln::time_in_day endTimeOf(const StopTime& stop);

/// The reverse. What lies outside the days that can be shown becomes their first or last minute.
StopTime stopTimeOf(const hessiancln::time_in_day& end);

/// A start, as it is shown. What lies outside the day becomes its first or last minute.
QTime startTimeOf(const hessiancln::time_in_day& start);

/// What is chosen on the schedule page, as far as it can contradict itself.
struct ScheduleChoice {
    bool daily = false;
    bool anyDay = false; ///< of the week
    bool stops = false;
    StopTime stop;
    QTime start;
};

/// Whether backups would run at all, and not end before they start.
bool isComplete(const ScheduleChoice& choice);

} // namespace wizards
