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

/// An item of a set: what it takes in or leaves out.
struct ItemState {
    enum class Kind { Inclusion = 0, Exclusion = 1, Regex = 2 } kind = Kind::Inclusion;
    std::string computer;
    std::string folder;
    std::int32_t generations = 9999;
    // Of a regular expression only.
    std::string expression{};
    bool inclusion = false; ///< it selects files
    bool negate = false;
    bool caseSensitive = true;
    bool matchDirectories = true;
};

/// What stands in place of an id.
inline constexpr std::int32_t noSchedule = -1;
inline constexpr std::int32_t noRule = 0;

/// All that the agent knows of a set. The figures stand in `info`, which is what lists show; the
/// schedule and the retention rule stand there by their ids only.
struct BackupSetState {
    hessiancln::backup_set_info info;
    std::int32_t leastGenerations = -1;
    std::int32_t mostGenerations = 0;
    std::vector<ItemState> items;
    std::vector<hessiancln::backup_sessions> sessions; ///< oldest first
    std::string localStoragePath;
    bool usingLocalTransmissionCache = false;
    bool useVss = true;
    /// The full name of its computer, if that isn't the one that lists show.
    std::string source;
    bool ofWindows = true;
    CredentialsState credentials;
    std::shared_ptr<StoredData> stored; ///< null until somebody asks for it
};

} // namespace simulator
