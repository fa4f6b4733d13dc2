// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace simulator {

/// The kind of agent, and what it holds.
enum class Scenario {
    Default,  ///< the notebook of a diligent user, with a backup in progress
    Empty,    ///< no sets, nothing ever ran
    Central,  ///< sets from a central policy
    Notebook, ///< an agent of the notebook kind
    FirstRun, ///< never configured
    Unix,     ///< an agent on a Unix computer
    Large,    ///< 2,000 sets and 100,000 rows in the activity log
    // Contents of storage: one set, as documented at `Storage`. Ids don't fit in 32 bits, and those
    // of one view are invalid in the next.
    Generations,
    Groups,
    Shares,
    Failing,
    ManyFiles,
    Deep,
    Storages, ///< one set for each of the storages above
    // Problems for users to solve.
    Overdue,     ///< backups that are too old or were missed, and old ones without a schedule
    Failed,      ///< backups that ended with errors or never succeeded
    Stalled,     ///< a backup that makes no progress, and one that does
    Overlapping, ///< schedules of all kinds, some of them overlapping
    ManyFolders, ///< a set with 100,000 files in 1,000 folders
};

/// All scenarios with their command-line names: "default", "first-run" and so on.
std::vector<std::pair<std::string_view, Scenario>> allScenarios();

/// Finds a scenario by its command-line name.
std::optional<Scenario> scenarioNamed(std::string_view name);

class World;

/// Fills an empty world. `osType`, a number of the wire, overrides the scenario's own.
void populate(World& world, Scenario scenario, std::optional<std::int32_t> osType = {});

} // namespace simulator
