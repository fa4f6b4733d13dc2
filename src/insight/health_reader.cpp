// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/health_reader.h"

#include <algorithm>
#include <utility>

#include "api/client_connection.h"
#include "session/required.h"

using session::required;

namespace insight {

namespace {

std::optional<BackupAttempt> attemptOf(const hessiancln::activity_log_info& row) {
    if (row.start_time < 1)
        return std::nullopt;
    return BackupAttempt{row.id, row.start_time, row.end_time, row.errors, row.warnings};
}

} // namespace

/// What was received for the set that is being read, and the call to make next.
struct HealthReader::Reading {
    enum class Stage {
        configuration, ///< before the first set only
        missedHours,
        open,
        schedule,
        plan,
        attempt,
        overview,
        complete
    };

    Stage stage = Stage::open;
    hessiancln::backup_set_info info;
    boost::shared_ptr<hessiancln::ClientConfiguration> configuration;
    boost::shared_ptr<hessiancln::BackupSet> set;
    std::unique_ptr<PlanReader> planReader;
    std::optional<std::int32_t> missedHours;
    SetDetails details;
};

HealthReader::HealthReader(Connect connect)
    : connect_(std::move(connect)) {}

HealthReader::~HealthReader() = default;

void HealthReader::add(const hessiancln::backup_set_info& set) {
    plans_.erase(set.schedule_id);
    failed_.erase(set.id);
    const auto same = std::ranges::find(waiting_, set.id, &hessiancln::backup_set_info::id);
    if (same == waiting_.end()) {
        waiting_.push_back(set);
        return;
    }
    *same = set;
    // The data read so far may be out of date.
    if (same == waiting_.begin())
        reading_.reset();
}

void HealthReader::clear() {
    waiting_.clear();
    failed_.clear();
    reading_.reset();
}

void HealthReader::forget(std::int32_t setId) {
    details_.erase(setId);
}

void HealthReader::remove(std::int32_t setId) {
    forget(setId);
    failed_.erase(setId);
    const auto found = std::ranges::find(waiting_, setId, &hessiancln::backup_set_info::id);
    if (found == waiting_.end())
        return;
    if (found == waiting_.begin())
        reading_.reset();
    waiting_.erase(found);
}

void HealthReader::forgetAll() {
    clear();
    details_.clear();
    plans_.clear();
    missedHours_.reset();
}

const SetDetails* HealthReader::detailsOf(std::int32_t setId) const {
    const auto found = details_.find(setId);
    return found == details_.end() ? nullptr : &found->second;
}

std::optional<std::int32_t> HealthReader::step() {
    if (waiting_.empty())
        return std::nullopt;
    if (!reading_) {
        reading_ = std::make_shared<Reading>();
        reading_->info = waiting_.front();
        if (!missedHours_)
            reading_->stage = Reading::Stage::configuration;
    }
    // A copy, because another reading may begin during the call.
    const auto reading = reading_;
    try {
        call(*reading);
    } catch (...) {
        if (reading == reading_)
            skip(*reading);
        throw;
    }
    return reading == reading_ ? take(*reading) : std::nullopt;
}

void HealthReader::call(Reading& reading) const {
    using Stage = Reading::Stage;
    switch (reading.stage) {
    case Stage::configuration:
        reading.configuration = required(connect_()->getConfigurationManager());
        reading.stage = Stage::missedHours;
        return;
    case Stage::missedHours:
        reading.missedHours = reading.configuration->getAdvancedConfigNumber("ScheduleMiss");
        reading.configuration.reset();
        reading.stage = Stage::open;
        return;
    case Stage::open: {
        reading.set = required(connect_()->backup_set(reading.info.id));
        if (const auto known = plans_.find(reading.info.schedule_id); known != plans_.end())
            reading.details.plan = known->second;
        const bool hasUnknownPlan = isScheduled(reading.info) && !reading.details.plan;
        reading.stage = hasUnknownPlan ? Stage::schedule : Stage::attempt;
        return;
    }
    case Stage::schedule:
    case Stage::plan:
        askForPlan(reading);
        return;
    case Stage::attempt:
        reading.details.lastAttempt =
            attemptOf(reading.set->getLastActivityOfType(hessiancln::ActivityType::Backup));
        reading.stage = Stage::overview;
        return;
    case Stage::overview: {
        const auto overview = reading.set->getOverview();
        reading.details.leastGenerations = overview.min_gen;
        reading.details.mostGenerations = overview.max_gen;
        reading.stage = Stage::complete;
        return;
    }
    case Stage::complete:
        return;
    }
}

void HealthReader::askForPlan(Reading& reading) const {
    using Stage = Reading::Stage;
    if (reading.stage == Stage::schedule) {
        if (const auto schedule = reading.set->getSchedule())
            reading.planReader = std::make_unique<PlanReader>(schedule);
        else
            reading.details.plan = std::make_shared<const KnownPlan>();
        reading.stage = reading.planReader ? Stage::plan : Stage::attempt;
        return;
    }
    reading.planReader->step();
    if (!reading.planReader->isDone())
        return;
    const SchedulePlan& plan = reading.planReader->plan();
    reading.details.plan =
        std::make_shared<const KnownPlan>(KnownPlan{plan, longestInterval(plan)});
    reading.stage = Stage::attempt;
}

std::optional<std::int32_t> HealthReader::take(Reading& reading) {
    if (reading.missedHours)
        missedHours_ = reading.missedHours;
    // Only once: the user may change the schedule while the rest of the set is read.
    if (reading.planReader && reading.details.plan) {
        plans_[reading.info.schedule_id] = reading.details.plan;
        reading.planReader.reset();
    }
    if (reading.stage != Reading::Stage::complete)
        return std::nullopt;
    const std::int32_t id = reading.info.id;
    details_[id] = std::move(reading.details);
    endSet();
    return id;
}

void HealthReader::skip(const Reading& reading) {
    const bool isBeforeTheSets = reading.stage == Reading::Stage::configuration ||
                                 reading.stage == Reading::Stage::missedHours;
    if (!isBeforeTheSets) {
        failed_.insert(reading.info.id);
        endSet();
        return;
    }
    for (const hessiancln::backup_set_info& set : waiting_)
        failed_.insert(set.id);
    waiting_.clear();
    reading_.reset();
}

void HealthReader::endSet() {
    waiting_.pop_front();
    reading_.reset();
}

} // namespace insight
