// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

class BackedUpNode;

namespace models {

/// What is checked, as ids for the agent, in the order of the tree: that of each topmost item that
/// is wholly checked. Items without an id are looked into, whatever their state, and fetched if
/// need be; raises what that raises.
std::vector<std::int64_t> selectedIds(BackedUpNode& root);

} // namespace models
