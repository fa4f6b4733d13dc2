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

/// The shares of these places, each with the common path of all of its places.
std::vector<hessiancln::selected_shares> sharesOf(const std::vector<StoredPlace>& places);

/// Throws `Violation` unless each share has its own destination path, and no path drops more levels
/// than allowed.
void checkMappings(const std::vector<hessiancln::selected_shares>& shares,
                   const std::vector<hessiancln::share_mapping>& mappings,
                   std::int32_t truncateLevel);

/// Throws `Refusal` if the path doesn't begin with a drive of the computer.
void checkDestination(const SourceComputer& computer, const std::string& path);

/// Throws `Violation` unless it is the code of a reason rather than a heading.
void checkReason(std::int32_t code);

} // namespace simulator
