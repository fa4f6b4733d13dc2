// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/running_activity_changes.h"

namespace app {

using hessiancln::running_activity_info;

namespace {

constexpr std::int64_t secondsOfNews = 30;

} // namespace

ActivityIds idsOf(const std::vector<running_activity_info>& activities) {
    ActivityIds ids;
    for (const auto& activity : activities)
        ids.insert(activity.activity_id);
    return ids;
}

RunningActivityChanges compareRunningActivities(const std::vector<running_activity_info>& now,
                                                const std::vector<running_activity_info>& before,
                                                const ActivityIds& known, std::int64_t clock) {
    RunningActivityChanges changes;
    for (const auto& activity : now)
        if (!known.contains(activity.activity_id) && clock - activity.start_time < secondsOfNews)
            changes.appeared.append(activity);
    const ActivityIds running = idsOf(now);
    for (const auto& activity : before)
        if (known.contains(activity.activity_id) && !running.contains(activity.activity_id))
            changes.disappeared.append(activity);
    return changes;
}

} // namespace app
