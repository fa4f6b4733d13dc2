// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include "api/data_view_records.h"

/// Which stored version of a file a span of time shows. Times are seconds since 1970 UTC; 0 means
/// no limit.
namespace models {

using Generations = std::vector<hessiancln::file_generations>;

/// Newest first; those of one time stay in their order.
Generations newestFirst(Generations generations);

/// The place of the newest one that was backed up from `from` to `to`, both included; -1 if there
/// is none.
int newestInRange(const Generations& generations, std::int32_t from, std::int32_t to);

/// Whether the span up to `to` shows the generation of the time `chosen`, and no newer one. Never
/// without a limit.
bool isNewestWithin(const Generations& generations, std::int32_t to, std::int32_t chosen);

} // namespace models
