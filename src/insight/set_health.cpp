// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/set_health.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace insight {

namespace {

using Finding = std::pair<HealthState, HealthReason>;

bool hasFailed(const SetFacts& facts) {
    return facts.lastAttempt && facts.lastAttempt->errors > 0 &&
           facts.lastAttempt->end >= facts.info.last_successful_backup;
}

HealthReason overdueReason(const SetFacts& facts, const HealthClock& clock) {
    if (!isScheduled(facts.info) || !facts.plan || !facts.interval)
        return HealthReason::none;
    const std::int64_t lastGood = facts.info.last_successful_backup;
    if (lastGood >= 1 && clock.now - lastGood > 2 * *facts.interval)
        return HealthReason::isTooOld;
    // The running activity may be the backup in question.
    if (facts.isRunning)
        return HealthReason::none;
    // A start that the agent may still make up for isn't missed.
    const std::int64_t patience = std::int64_t{std::max(clock.missedHours, 0)} * 3600;
    const auto missed = lastStart(*facts.plan, clock.now - patience - 1, clock.zone);
    const bool attempted = missed && facts.info.last_backup >= *missed;
    return missed && !attempted ? HealthReason::missedStart : HealthReason::none;
}

Finding findingOf(const SetFacts& facts, const HealthClock& clock) {
    const auto& info = facts.info;
    if (!info.in_sync)
        return {HealthState::NotInSync, HealthReason::none};
    if (!info.has_items)
        return {HealthState::Recovered, HealthReason::none};
    if (info.last_successful_backup < 1 && info.online_file_count < 1)
        return {HealthState::NeverBackedUp,
                info.last_backup >= 1 ? HealthReason::noSuccess : HealthReason::none};
    if (hasFailed(facts))
        return {HealthState::Failed, HealthReason::hasErrors};
    if (info.last_backup > info.last_successful_backup)
        return {HealthState::Failed, HealthReason::noSuccess};
    if (const HealthReason reason = overdueReason(facts, clock); reason != HealthReason::none)
        return {HealthState::Overdue, reason};
    return {HealthState::Safe, HealthReason::none};
}

} // namespace

bool isScheduled(const hessiancln::backup_set_info& info) {
    return info.is_active && info.schedule_id >= 0;
}

SetHealth judge(const SetFacts& facts, const HealthClock& clock) {
    SetHealth health;
    std::tie(health.beneath, health.reason) = findingOf(facts, clock);
    health.state = facts.isRunning ? HealthState::Running : health.beneath;
    health.isSettled =
        health.beneath != HealthState::Safe || !isScheduled(facts.info) || facts.plan;
    if (isScheduled(facts.info) && facts.plan)
        health.nextStart = nextStart(*facts.plan, clock.now, clock.zone);
    return health;
}

bool needsAttention(const SetHealth& health) {
    return health.beneath < HealthState::Running;
}

bool isWorse(const SetHealth& left, const SetHealth& right) {
    return std::pair(left.state, left.beneath) < std::pair(right.state, right.beneath);
}

HealthCount countHealth(const std::vector<SetHealth>& healths) {
    HealthCount count;
    count.sets = static_cast<int>(healths.size());
    count.attention = static_cast<int>(std::ranges::count_if(healths, needsAttention));
    count.unsettled = static_cast<int>(
        std::ranges::count_if(healths, [](const SetHealth& health) { return !health.isSettled; }));
    return count;
}

} // namespace insight
