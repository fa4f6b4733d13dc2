// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/world.h"

#include <algorithm>
#include <utility>

#include "simulator/objects/failures.h"
#include "simulator/world/names.h"
#include "simulator/world/set_storage.h"

namespace simulator {

using hessiancln::activity_log_info;
using hessiancln::ActivityType;
using hessiancln::event_log_info;
using hessiancln::EventCategory;
using hessiancln::EventLogType;

namespace {

constexpr std::int32_t eventEnded = 1002;
constexpr std::int32_t eventStarted = 1001;
constexpr std::int32_t eventFileSkipped = 0x01000020;

std::vector<std::string> foldersOf(const BackupSetState& set) {
    std::vector<std::string> folders;
    for (const ItemState& item : set.items)
        if (item.kind == ItemState::Kind::Inclusion)
            folders.push_back(nativePath(item.folder));
    return folders;
}

} // namespace

World::World(Clock clock, double speed, std::uint64_t seed)
    : clock_(std::move(clock))
    , speed_(speed)
    , random_(seed) {}

void World::advance() {
    const Milliseconds time = now();
    startDueBackups();
    for (;;) {
        const auto next =
            std::min_element(running_.begin(), running_.end(),
                             [](const auto& a, const auto& b) { return a.end() < b.end(); });
        if (next == running_.end() || next->end() > time)
            return;
        end(next, next->end(), false);
    }
}

void World::spendCode() {
    constexpr std::int32_t modeOfSets = 2;
    if (twoFactor && validatedCodes.erase(modeOfSets) == 0)
        throw Refusal("A deletion needs an authentication code.");
}

void World::keepBusy(Milliseconds every) {
    busyEvery_ = every;
    nextBackup_ = now() + every;
}

void World::startDueBackups() {
    if (busyEvery_ == 0 || now() < nextBackup_ || sets_.empty())
        return;
    nextBackup_ = now() + busyEvery_;
    const Set& set = sets_[turns_++ % sets_.size()];
    if (!set->info.is_active || !set->info.in_sync || set->items.empty())
        return;
    ActivityPlan plan = backupOf(set, set->info.owner_name);
    plan.schedule_id = set->info.schedule_id;
    start(std::move(plan));
}

World::Set World::set(std::int32_t id) const {
    const auto found = std::find_if(sets_.begin(), sets_.end(),
                                    [id](const Set& set) { return set->info.id == id; });
    return found == sets_.end() ? nullptr : *found;
}

World::Set World::setNamed(const std::string& name) const {
    const auto found = std::find_if(sets_.begin(), sets_.end(), [&name](const Set& set) {
        return agreeWithoutCase(set->info.name, name);
    });
    return found == sets_.end() ? nullptr : *found;
}

hessiancln::backup_set_info World::infoOf(const BackupSetState& set) const {
    hessiancln::backup_set_info info = set.info;
    const auto schedule = schedules.find(info.schedule_id);
    const auto rule = retentionRules.find(info.retention_rule_id);
    info.schedule_name = schedule ? schedule->name : std::string();
    info.retention_rule_name = rule ? rule->name : std::string();
    return info;
}

hessiancln::ScheduleDetailType World::scheduleTypeOf(const BackupSetState& set) const {
    const auto schedule = schedules.find(set.info.schedule_id);
    return typeOf(schedule ? *schedule : ScheduleState());
}

void World::enlist(const Set& set) {
    set->info.id = ++lastSetId_;
    sets_.push_back(set);
}

World::Set World::addSet(BackupSetState state) {
    auto set = std::make_shared<BackupSetState>(std::move(state));
    enlist(set);
    return set;
}

void World::removeSet(std::int32_t id) {
    std::erase_if(sets_, [id](const Set& set) { return set->info.id == id; });
}

std::int32_t World::start(ActivityPlan plan) {
    const std::int32_t id = ++lastActivityId_;
    event_log_info event;
    event.when = seconds(now());
    event.user = plan.user;
    event.event_id = eventStarted;
    event.activity_id = id;
    event.description = "Activity started: " + plan.description;
    addEvent(std::move(event));
    running_.emplace_back(id, std::move(plan), now(), speed_);
    return id;
}

bool World::stop(std::int32_t activityId) {
    const auto found =
        std::find_if(running_.begin(), running_.end(),
                     [activityId](const Activity& one) { return one.id() == activityId; });
    if (found == running_.end())
        return false;
    end(found, now(), true);
    return true;
}

bool World::isRunning(std::int32_t activityId) const {
    return std::any_of(running_.begin(), running_.end(),
                       [activityId](const Activity& one) { return one.id() == activityId; });
}

std::vector<hessiancln::running_activity_info> World::running() const {
    std::vector<hessiancln::running_activity_info> list;
    for (const Activity& activity : running_)
        list.push_back(activity.at(now()));
    return list;
}

void World::end(std::vector<Activity>::iterator activity, Milliseconds when, bool stopped) {
    const activity_log_info row = activity->outcome(when, stopped);
    const auto ended = activity->plan().ended;
    running_.erase(activity);
    log_.push_back(row);
    reportEnd(row);
    if (ended)
        ended(row);
}

void World::reportEnd(const activity_log_info& row) {
    event_log_info event;
    event.when = row.end_time;
    event.user = row.user;
    event.activity_id = row.id;
    for (std::int32_t i = 0; i < row.warnings + row.errors; ++i) {
        const bool error = i < row.errors;
        event.type = error ? EventLogType::Error : EventLogType::Warning;
        event.category = EventCategory::IO;
        event.event_id = eventFileSkipped;
        event.description =
            error ? "A file could not be read." : "A file changed while it was read.";
        event.extra_info = "error 32, file " + std::to_string(i + 1);
        addEvent(event);
    }
    const bool stopped = row.completion == hessiancln::ActivityCompletion(Ending::Stopped);
    event.type = stopped ? EventLogType::Warning : EventLogType::Information;
    event.category = EventCategory::Application;
    event.event_id = eventEnded;
    event.description = (stopped ? "Activity stopped: " : "Activity ended: ") + row.description;
    event.extra_info = std::to_string(row.file_count) + " files";
    addEvent(std::move(event));
}

std::int32_t World::addToLog(activity_log_info row) {
    row.id = ++lastActivityId_;
    log_.push_back(std::move(row));
    return lastActivityId_;
}

void World::addEvent(event_log_info event) {
    event.node_id = 1;
    events_.push_back(std::move(event));
}

Rows<activity_log_info> World::activityLog(std::int32_t from, std::int32_t to) const {
    Rows<activity_log_info> rows;
    for (const activity_log_info& row : log_)
        if (row.start_time <= to && row.end_time >= from)
            rows.push_back(&row);
    return rows;
}

Rows<event_log_info> World::eventLog(std::int32_t from, std::int32_t to,
                                     std::int32_t activityId) const {
    Rows<event_log_info> rows;
    for (const event_log_info& event : events_) {
        const bool inSpan = from <= event.when && event.when <= to;
        if (activityId == 0 ? inSpan : event.activity_id == activityId)
            rows.push_back(&event);
    }
    return rows;
}

activity_log_info World::lastActivity(std::int32_t setId, ActivityType type) const {
    activity_log_info last;
    for (const activity_log_info& row : log_)
        if (row.set_id == setId && row.type == type && row.start_time >= last.start_time)
            last = row;
    return last;
}

ActivityPlan World::planOf(ActivityType type, const Set& set, const std::string& user) {
    ActivityPlan plan;
    plan.type = type;
    plan.description = set->info.name;
    plan.user = user;
    plan.set_id = set->info.id;
    return plan;
}

ActivityPlan World::backupOf(const Set& set, const std::string& user) {
    ActivityPlan plan = planOf(ActivityType::Backup, set, user);
    plan.files = static_cast<std::int32_t>(random_.between(180, 4200));
    plan.bytes = plan.files * random_.between(40'000, 900'000);
    plan.duration = random_.between(60, 240) * 1000;
    plan.directories = foldersOf(*set);
    plan.ended = [set](const activity_log_info& row) {
        auto& info = set->info;
        info.last_backup = row.end_time;
        if (row.completion == hessiancln::ActivityCompletion(Ending::Stopped))
            return;
        info.last_successful_backup = row.end_time;
        info.online_data_size += row.data_size;
        info.online_file_count += row.file_count;
        info.tarnsys_compressed_size += row.net_transmit_amt;
        set->leastGenerations = std::max(set->leastGenerations, 1);
        set->mostGenerations += 1;
        set->sessions.push_back(
            {row.start_time, row.end_time, row.file_count, row.data_size, row.id});
        storeBackup(*set, row.end_time);
    };
    return plan;
}

ActivityPlan World::synchronisationOf(const Set& set, const std::string& user) {
    ActivityPlan plan = planOf(ActivityType::Synchronization, set, user);
    plan.files = set->info.online_file_count;
    plan.duration = random_.between(20, 60) * 1000;
    plan.ended = [set](const activity_log_info& row) {
        if (row.completion == hessiancln::ActivityCompletion(Ending::Stopped))
            return;
        set->info.in_sync = true;
        set->info.last_sync_time = row.end_time;
    };
    return plan;
}

ActivityPlan World::removalOf(const Set& set, const std::string& user) {
    ActivityPlan plan = planOf(ActivityType::Delete, set, user);
    plan.files = set->info.online_file_count;
    plan.bytes = set->info.online_data_size;
    plan.duration = random_.between(15, 40) * 1000;
    plan.ended = [this, id = set->info.id](const activity_log_info& row) {
        if (row.completion != hessiancln::ActivityCompletion(Ending::Stopped))
            removeSet(id);
    };
    return plan;
}

ActivityPlan World::ownWork(ActivityType type, const char* description, const std::string& user) {
    ActivityPlan plan;
    plan.type = type;
    plan.description = description;
    plan.user = user;
    plan.duration = random_.between(20, 60) * 1000;
    return plan;
}

ActivityPlan World::dailyAdmin(const std::string& user) {
    return ownWork(ActivityType::DailyAdmin, "Daily administration", user);
}

ActivityPlan World::weeklyAdmin(const std::string& user) {
    return ownWork(ActivityType::WeeklyAdmin, "Weekly administration", user);
}

ActivityPlan World::databaseRecovery(const std::string& user) {
    return ownWork(ActivityType::Recovery, "Recovery of the database", user);
}

} // namespace simulator
