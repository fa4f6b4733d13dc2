// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include <boost/shared_ptr.hpp>

#include "api/backup_set_records.h"
#include "insight/plan_reader.h"
#include "insight/set_health.h"

namespace hessiancln {
class BackupSet;
class ClientConfiguration;
class ClientConnection;
} // namespace hessiancln

namespace insight {

/// A schedule that was read.
struct KnownPlan {
    SchedulePlan plan;
    std::optional<std::int64_t> interval; ///< the longest one, in seconds
};

/// What the list of sets doesn't say of a set.
struct SetDetails {
    std::shared_ptr<const KnownPlan> plan; ///< null if the set has no schedule
    std::optional<BackupAttempt> lastAttempt;
    std::int32_t leastGenerations = -1; ///< of an item; -1 without items
    std::int32_t mostGenerations = 0;
};

/// Asks the agent about sets, one call at a time. A schedule that sets share is read once.
class HealthReader {
public:
    using Connection = boost::shared_ptr<hessiancln::ClientConnection>;
    /// Where the session is; raises what it raises.
    using Connect = std::function<Connection()>;

    explicit HealthReader(Connect connect);
    ~HealthReader();

    /// Puts a set at the end of those that are to be read, unless it is among them. Its schedule
    /// is read again.
    void add(const hessiancln::backup_set_info& set);
    /// Nothing is left to read.
    void clear();
    /// The sets that are still to be read.
    std::size_t left() const { return waiting_.size(); }

    /// Makes the next call. Returns the id of a set that was read to its end by it. What a call
    /// raises leaves the step, and ends the set, which stays without details; before the first set
    /// it ends all of them.
    std::optional<std::int32_t> step();

    /// Null if the set wasn't read yet.
    const SetDetails* detailsOf(std::int32_t setId) const;
    /// After so many hours the agent makes up for a missed start; 0 until it was read.
    std::int32_t missedHours() const { return missedHours_.value_or(0); }

private:
    enum class Stage { open, schedule, plan, attempt, overview };

    void call();
    void takePlan();
    void askForMissedHours();

    Connect connect_;
    std::deque<hessiancln::backup_set_info> waiting_; ///< the first one is being read
    Stage stage_ = Stage::open;
    boost::shared_ptr<hessiancln::ClientConfiguration> configuration_;
    boost::shared_ptr<hessiancln::BackupSet> set_;
    std::unique_ptr<PlanReader> planReader_;
    SetDetails read_;
    std::optional<std::int32_t> missedHours_;
    std::map<std::int32_t, std::shared_ptr<const KnownPlan>> plans_; ///< by schedule
    std::map<std::int32_t, SetDetails> details_;                     ///< by set
};

} // namespace insight
