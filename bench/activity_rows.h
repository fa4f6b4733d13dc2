// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "api/activity_records.h"

/// The codec benchmark's data: rows of an agent's activity log.
namespace bench {

using Rows = std::vector<hessiancln::activity_log_info>;

/// `count` different rows, with descriptions of about 40 characters and user names of 12.
Rows sampleRows(std::size_t count);

/// `rows` encoded as if the agent wrote each record's keys in reverse order.
std::string writeInReverse(const Rows& rows);

/// True if both contain the same values.
bool same(const Rows& a, const Rows& b);

} // namespace bench
