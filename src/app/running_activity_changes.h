// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <set>
#include <vector>

#include <QList>

#include "api/activity_records.h"

namespace app {

struct RunningActivityChanges {
    QList<hessiancln::running_activity_info> appeared;
    QList<hessiancln::running_activity_info> disappeared;
};

/// Ids of activities.
using ActivityIds = std::set<std::int32_t>;

ActivityIds idsOf(const std::vector<hessiancln::running_activity_info>& activities);

/// What has started and ended since the list `before`, when `known` were running. An activity in
/// `now` that started 30 seconds ago or earlier, by `clock`, isn't new: this program or the list
/// was late. Times are seconds since 1970 UTC.
RunningActivityChanges
compareRunningActivities(const std::vector<hessiancln::running_activity_info>& now,
                         const std::vector<hessiancln::running_activity_info>& before,
                         const ActivityIds& known, std::int64_t clock);

} // namespace app
