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

/// Why a set is in its state, if there are several possible causes.
enum class HealthReason {
    none,
    hasErrors,   ///< the last backup ended with errors
    noSuccess,   ///< the last backup didn't succeed
    isTooOld,    ///< the last good backup is older than two intervals
    missedStart, ///< the last start was missed by more than the agent's limit for missed schedules
};

/// A backup. The end of a running one is 0.
struct BackupAttempt {
    std::int32_t activityId = 0;
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::int32_t errors = 0;
    std::int32_t warnings = 0;
};

/// The known facts about a set.
struct SetFacts {
    hessiancln::backup_set_info info;
    std::optional<BackupAttempt> lastAttempt;
    const SchedulePlan* plan = nullptr;   ///< null until read
    std::optional<std::int64_t> interval; ///< the longest interval of the plan, in seconds
    bool isRunning = false;               ///< an activity is working on the set
};

/// The reference values for judging a set.
struct HealthClock {
    std::int64_t now = 0;
    std::int32_t missedHours = 0; ///< within which the agent catches up on a missed start
    QTimeZone zone;
};

struct SetHealth {
    HealthState state = HealthState::Safe;
    /// The state apart from the running activity.
    HealthState beneath = HealthState::Safe;
    HealthReason reason = HealthReason::none;
    /// False until the schedule of a scheduled set has been read: the set may be overdue.
    bool isSettled = true;
    std::optional<std::int64_t> nextStart; ///< in the next 70 days
};

/// Whether the agent backs up the set automatically.
bool isScheduled(const hessiancln::backup_set_info& info);

SetHealth judge(const SetFacts& facts, const HealthClock& clock);

/// Whether the user should act.
bool needsAttention(const SetHealth& health);

/// Whether `left` precedes `right` in a list sorted from worst to best.
bool isWorse(const SetHealth& left, const SetHealth& right);

struct HealthCount {
    int sets = 0;
    int attention = 0;
    int unsettled = 0;

    friend bool operator==(const HealthCount&, const HealthCount&) = default;
};

HealthCount countHealth(const std::vector<SetHealth>& healths);

} // namespace insight
