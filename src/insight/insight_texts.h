// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "api/activity_records.h"
#include "insight/activity_pace.h"
#include "insight/set_health.h"

/// Texts for users about the health of sets and about running work. Durations are in seconds.
namespace insight {

QString stateText(HealthState state);

/// The resource name of the picture for the state.
QString stateIcon(HealthState state);

/// As in "2 days"; the largest unit only, rounded down.
QString roughDuration(std::int64_t seconds);

/// As in "2 days ago".
QString ageText(std::int64_t seconds);

/// How a backup ended, as in "3 errors, 1 warning".
QString outcomeText(std::int32_t errors, std::int32_t warnings);

/// Why the set is in its state, and how to fix it.
QString helpText(const SetFacts& facts, const SetHealth& health, const HealthClock& clock);

/// A one-line summary of all sets, as in "2 of 7 sets need attention".
QString summaryText(const HealthCount& count);

/// The resource name of the picture for the summary.
QString summaryIcon(const HealthCount& count);

/// The speed of an activity, as in "3.20 MB/s, 4 minutes left"; empty if still unknown.
QString paceText(const Pace& pace);

/// How an activity ended, as in "Backup of 'Documents' ended with 3 errors". `what` is the name of
/// its set or its description, and may be empty.
QString endedText(const hessiancln::activity_log_info& ended, const QString& what);

} // namespace insight
