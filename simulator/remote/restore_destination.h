// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "api/restore_records.h"
#include "simulator/world/source_computer.h"
#include "simulator/world/stored_data.h"

namespace simulator {

/// The shares that these places lie in, each with the path that all of its places have in common.
std::vector<hessiancln::selected_shares> sharesOf(const std::vector<StoredPlace>& places);

/// Raises `Violation` unless each share goes to one path of its own, and no more of a path is
/// dropped than may be.
void checkMappings(const std::vector<hessiancln::selected_shares>& shares,
                   const std::vector<hessiancln::share_mapping>& mappings,
                   std::int32_t truncateLevel);

/// Raises `Refusal` if the path begins with no drive of the computer.
void checkDestination(const SourceComputer& computer, const std::string& path);

/// Raises `Violation` unless it stands for a reason, and not for a heading over some of them.
void checkReason(std::int32_t code);

} // namespace simulator
