// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include "api/data_view_records.h"

/// Which stored version of a file is shown for a time span. Times are seconds since 1970 UTC; 0
/// means no limit.
namespace models {

using Generations = std::vector<hessiancln::file_generations>;

/// Newest first; those with equal times keep their order.
Generations newestFirst(Generations generations);

/// The index of the newest one backed up between `from` and `to`, inclusive; -1 without one.
int newestInRange(const Generations& generations, std::int32_t from, std::int32_t to);

/// Whether the span up to `to` includes the generation of the time `chosen` and no newer one.
/// Always false without a limit.
bool isNewestWithin(const Generations& generations, std::int32_t to, std::int32_t chosen);

} // namespace models
