// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/activity.h"

#include <algorithm>
#include <utility>

namespace simulator {
namespace {

// Fractions of an activity's duration before data moves.
constexpr double connected = 0.02;
constexpr double scanned = 0.08;

constexpr double netShare = 0.61;

std::string verb(hessiancln::ActivityType type) {
    using hessiancln::ActivityType;
    switch (type) {
    case ActivityType::Backup:
    case ActivityType::CDPBackup:
        return "Backing up files";
    case ActivityType::Restore:
        return "Restoring files";
    case ActivityType::Delete:
        return "Deleting generations";
    case ActivityType::Synchronization:
        return "Comparing with the storage server";
    case ActivityType::Retention:
        return "Enforcing retention";
    case ActivityType::DailyAdmin:
    case ActivityType::WeeklyAdmin:
        return "Checking the local database";
    default:
        return "Working";
    }
}

template <class Number>
Number part(Number whole, double share) {
    return static_cast<Number>(static_cast<double>(whole) * share);
}

} // namespace

Activity::Activity(std::int32_t id, ActivityPlan plan, Milliseconds start, double speed)
    : id_(id)
    , plan_(std::move(plan))
    , start_(start)
    , end_(start + std::max<Milliseconds>(part(plan_.duration, 1 / speed), 1)) {}

double Activity::progress(Milliseconds now) const {
    return std::clamp(static_cast<double>(now - start_) / static_cast<double>(end_ - start_), 0.0,
                      1.0);
}

double Activity::share(Milliseconds now) const {
    if (plan_.standsAt >= 0)
        return plan_.standsAt;
    return std::max(0.0, (progress(now) - scanned) / (1 - scanned));
}

std::string Activity::status(Milliseconds now) const {
    if (progress(now) < connected)
        return "Connecting to the storage server";
    return progress(now) < scanned ? "Scanning the source" : verb(plan_.type);
}

hessiancln::running_activity_info Activity::at(Milliseconds now) const {
    hessiancln::running_activity_info info;
    info.activity_id = id_;
    info.type = plan_.type;
    info.description = plan_.description;
    info.user = plan_.user;
    info.start_time = seconds(start_);
    info.set_id = plan_.set_id;
    info.files_processed = part(plan_.files, share(now));
    info.files_left = plan_.files - info.files_processed;
    info.size_processed = part(plan_.bytes, share(now));
    info.size_left = plan_.bytes - info.size_processed;
    info.status_msg = status(now);
    if (!plan_.directories.empty() && share(now) > 0) {
        const auto index = part(plan_.directories.size(), share(now));
        info.process_dir = plan_.directories[std::min(index, plan_.directories.size() - 1)];
    }
    info.finished = now >= end_;
    return info;
}

hessiancln::activity_log_info Activity::outcome(Milliseconds now, bool stopped) const {
    const double done = share(now);
    hessiancln::activity_log_info row;
    row.id = id_;
    row.type = plan_.type;
    row.start_time = seconds(start_);
    row.end_time = seconds(now);
    row.description = plan_.description;
    row.user = plan_.user;
    row.errors = part(plan_.errors, done);
    row.warnings = part(plan_.warnings, done) + (stopped ? 1 : 0);
    const Ending ending = stopped        ? Ending::Stopped
                          : row.errors   ? Ending::WithErrors
                          : row.warnings ? Ending::WithWarnings
                                         : Ending::Completed;
    row.completion = static_cast<hessiancln::ActivityCompletion>(ending);
    row.set_id = plan_.set_id;
    row.schedule_id = plan_.schedule_id;
    row.file_count = part(plan_.files, done);
    row.data_size = part(plan_.bytes, done);
    row.node_id = 1;
    row.transmit_amt = part(row.data_size, netShare);
    row.net_transmit_amt = part(row.transmit_amt, netShare);
    return row;
}

} // namespace simulator
