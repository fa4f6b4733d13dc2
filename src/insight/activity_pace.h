// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <vector>

#include "api/activity_records.h"

/// The speed of running activities. Times are in seconds.
namespace insight {

struct Pace {
    std::optional<double> bytesPerSecond; ///< over the last minute
    std::optional<double> filesPerSecond;
    std::optional<std::int64_t> secondsLeft; ///< if the agent reports how much is left
    std::int64_t idleFor = 0;                ///< since the last progress
};

/// Watches the lists of running activities that the agent returns from time to time.
class ActivityPace {
public:
    /// Takes the list at `now`, in seconds since 1970 UTC. Activities missing from it are
    /// forgotten.
    void observe(const std::vector<hessiancln::running_activity_info>& running, std::int64_t now);

    /// No value if the activity is unknown.
    std::optional<Pace> of(std::int32_t activityId) const;

private:
    struct Sample {
        std::int64_t time = 0;
        std::int64_t bytes = 0;
        std::int64_t files = 0;
    };
    struct Watched {
        std::deque<Sample> samples; ///< of the last minute and the one before, oldest first
        std::int64_t lastMove = 0;
        std::int64_t bytesLeft = 0;
        std::int64_t filesLeft = 0;
    };

    static void add(Watched& watched, const hessiancln::running_activity_info& activity,
                    std::int64_t now);

    std::map<std::int32_t, Watched> watched_;
};

} // namespace insight
