// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "api/backup_set_records.h"
#include "simulator/world/credentials_state.h"
#include "simulator/world/stored_data.h"

namespace simulator {

/// An item of a set: what it includes or excludes.
struct ItemState {
    enum class Kind { Inclusion = 0, Exclusion = 1, Regex = 2 } kind = Kind::Inclusion;
    std::string computer;
    std::string folder;
    std::int32_t generations = 9999;
    // For a regular expression only.
    std::string expression{};
    bool inclusion = false; ///< selects files
    bool negate = false;
    bool caseSensitive = true;
    bool matchDirectories = true;
};

/// Used in place of an id.
inline constexpr std::int32_t noSchedule = -1;
inline constexpr std::int32_t noRule = 0;

/// Everything the agent knows about a set. The figures are in `info`, which lists show; it contains
/// only the ids of the schedule and the retention rule.
struct BackupSetState {
    hessiancln::backup_set_info info;
    std::int32_t leastGenerations = -1;
    std::int32_t mostGenerations = 0;
    std::vector<ItemState> items;
    std::vector<hessiancln::backup_sessions> sessions; ///< oldest first
    std::string localStoragePath;
    bool usingLocalTransmissionCache = false;
    bool useVss = true;
    /// The full name of its computer, if it differs from the one shown in lists.
    std::string source;
    bool ofWindows = true;
    CredentialsState credentials;
    std::shared_ptr<StoredData> stored; ///< null until first accessed
};

} // namespace simulator
