// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace simulator {

/// What kind of agent there is, and what it holds.
enum class Scenario {
    Default,  ///< the notebook of somebody who backs up diligently, with a backup under way
    Empty,    ///< no sets, nothing ever ran
    Central,  ///< sets that come from a central policy
    Notebook, ///< an agent of the notebook kind
    FirstRun, ///< never configured
    Unix,     ///< an agent on a Unix computer
    Large,    ///< 2,000 sets and 100,000 rows in the activity log
    // What sets hold in storage: one set, as `Storage` tells it. Ids don't fit 32 bits, and those
    // of one view mean nothing to the next.
    Generations,
    Groups,
    Shares,
    Failing,
    ManyFiles,
    Deep,
    Storages, ///< one set of each of them
    // What people have to look after.
    Overdue,     ///< backups that are too old or were missed, and old ones that nobody scheduled
    Failed,      ///< backups that ended with errors or never succeeded
    Stalled,     ///< a backup that doesn't get on, and one that does
    Overlapping, ///< schedules of all kinds, some of them at the same time
    ManyFolders, ///< a set with 100,000 files in 1,000 folders
};

/// All of them, by the names of the command line: "default", "first-run" and so on.
std::vector<std::pair<std::string_view, Scenario>> allScenarios();

/// By its name on the command line.
std::optional<Scenario> scenarioNamed(std::string_view name);

class World;

/// Fills an empty world. `osType` is in place of the scenario's own, as it stands on the wire.
void populate(World& world, Scenario scenario, std::optional<std::int32_t> osType = {});

} // namespace simulator
