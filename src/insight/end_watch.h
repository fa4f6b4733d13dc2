// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "api/activity_records.h"

namespace insight {

/// Finds out how activities ended: one that is gone from the list of those that run has a row in
/// the log, if not at once then soon.
class EndWatch {
public:
    /// An activity was in the list and isn't any more.
    void gone(std::int32_t activityId);
    /// Forgets what it waits for.
    void clear() { waiting_.clear(); }

    /// The rows of what was waited for, in the order of the log. What isn't in the third log from
    /// its end on is waited for no longer: the log shows another time.
    std::vector<hessiancln::activity_log_info>
    take(const std::vector<hessiancln::activity_log_info>& log);

private:
    std::map<std::int32_t, int> waiting_; ///< ids, and in how many logs they weren't
};

/// Whether people are shown how it ended beyond its row in the log: with errors, or a restore.
bool isNews(const hessiancln::activity_log_info& ended);

} // namespace insight
