// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/health_monitor.h"

#include <algorithm>
#include <utility>

#include "ui/error_box.h"

namespace insight {

using hessiancln::activity_log_info;
using hessiancln::ActivityType;
using hessiancln::backup_set_info;
using hessiancln::running_activity_info;

namespace {

bool isBackup(const activity_log_info& row) {
    return row.type == ActivityType::Backup || row.type == ActivityType::CDPBackup;
}

/// Whether data read for a set may be out of date.
bool hasChanged(const backup_set_info& before, const backup_set_info& now) {
    return before.schedule_id != now.schedule_id || before.last_backup != now.last_backup ||
           before.last_successful_backup != now.last_successful_backup ||
           before.is_active != now.is_active || before.in_sync != now.in_sync ||
           before.has_items != now.has_items;
}

} // namespace

HealthMonitor::HealthMonitor(HealthReader::Connect connect, Clock clock, QObject* parent)
    : QObject(parent)
    , reader_(std::move(connect))
    , clock_(std::move(clock))
    , slices_([this] { return step(); }) {
    QObject::connect(&slices_, &Slices::progressed, this, &HealthMonitor::takeDetails);
    QObject::connect(&slices_, &Slices::finished, this, &HealthMonitor::endPass);
}

void HealthMonitor::takeSets(std::vector<backup_set_info> sets) {
    std::map<std::int32_t, const backup_set_info*> before;
    for (const backup_set_info& set : sets_)
        before.emplace(set.id, &set);
    std::set<std::int32_t> ids;
    std::vector<backup_set_info> unread;
    for (const backup_set_info& set : sets) {
        // Of two sets with one id, the first one counts.
        if (!ids.insert(set.id).second)
            continue;
        const auto known = before.find(set.id);
        if (known != before.end() && known->second->schedule_id != set.schedule_id)
            reader_.forget(set.id);
        if (known == before.end() || hasChanged(*known->second, set) || reader_.hasFailed(set.id))
            unread.push_back(set);
    }
    const bool hadFailed = reader_.hasAnyFailed();
    for (const backup_set_info& set : sets_)
        if (!ids.contains(set.id))
            reader_.remove(set.id);
    if (hadFailed && !reader_.hasAnyFailed())
        emit succeeded();
    sets_ = std::move(sets);
    if (isWatched_)
        read(unread);
    judgeAll();
}

void HealthMonitor::takeActivities(const std::vector<activity_log_info>& log,
                                   const std::vector<running_activity_info>& running) {
    // The user may narrow the log to a period without the newest backup.
    for (const activity_log_info& row : log) {
        if (!isBackup(row) || row.end_time < 1)
            continue;
        BackupAttempt& newest = loggedAttempts_[row.set_id];
        if (row.end_time > newest.end)
            newest = {row.id, row.start_time, row.end_time, row.errors, row.warnings};
    }
    running_.clear();
    for (const running_activity_info& activity : running)
        if (activity.set_id > 0)
            running_.insert(activity.set_id);
}

void HealthMonitor::clear() {
    reader_.forgetAll();
    slices_.stop();
    total_ = 0;
    sets_.clear();
    loggedAttempts_.clear();
    running_.clear();
    judgeAll();
    emit progressed();
}

void HealthMonitor::watch() {
    isWatched_ = true;
    read(sets_);
}

void HealthMonitor::unwatch() {
    isWatched_ = false;
    cancelReading();
}

void HealthMonitor::cancelReading() {
    slices_.stop();
    reader_.clear();
    total_ = 0;
    emit progressed();
}

void HealthMonitor::scheduleChanged(std::int32_t setId) {
    const auto set = std::ranges::find(sets_, setId, &backup_set_info::id);
    if (set == sets_.end())
        return;
    reader_.forget(setId);
    if (isWatched_)
        read({*set});
    judgeAll();
}

void HealthMonitor::read(const std::vector<backup_set_info>& sets) {
    if (sets.empty())
        return;
    const auto before = static_cast<int>(reader_.left());
    if (before == 0)
        total_ = 0;
    for (const backup_set_info& set : sets)
        reader_.add(set);
    total_ += static_cast<int>(reader_.left()) - before;
    slices_.start();
    emit progressed();
}

bool HealthMonitor::step() {
    try {
        hasNewDetails_ = reader_.step().has_value() || hasNewDetails_;
    } catch (const std::exception& error) {
        emit failed(ui::errorText(error));
    }
    return reader_.left() > 0;
}

void HealthMonitor::endPass() {
    if (!reader_.hasAnyFailed())
        emit succeeded();
    emit progressed();
}

/// Once per slice, because the cost grows with the number of sets.
void HealthMonitor::takeDetails() {
    if (!std::exchange(hasNewDetails_, false))
        return;
    judgeAll();
    emit progressed();
}

HealthClock HealthMonitor::healthClock() const {
    return {clock_(), reader_.missedHours(), QTimeZone::systemTimeZone()};
}

SetFacts HealthMonitor::factsOf(const backup_set_info& info, HealthRow& row) const {
    SetFacts facts;
    facts.info = info;
    facts.isRunning = running_.contains(info.id);
    if (const auto logged = loggedAttempts_.find(info.id); logged != loggedAttempts_.end())
        facts.lastAttempt = logged->second;
    const SetDetails* details = reader_.detailsOf(info.id);
    if (!details)
        return facts;
    row.isRead = true;
    row.leastGenerations = details->leastGenerations;
    row.mostGenerations = details->mostGenerations;
    if (details->lastAttempt &&
        (!facts.lastAttempt || details->lastAttempt->end > facts.lastAttempt->end))
        facts.lastAttempt = details->lastAttempt;
    row.plan = details->plan;
    if (row.plan) {
        facts.plan = &row.plan->plan;
        facts.interval = row.plan->interval;
    }
    return facts;
}

void HealthMonitor::judgeAll() {
    const HealthClock clock = healthClock();
    std::vector<HealthRow> rows;
    rows.reserve(sets_.size());
    for (const backup_set_info& set : sets_) {
        HealthRow row;
        row.facts = factsOf(set, row);
        row.health = judge(row.facts, clock);
        row.judgedAt = clock.now;
        rows.push_back(std::move(row));
    }
    std::ranges::stable_sort(rows, [](const HealthRow& left, const HealthRow& right) {
        return isWorse(left.health, right.health);
    });
    rows_ = std::move(rows);
    emit changed();
}

HealthCount HealthMonitor::count() const {
    std::vector<SetHealth> healths;
    healths.reserve(rows_.size());
    for (const HealthRow& row : rows_)
        healths.push_back(row.health);
    return countHealth(healths);
}

std::vector<PlannedRun> HealthMonitor::nextRuns() const {
    const HealthClock clock = healthClock();
    std::vector<ScheduledSet> sets;
    for (const HealthRow& row : rows_) {
        if (!isScheduled(row.facts.info) || !row.plan)
            continue;
        ScheduledSet set{row.facts.info.id, row.facts.info.name, &row.plan->plan};
        if (const auto& last = row.facts.lastAttempt;
            last && last->start >= 1 && last->end > last->start)
            set.duration = last->end - last->start;
        // A backup that took longer, such as the first one, won't do so each time.
        if (row.plan->interval)
            set.duration = std::min(set.duration, *row.plan->interval);
        sets.push_back(std::move(set));
    }
    return plannedRuns(sets, clock.now, clock.now + lookAhead, clock.zone);
}

SetNames HealthMonitor::names() const {
    SetNames names;
    for (const backup_set_info& set : sets_)
        names[set.id] = set.name;
    return names;
}

} // namespace insight
