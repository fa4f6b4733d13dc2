// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

class BackedUpNode;

namespace models {

/// The ids of the checked items, in tree order: one for each topmost fully checked item. Items
/// without an id are descended into, whatever their state, and fetched if necessary; throws what
/// fetching throws.
std::vector<std::int64_t> selectedIds(BackedUpNode& root);

} // namespace models
