// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "api/restore_records.h"

/// Destinations of shares that aren't restored to their original place. Text is UTF-8.
namespace wizards {

struct ShareMappings {
    std::vector<hessiancln::share_mapping> mappings;
    std::int32_t truncateLevel = 0; ///< number of leading levels to drop from all paths
};

/// The number of path levels that a restore may drop: its backslashes.
std::int32_t truncateLevelOf(std::string_view truncatablePath);

/// The part of a share's name that is valid in directory names on any system, or ".data." if empty.
std::string directoryNameOf(std::string_view shareName);

/// A single share goes to `destination` itself, without the levels that can be dropped. Several
/// shares each get their own directory in there, and keep their levels.
ShareMappings shareMappings(const std::vector<hessiancln::selected_shares>& shares,
                            const std::string& destination);

} // namespace wizards
