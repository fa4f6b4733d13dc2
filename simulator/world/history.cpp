// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/history.h"

#include <algorithm>
#include <utility>

namespace simulator {

using hessiancln::activity_log_info;
using hessiancln::ActivityCompletion;
using hessiancln::ActivityType;

namespace {

constexpr std::int32_t secondsADay = 86'400;
constexpr std::int32_t daysOfBulk = 730;
constexpr int sunday = 3; // because the first day of 1970 was a Thursday

void settle(activity_log_info& row) {
    const Ending ending = row.errors     ? Ending::WithErrors
                          : row.warnings ? Ending::WithWarnings
                                         : Ending::Completed;
    row.completion = static_cast<ActivityCompletion>(ending);
    row.node_id = 1;
    row.transmit_amt = row.data_size * 61 / 100;
    row.net_transmit_amt = row.data_size * 38 / 100;
}

void remember(BackupSetState& set, const activity_log_info& row) {
    auto& info = set.info;
    info.last_backup = row.end_time;
    info.last_successful_backup = row.end_time;
    info.last_sync_time = std::max(info.last_sync_time, row.end_time);
    set.sessions.push_back({row.start_time, row.end_time, row.file_count, row.data_size, row.id});
}

} // namespace

History::History(World& world)
    : world_(world)
    , now_(seconds(world.now())) {}

std::int32_t History::startOn(int daysAgo, int hour) {
    const std::int32_t midnight = now_ / secondsADay * secondsADay;
    const auto jitter = static_cast<std::int32_t>(world_.random().between(0, 240));
    return midnight - daysAgo * secondsADay + hour * 3600 + jitter;
}

activity_log_info History::backupRow(const BackupSetState& set, std::int32_t start) {
    Random& random = world_.random();
    activity_log_info row;
    row.type = ActivityType::Backup;
    row.description = set.info.name;
    row.user = set.info.owner_name;
    row.set_id = set.info.id;
    row.schedule_id = set.info.schedule_id;
    row.start_time = start;
    row.end_time = start + static_cast<std::int32_t>(random.between(35, 1900));
    row.file_count = static_cast<std::int32_t>(random.between(12, 2600));
    row.data_size = row.file_count * random.between(30'000, 1'400'000);
    row.warnings = random.onceIn(6) ? static_cast<std::int32_t>(random.between(1, 4)) : 0;
    row.errors = random.onceIn(15) ? static_cast<std::int32_t>(random.between(1, 3)) : 0;
    return row;
}

void History::add(const World::Set& set, activity_log_info row) {
    // Skip runs that wouldn't have ended by now.
    if (row.end_time >= now_)
        return;
    settle(row);
    past_.push_back({std::move(row), set});
}

void History::dailyBackups(const World::Set& set, int days, int hour) {
    for (int day = days; day >= 0; --day)
        add(set, backupRow(*set, startOn(day, hour)));
}

void History::adminRuns(int days) {
    for (int day = days; day >= 0; --day) {
        activity_log_info row;
        row.start_time = startOn(day, 1);
        const bool weekly = row.start_time / secondsADay % 7 == sunday;
        row.type = weekly ? ActivityType::WeeklyAdmin : ActivityType::DailyAdmin;
        row.description = weekly ? "Weekly administration" : "Daily administration";
        row.user = "SYSTEM";
        row.end_time = row.start_time + (weekly ? 1300 : 190);
        add(nullptr, std::move(row));
    }
}

void History::run(const World::Set& set, ActivityType type, std::int32_t endedAgo,
                  std::int32_t duration, std::int32_t files, std::int64_t bytes) {
    activity_log_info row = backupRow(*set, now_ - endedAgo - duration);
    row.type = type;
    row.schedule_id = 0;
    row.end_time = now_ - endedAgo;
    row.file_count = files;
    row.data_size = bytes;
    row.errors = row.warnings = 0;
    add(set, std::move(row));
}

void History::bulk(std::size_t rows) {
    const auto& sets = world_.sets();
    const std::int64_t span = std::int64_t{daysOfBulk} * secondsADay;
    for (std::size_t i = 0; i < rows; ++i) {
        const auto& set = sets[i % sets.size()];
        const auto age = static_cast<std::int32_t>(span * static_cast<std::int64_t>(rows - i) /
                                                   static_cast<std::int64_t>(rows));
        activity_log_info row = backupRow(*set, now_ - age - 1900);
        add(set, std::move(row));
    }
}

void History::write() {
    std::stable_sort(past_.begin(), past_.end(), [](const Past& a, const Past& b) {
        return a.row.start_time < b.row.start_time;
    });
    for (Past& past : past_) {
        past.row.id = world_.addToLog(past.row);
        world_.reportEnd(past.row);
        if (past.set && past.row.type == ActivityType::Backup)
            remember(*past.set, past.row);
    }
    past_.clear();
}

} // namespace simulator
