// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QTime>

#include "api/time_in_day.h"

/// Start and end times of scheduled backups.
namespace wizards {

/// The latest day on which a backup can be stopped, relative to the day of its start.
inline constexpr int lastStopDay = 6;

/// The default start for a client: a quarter of an hour between 18:00 and 23:30, which spreads the
/// clients over the evening but is always the same for one client. `clientNumber` is the agent's
/// value; only its last five characters count, as 0 if they aren't a number.
QTime defaultStart(const QString& clientNumber);

/// An end as displayed: a time, and the number of days after the start.
struct StopTime {
    QTime time;
    int days = 0;
};

/// The end in the agent's format: hours are counted from the day of the start, up to 167.
hessiancln::time_in_day endTimeOf(const StopTime& stop);

/// The reverse. Clamps to the first or last minute of the days that can be shown.
StopTime stopTimeOf(const hessiancln::time_in_day& end);

/// A start as displayed. Clamps to the first or last minute of the day.
QTime startTimeOf(const hessiancln::time_in_day& start);

/// The settings of the schedule page that can contradict each other.
struct ScheduleChoice {
    bool daily = false;
    bool anyDay = false; ///< any day of the week
    bool stops = false;
    StopTime stop;
    QTime start;
};

/// Whether backups would run at all, and wouldn't end before they start.
bool isComplete(const ScheduleChoice& choice);

} // namespace wizards
