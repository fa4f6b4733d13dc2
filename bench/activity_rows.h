// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "api/activity_records.h"

/// What the codec is measured with: rows of an agent's activity log.
namespace bench {

using Rows = std::vector<hessiancln::activity_log_info>;

/// `count` rows that differ, with a description of about 40 and a user of 12 characters.
Rows sampleRows(std::size_t count);

/// `rows` as the agent would send them if it wrote each record's keys from the last to the first.
std::string writeInReverse(const Rows& rows);

/// True if both hold the same values.
bool same(const Rows& a, const Rows& b);

} // namespace bench
