// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "api/activity_records.h"
#include "simulator/world/world.h"

namespace simulator {

/// The past of a world. Runs are collected in any order, and `write` adds them to the log with ids
/// that ascend with time.
class History {
public:
    explicit History(World& world);

    /// Adds a backup of the set on each of the last `days` days, at about this hour UTC. Updates
    /// the figures of the set.
    void dailyBackups(const World::Set& set, int days, int hour);

    /// The agent's own tasks: each night, and longer on Sundays.
    void adminRuns(int days);

    /// A single run; `endedAgo` in seconds.
    void run(const World::Set& set, hessiancln::ActivityType type, std::int32_t endedAgo,
             std::int32_t duration, std::int32_t files, std::int64_t bytes);

    /// Adds `rows` backups, spread evenly over the sets and the last two years.
    void bulk(std::size_t rows);

    void write();

private:
    struct Past {
        hessiancln::activity_log_info row;
        World::Set set; ///< set for a backup, null otherwise
    };

    hessiancln::activity_log_info backupRow(const BackupSetState& set, std::int32_t start);
    std::int32_t startOn(int daysAgo, int hour);
    void add(const World::Set& set, hessiancln::activity_log_info row);

    World& world_;
    std::int32_t now_;
    std::vector<Past> past_;
};

} // namespace simulator
