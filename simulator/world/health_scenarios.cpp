// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/health_scenarios.h"

#include <memory>
#include <string>
#include <utility>

#include "simulator/world/described_set.h"
#include "simulator/world/plans.h"
#include "simulator/world/set_storage.h"
#include "simulator/world/world.h"

namespace simulator {
namespace {

using hessiancln::activity_log_info;
using hessiancln::ActivityCompletion;
using hessiancln::ActivityType;
using hessiancln::ScheduleDetailType;
using hessiancln::SelectableItemType;

constexpr std::int32_t hour = 3'600;
constexpr std::int32_t day = 24 * hour;
constexpr std::int64_t gibibyte = 1 << 30;
constexpr std::int32_t everyDay = 127;
constexpr std::int32_t backup = 1;

World::Set addSet(World& world, std::string_view name, std::int32_t schedule) {
    auto set = describedSet(
        world, {std::string(name), {"D:\\" + std::string(name)}, 8 * gibibyte, 12'000});
    set.info.schedule_id = schedule;
    return world.addSet(std::move(set));
}

struct Outcome {
    std::int32_t errors = 0;
    std::int32_t warnings = 0;
    bool succeeded = true;
};

/// Adds a backup that ended `ago` seconds before now and took ten minutes.
void backedUp(World& world, const World::Set& set, std::int32_t ago, const Outcome& outcome = {}) {
    activity_log_info row;
    row.type = ActivityType::Backup;
    row.description = set->info.name;
    row.user = set->info.owner_name;
    row.set_id = set->info.id;
    row.schedule_id = set->info.schedule_id;
    row.end_time = seconds(world.now()) - ago;
    row.start_time = row.end_time - 600;
    row.file_count = 420;
    row.data_size = gibibyte / 4;
    row.errors = outcome.errors;
    row.warnings = outcome.warnings;
    row.completion = static_cast<ActivityCompletion>(outcome.errors     ? Ending::WithErrors
                                                     : outcome.warnings ? Ending::WithWarnings
                                                                        : Ending::Completed);
    row.node_id = 1;
    row.id = world.addToLog(row);
    world.reportEnd(row);
    auto& info = set->info;
    info.last_backup = row.end_time;
    if (outcome.succeeded)
        info.last_successful_backup = info.last_sync_time = row.end_time;
    set->sessions.push_back({row.start_time, row.end_time, row.file_count, row.data_size, row.id});
}

/// A daily schedule whose last start was `ago` seconds before now, to the minute. In UTC.
std::int32_t addDailySchedule(World& world, const std::string& name, std::int32_t ago) {
    const std::int32_t start = (seconds(world.now()) - ago) % day;
    ScheduleState schedule;
    schedule.name = name;
    schedule.details.push_back(std::make_shared<ScheduleDetailState>(ScheduleDetailState{
        ScheduleDetailType::Weekly, everyDay, {start / hour, start / 60 % 60, 0}, {}, 0, backup}));
    return world.schedules.add(std::move(schedule))->id;
}

void populateOverdue(World& world) {
    // The agent catches up on a missed start within four hours.
    const std::int32_t daily = addDailySchedule(world, "Five hours ago", 5 * hour);
    backedUp(world, addSet(world, health::unscheduled, noSchedule), 400 * day);
    backedUp(world, addSet(world, health::lastMonth, plans::firstOfTheMonth), hour);
    backedUp(world, addSet(world, health::old, daily), 3 * day);
    backedUp(world, addSet(world, health::missed, daily), day + 4 * hour);
    backedUp(world, addSet(world, "Documents", daily), 4 * hour);
}

void populateFailed(World& world) {
    const std::int32_t daily = addDailySchedule(world, "An hour ago", hour);
    backedUp(world, addSet(world, "Documents", daily), 1'500);
    backedUp(world, addSet(world, health::withWarnings, daily), 1'400, {0, 2});
    backedUp(world, addSet(world, health::withErrors, daily), 1'300, {3, 1});
    const auto lost = addSet(world, health::unsuccessful, daily);
    backedUp(world, lost, day);
    backedUp(world, lost, 1'200, {1, 0, false});
    auto fresh = describedSet(world, {"Music", {"D:\\Music"}, 0, 0});
    fresh.info.schedule_id = noSchedule;
    world.addSet(std::move(fresh));
}

void populateStalled(World& world) {
    constexpr double share = 0.4;
    for (const std::string_view name : {health::stalled, health::moving}) {
        const auto set = addSet(world, name, plans::everyEvening);
        backedUp(world, set, day);
        ActivityPlan plan = world.backupOf(set, "anna");
        plan.files = 4'000;
        plan.bytes = 8 * gibibyte;
        plan.duration = Milliseconds{1'000} * hour;
        if (name == health::stalled)
            plan.standsAt = share;
        world.start(std::move(plan));
    }
}

std::int32_t addSchedule(World& world, const std::string& name, const ScheduleDetailState& detail) {
    ScheduleState schedule;
    schedule.name = name;
    schedule.details.push_back(std::make_shared<ScheduleDetailState>(detail));
    return world.schedules.add(std::move(schedule))->id;
}

void populateOverlapping(World& world) {
    using Detail = ScheduleDetailState;
    const auto weekly = ScheduleDetailType::Weekly;
    const auto monthly = ScheduleDetailType::Monthly;
    const std::pair<std::string, Detail> described[] = {
        {"Documents", {weekly, 31, {20, 0, 0}, {{30, 0, 0}}, 0, backup}},
        {"Pictures and Videos", {weekly, everyDay, {20, 5, 0}, {{30, 0, 0}}, 0, backup}},
        {"Mail archive", {weekly, 31, {8, 0, 0}, {{18, 0, 0}}, 2, backup}},
        {"Night shift", {weekly, 96, {22, 0, 0}, {{28, 0, 0}}, 3, backup}},
        {"Accounts", {monthly, 28, {3, 0, 0}, {}, 0, backup}},
        {"Month's end", {monthly, 31, {3, 5, 0}, {}, 0, backup}},
    };
    for (const auto& [name, detail] : described)
        backedUp(world, addSet(world, name, addSchedule(world, name, detail)), 2 * hour);
}

void populateManyFolders(World& world) {
    const std::int32_t time = seconds(world.now()) - day;
    auto set = describedSet(world, {"Archive", {"D:\\Archive"}, 0, 0});
    set.stored = std::make_shared<StoredData>();
    StoredNode& top = set.stored->addFolder("D:\\Archive");
    constexpr std::size_t outer = 10;
    constexpr std::size_t inner = health::folders / outer - 1; // minus the outer folder itself
    constexpr std::size_t filesEach = health::files / health::folders;
    const auto fill = [&](StoredNode& folder, const std::string& mark) {
        for (std::size_t i = 0; i < filesEach; ++i) {
            StoredNode file{"Letter " + mark + "-" + std::to_string(i) + ".odt",
                            SelectableItemType::File,
                            true,
                            false,
                            {},
                            0,
                            {},
                            {}};
            file.generations = {{time - 9'000, time, 20'480, 9'120}};
            folder.children.push_back(std::make_shared<StoredNode>(std::move(file)));
        }
    };
    StoredNode* last = &top;
    for (std::size_t year = 0; year < outer; ++year) {
        const std::string number = std::to_string(2010 + year);
        StoredNode& folder = top.child("Year " + number, SelectableItemType::Folder);
        fill(folder, number);
        for (std::size_t i = 0; i < inner; ++i) {
            last = &folder.child("Case " + std::to_string(i), SelectableItemType::Folder);
            fill(*last, number + "-" + std::to_string(i));
        }
    }
    last->children.back()->name = health::needle;
    takeFigures(set);
    set.sessions.push_back({time - 600, time, set.info.online_file_count, 0, 0});
    set.info.last_backup = set.info.last_successful_backup = set.info.last_sync_time = time;
    world.addSet(std::move(set));
}

} // namespace

void populateForHealth(World& world, Scenario scenario) {
    switch (scenario) {
    case Scenario::Overdue:
        return populateOverdue(world);
    case Scenario::Failed:
        return populateFailed(world);
    case Scenario::Stalled:
        return populateStalled(world);
    case Scenario::Overlapping:
        return populateOverlapping(world);
    case Scenario::ManyFolders:
        return populateManyFolders(world);
    default:
        return;
    }
}

} // namespace simulator
