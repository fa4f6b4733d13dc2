// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QTimeZone>

#include "api/backup_set_records.h"
#include "insight/schedule_plan.h"

/// Whether the data of a backup set is safe. Instants are seconds since 1970 UTC.
namespace insight {

/// Worst first.
enum class HealthState { NeverBackedUp, Failed, Overdue, NotInSync, Recovered, Running, Safe };

/// Why a set is in its state, where there is more than one way into it.
enum class HealthReason {
    none,
    hasErrors,   ///< the last backup ended with errors
    noSuccess,   ///< the last backup didn't succeed
    isTooOld,    ///< the last good backup is older than two intervals
    missedStart, ///< the last start is over by more than the agent's time for missed schedules
};

/// A backup that has ended.
struct BackupAttempt {
    std::int32_t activityId = 0;
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::int32_t errors = 0;
    std::int32_t warnings = 0;
};

/// What is known of a set.
struct SetFacts {
    hessiancln::backup_set_info info;
    std::optional<BackupAttempt> lastAttempt;
    const SchedulePlan* plan = nullptr;   ///< null until it has been read
    std::optional<std::int64_t> interval; ///< the longest one of the plan, in seconds
    bool isRunning = false;               ///< an activity works on the set
};

/// What a set is judged by.
struct HealthClock {
    std::int64_t now = 0;
    std::int32_t missedHours = 0; ///< after which the agent makes up for a missed start
    QTimeZone zone;
};

struct SetHealth {
    HealthState state = HealthState::Safe;
    /// The state but for the activity that runs.
    HealthState beneath = HealthState::Safe;
    HealthReason reason = HealthReason::none;
    /// False while the schedule of a scheduled set hasn't been read: it may be overdue.
    bool isSettled = true;
    std::optional<std::int64_t> nextStart; ///< in the coming 70 days
};

/// Whether the agent backs the set up by itself.
bool isScheduled(const hessiancln::backup_set_info& info);

SetHealth judge(const SetFacts& facts, const HealthClock& clock);

/// Whether people should do something about it.
bool needsAttention(const SetHealth& health);

/// Whether `left` stands above `right` in a list that begins with the worst.
bool isWorse(const SetHealth& left, const SetHealth& right);

struct HealthCount {
    int sets = 0;
    int attention = 0;
    int unsettled = 0;

    friend bool operator==(const HealthCount&, const HealthCount&) = default;
};

HealthCount countHealth(const std::vector<SetHealth>& healths);

} // namespace insight
