// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "api/restore_records.h"

/// Where restored shares go if they don't go back to where they came from. Text is UTF-8.
namespace wizards {

struct ShareMappings {
    std::vector<hessiancln::share_mapping> mappings;
    std::int32_t truncateLevel = 0; ///< how many leading levels of all paths are dropped
};

/// How many levels the path has that a restore may drop: its backslashes.
std::int32_t truncateLevelOf(std::string_view truncatablePath);

/// What of a share's name can be the name of a directory on any system; ".data." if nothing is.
std::string directoryNameOf(std::string_view shareName);

/// One share goes to `destination` itself, without the levels that can be dropped. Of several each
/// gets a directory of its own in there, and keeps its levels.
ShareMappings shareMappings(const std::vector<hessiancln::selected_shares>& shares,
                            const std::string& destination);

} // namespace wizards
