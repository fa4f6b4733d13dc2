// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "api/activity_records.h"

namespace insight {

/// Finds out how activities ended: when one is no longer listed as running, its row appears in the
/// log, immediately or soon after.
class EndWatch {
public:
    /// Starts waiting for an activity that is no longer listed as running.
    void gone(std::int32_t activityId);
    /// Stops waiting.
    void clear() { waiting_.clear(); }

    /// Returns the rows of the awaited activities, in log order. An activity missing from three
    /// logs is given up: the log shows another time span.
    std::vector<hessiancln::activity_log_info>
    take(const std::vector<hessiancln::activity_log_info>& log);

private:
    std::map<std::int32_t, int> waiting_; ///< ids, and the number of logs they were missing from
};

/// Whether the user is notified of the end beyond its row in the log: with errors, or for a
/// restore.
bool isNews(const hessiancln::activity_log_info& ended);

} // namespace insight
