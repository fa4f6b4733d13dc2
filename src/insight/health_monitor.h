// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QObject>
#include <QString>

#include "api/activity_records.h"
#include "insight/health_reader.h"
#include "insight/planned_runs.h"
#include "insight/row_index.h"
#include "insight/slices.h"

namespace insight {

/// A set and its health.
struct HealthRow {
    SetFacts facts;
    SetHealth health;
    std::int32_t leastGenerations = -1; ///< of an item; -1 if unknown, or without items
    std::int32_t mostGenerations = 0;
    bool isRead = false;                   ///< all available data was requested
    std::int64_t judgedAt = 0;             ///< seconds since 1970 UTC
    std::shared_ptr<const KnownPlan> plan; ///< plan that the facts point to
};

/// Tracks the health of all sets. It receives the data that the window requests anyway, and
/// requests the rest from the agent, in slices, only while it is watched.
class HealthMonitor : public QObject {
    Q_OBJECT
public:
    /// Returns seconds since 1970 UTC.
    using Clock = std::function<std::int64_t()>;

    HealthMonitor(HealthReader::Connect connect, Clock clock, QObject* parent = nullptr);

    /// Takes the data read on each heartbeat.
    void takeSets(std::vector<hessiancln::backup_set_info> sets);
    void takeActivities(const std::vector<hessiancln::activity_log_info>& log,
                        const std::vector<hessiancln::running_activity_info>& running);
    /// Discards everything at the end of the session.
    void clear();

    /// Starts reading missing data, and new data for sets that change.
    void watch();
    /// Stops that, and cancels reading in progress.
    void unwatch();
    /// Cancels reading in progress, and further attempts at sets that failed; sets that change are
    /// still read.
    void cancelReading();
    /// Call after the schedule of the set was edited.
    void scheduleChanged(std::int32_t setId);

    bool isReading() const { return slices_.isRunning(); }
    /// Number of sets read in this pass, and the total.
    int readSets() const { return total_ - static_cast<int>(reader_.left()); }
    int setsToRead() const { return total_; }

    /// Worst first.
    const std::vector<HealthRow>& rows() const { return rows_; }
    HealthCount count() const;
    HealthClock healthClock() const;
    /// The runs of the next 14 days.
    std::vector<PlannedRun> nextRuns() const;
    SetNames names() const;

signals:
    void changed();
    /// Some sets were read, or reading has ended.
    void progressed();
    /// A set couldn't be read; reading continues with the others, and the set is tried again with
    /// the next data of a heartbeat.
    void failed(const QString& text);
    /// No set is left whose latest attempt failed.
    void succeeded();

private:
    bool step();
    void endPass();
    void takeDetails();
    void read(const std::vector<hessiancln::backup_set_info>& sets);
    void judgeAll();
    SetFacts factsOf(const hessiancln::backup_set_info& info, HealthRow& row) const;

    HealthReader reader_;
    Clock clock_;
    Slices slices_;
    int total_ = 0;
    bool isWatched_ = false;
    bool hasNewDetails_ = false; ///< read in the current slice
    std::vector<hessiancln::backup_set_info> sets_;
    std::map<std::int32_t, BackupAttempt> loggedAttempts_; ///< the newest one of each set
    std::set<std::int32_t> running_;
    std::vector<HealthRow> rows_;
};

} // namespace insight
