// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "api/activity_records.h"
#include "simulator/world/clock.h"

namespace simulator {

/// The agent's codes for how an activity ended.
enum class Ending { Completed = 0, WithErrors = 1, WithWarnings = 2, Stopped = 3 };

/// The planned course of an activity.
struct ActivityPlan {
    hessiancln::ActivityType type{};
    std::string description;
    std::string user;
    std::int32_t set_id = 0;
    std::int32_t schedule_id = 0;
    std::int32_t files = 0;
    std::int64_t bytes = 0;
    Milliseconds duration = 0; ///< at speed 1
    double standsAt = -1;      ///< the share of the data at which it stalls; below 0 it doesn't
    std::vector<std::string> directories;
    std::int32_t errors = 0;
    std::int32_t warnings = 0;
    /// Called once after the end, with the results.
    std::function<void(const hessiancln::activity_log_info&)> ended;
};

/// A running activity. Its state is computed from the time, so it needs no timer.
class Activity {
public:
    Activity(std::int32_t id, ActivityPlan plan, Milliseconds start, double speed);

    std::int32_t id() const { return id_; }
    Milliseconds end() const { return end_; }
    const ActivityPlan& plan() const { return plan_; }

    /// Its entry in the list of running activities.
    hessiancln::running_activity_info at(Milliseconds now) const;

    /// Its row in the log if it ends now; prematurely if `stopped`.
    hessiancln::activity_log_info outcome(Milliseconds now, bool stopped) const;

private:
    /// The processed share of the data, 0 to 1: nothing while it connects and scans.
    double share(Milliseconds now) const;
    double progress(Milliseconds now) const;
    std::string status(Milliseconds now) const;

    std::int32_t id_;
    ActivityPlan plan_;
    Milliseconds start_;
    Milliseconds end_;
};

} // namespace simulator
