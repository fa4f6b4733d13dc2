// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
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

/// A schedule read from the agent.
struct KnownPlan {
    SchedulePlan plan;
    std::optional<std::int64_t> interval; ///< the longest one, in seconds
};

/// Details of a set that the list of sets doesn't include.
struct SetDetails {
    std::shared_ptr<const KnownPlan> plan; ///< null if the set has no schedule
    std::optional<BackupAttempt> lastAttempt;
    std::int32_t leastGenerations = -1; ///< of an item; -1 without items
    std::int32_t mostGenerations = 0;
};

/// Queries the agent about sets, one call at a time. Reads a schedule shared by sets only once.
/// Every function may also be called during a call, whose reply is then discarded if it no longer
/// matters.
class HealthReader {
public:
    using Connection = boost::shared_ptr<hessiancln::ClientConnection>;
    /// Returns the session's connection; throws what getting it throws.
    using Connect = std::function<Connection()>;

    explicit HealthReader(Connect connect);
    ~HealthReader();

    /// Appends a set to the queue of sets to read, unless it is already in it. Its schedule is read
    /// again.
    void add(const hessiancln::backup_set_info& set);
    /// Empties the queue, and forgets which sets failed. Details of sets read so far are kept.
    void clear();
    /// Discards the details of a set.
    void forget(std::int32_t setId);
    /// Also takes it out of the queue: the agent no longer has the set.
    void remove(std::int32_t setId);
    /// Empties the queue and discards all data read so far, for example at the end of a session.
    void forgetAll();
    /// Whether the last attempt to read the set failed.
    bool hasFailed(std::int32_t setId) const { return failed_.contains(setId); }
    bool hasAnyFailed() const { return !failed_.empty(); }
    /// Number of sets still to read.
    std::size_t left() const { return waiting_.size(); }

    /// Makes the next call. Returns the id of a set if the call completed it. An exception of a
    /// call propagates and skips the set, which stays without details; before the first set it
    /// skips all sets.
    std::optional<std::int32_t> step();

    /// Null if the set hasn't been read yet.
    const SetDetails* detailsOf(std::int32_t setId) const;
    /// Hours within which the agent catches up on a missed start; 0 until read.
    std::int32_t missedHours() const { return missedHours_.value_or(0); }

private:
    struct Reading;

    void call(Reading& reading) const;
    void askForPlan(Reading& reading) const;
    /// Stores the completed parts; returns the id of the set once it is complete.
    std::optional<std::int32_t> take(Reading& reading);
    /// Drops the set whose data can't be read; before the first set, all sets.
    void skip(const Reading& reading);
    void endSet();

    Connect connect_;
    std::deque<hessiancln::backup_set_info> waiting_; ///< the first one is currently being read
    std::shared_ptr<Reading> reading_;                ///< replies received for it; null before any
    std::optional<std::int32_t> missedHours_;
    std::map<std::int32_t, std::shared_ptr<const KnownPlan>> plans_; ///< by schedule
    std::map<std::int32_t, SetDetails> details_;                     ///< by set
    std::set<std::int32_t> failed_;
};

} // namespace insight
