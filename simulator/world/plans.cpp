// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/plans.h"

#include <memory>
#include <string>
#include <utility>

#include "simulator/world/world.h"

namespace simulator {
namespace {

using hessiancln::retention_time_span;
using hessiancln::RetentionTimeUnit;
using hessiancln::ScheduleDetailType;

constexpr std::int32_t backup = 1;
constexpr std::int32_t retention = 2;
constexpr std::int32_t unknownTask = 4;

void addSchedule(World& world, const std::string& name, const ScheduleDetailState& detail) {
    ScheduleState schedule;
    schedule.name = name;
    schedule.details.push_back(std::make_shared<ScheduleDetailState>(detail));
    world.schedules.add(std::move(schedule));
}

void addSchedules(World& world) {
    constexpr std::int32_t allDays = 127;
    addSchedule(
        world, "Every evening",
        {ScheduleDetailType::Weekly, allDays, {20, 0, 0}, {{30, 0, 0}}, 0, backup | retention});
    addSchedule(world, "First of the month",
                {ScheduleDetailType::Monthly, 1, {19, 30, 0}, {}, 0, backup});
    addSchedule(
        world, "On start-up",
        {ScheduleDetailType(0), 1, {8, 15, 0}, {{12, 0, 0}}, 2, backup | retention | unknownTask});
}

void addOption(RetentionRuleState& rule, bool interval, const retention_time_span& validFor,
               const retention_time_span& repeat) {
    rule.options.push_back(
        std::make_shared<RetentionOptionState>(RetentionOptionState{interval, validFor, repeat}));
}

void addRules(World& world) {
    RetentionRuleState standard;
    standard.name = "Standard retention";
    standard.keepLast = 30;
    standard.cleanupRemoved = true;
    addOption(standard, true, {1, RetentionTimeUnit::Weeks}, {1, RetentionTimeUnit::Days});
    addOption(standard, true, {1, RetentionTimeUnit::Months}, {1, RetentionTimeUnit::Weeks});
    world.retentionRules.add(std::move(standard));

    RetentionRuleState hourly;
    hourly.name = "By the hour";
    addOption(hourly, false, {36, RetentionTimeUnit(2)}, {});
    world.retentionRules.add(std::move(hourly));
}

} // namespace

void addPlans(World& world) {
    addSchedules(world);
    addRules(world);
}

} // namespace simulator
