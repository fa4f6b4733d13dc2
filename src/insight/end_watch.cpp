// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/end_watch.h"

#include <iterator>

namespace insight {

using hessiancln::activity_log_info;

namespace {

constexpr int mostLogs = 3;

} // namespace

void EndWatch::gone(std::int32_t activityId) {
    waiting_.try_emplace(activityId, 0);
}

std::vector<activity_log_info> EndWatch::take(const std::vector<activity_log_info>& log) {
    std::vector<activity_log_info> ended;
    if (waiting_.empty())
        return ended;
    for (const activity_log_info& row : log)
        if (row.end_time >= 1 && waiting_.erase(row.id) > 0)
            ended.push_back(row);
    for (auto entry = waiting_.begin(); entry != waiting_.end();)
        entry = ++entry->second >= mostLogs ? waiting_.erase(entry) : std::next(entry);
    return ended;
}

bool isNews(const activity_log_info& ended) {
    return ended.errors >= 1 || ended.type == hessiancln::ActivityType::Restore;
}

} // namespace insight
