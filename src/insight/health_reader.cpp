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

HealthReader::HealthReader(Connect connect)
    : connect_(std::move(connect)) {}

HealthReader::~HealthReader() = default;

void HealthReader::add(const hessiancln::backup_set_info& set) {
    plans_.erase(set.schedule_id);
    const auto same = std::ranges::find(waiting_, set.id, &hessiancln::backup_set_info::id);
    if (same == waiting_.end()) {
        waiting_.push_back(set);
        return;
    }
    *same = set;
    // What was read of it may be out of date.
    if (same == waiting_.begin())
        restart();
}

void HealthReader::clear() {
    waiting_.clear();
    configuration_.reset();
    restart();
}

void HealthReader::forget(std::int32_t setId) {
    details_.erase(setId);
}

void HealthReader::forgetAll() {
    clear();
    details_.clear();
    plans_.clear();
    missedHours_.reset();
}

void HealthReader::restart() {
    planReader_.reset();
    set_.reset();
    read_ = {};
    stage_ = Stage::open;
}

const SetDetails* HealthReader::detailsOf(std::int32_t setId) const {
    const auto found = details_.find(setId);
    return found == details_.end() ? nullptr : &found->second;
}

std::optional<std::int32_t> HealthReader::step() {
    if (waiting_.empty())
        return std::nullopt;
    if (!missedHours_) {
        try {
            askForMissedHours();
        } catch (...) {
            clear();
            throw;
        }
        return std::nullopt;
    }
    const std::int32_t id = waiting_.front().id;
    const auto endSet = [this] {
        waiting_.pop_front();
        restart();
    };
    try {
        call();
    } catch (...) {
        endSet();
        throw;
    }
    if (stage_ != Stage::open)
        return std::nullopt;
    details_[id] = std::move(read_);
    endSet();
    return id;
}

void HealthReader::askForMissedHours() {
    if (!configuration_) {
        configuration_ = required(connect_()->getConfigurationManager());
        return;
    }
    missedHours_ = configuration_->getAdvancedConfigNumber("ScheduleMiss");
    configuration_.reset();
}

void HealthReader::call() {
    const auto& info = waiting_.front();
    switch (stage_) {
    case Stage::open: {
        set_ = required(connect_()->backup_set(info.id));
        const auto known = plans_.find(info.schedule_id);
        if (known != plans_.end())
            read_.plan = known->second;
        stage_ = isScheduled(info) && !read_.plan ? Stage::schedule : Stage::attempt;
        return;
    }
    case Stage::schedule:
        if (const auto schedule = set_->getSchedule())
            planReader_ = std::make_unique<PlanReader>(schedule);
        else
            read_.plan = std::make_shared<const KnownPlan>();
        stage_ = planReader_ ? Stage::plan : Stage::attempt;
        return;
    case Stage::plan:
        planReader_->step();
        if (planReader_->isDone())
            takePlan();
        return;
    case Stage::attempt:
        read_.lastAttempt =
            attemptOf(set_->getLastActivityOfType(hessiancln::ActivityType::Backup));
        stage_ = Stage::overview;
        return;
    case Stage::overview: {
        const auto overview = set_->getOverview();
        read_.leastGenerations = overview.min_gen;
        read_.mostGenerations = overview.max_gen;
        stage_ = Stage::open;
        return;
    }
    }
}

void HealthReader::takePlan() {
    const SchedulePlan& plan = planReader_->plan();
    read_.plan = std::make_shared<const KnownPlan>(KnownPlan{plan, longestInterval(plan)});
    plans_[waiting_.front().schedule_id] = read_.plan;
    stage_ = Stage::attempt;
}

} // namespace insight
