// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/schedule.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace simulator {
namespace {

std::int32_t secondsOf(const hessiancln::time_in_day& time) {
    return (time.hour * 60 + time.minute) * 60 + time.second;
}

bool has(const ScheduleState& schedule, const ScheduleDetail::State& detail) {
    return std::count(schedule.details.begin(), schedule.details.end(), detail) != 0;
}

void checkComplete(const ScheduleDetailState& detail) {
    if (detail.days == 0)
        throw Refusal("The detail of the schedule has no days.");
    if (detail.tasks == 0)
        throw Refusal("The detail of the schedule has no tasks.");
    if (detail.end && secondsOf(*detail.end) < secondsOf(detail.start))
        throw Refusal("The detail of the schedule ends before it starts.");
}

} // namespace

Schedule::Schedule(std::shared_ptr<Session> opened, World& world, State state)
    : Servant(std::move(opened))
    , world_(world)
    , state_(std::move(state)) {
    implements("Schedule");
    using Detail = std::shared_ptr<ScheduleDetail>;
    on("getName", [this] { return state_->name; });
    on("setName", [this](const std::string& name) { rename(name); });
    on("getDetails", [this] {
        std::vector<Detail> list;
        for (const auto& detail : this->state()->details)
            list.push_back(makeDetail(session(), detail));
        return list;
    });
    on("addDetail", [this](const Detail& detail) { add(detail->state()); });
    on("removeDetail", [this](const Detail& detail) { remove(detail->state()); });
    on("isUsingNetworkDetection", [this] { return state_->usingNetworkDetection; });
    on("setUsingNetworkDetection",
       [this](bool value) { this->state()->usingNetworkDetection = value; });
    on("setBackupCPUThrottle", [this](std::int32_t percent) { setThrottle(percent); });
}

const Schedule::State& Schedule::state() const {
    if (!world_.schedules.holds(state_))
        throw Refusal("The schedule '" + state_->name + "' was removed.");
    return state_;
}

void Schedule::rename(const std::string& name) {
    if (name.empty())
        throw Refusal("A schedule needs a name.");
    const State other = world_.schedules.find(name);
    if (other && other != state_)
        throw Refusal("There is a schedule '" + name + "' already.");
    state()->name = name;
}

void Schedule::add(const ScheduleDetail::State& detail) {
    for (const State& schedule : world_.schedules.all())
        if (has(*schedule, detail))
            throw Refusal("The detail belongs to the schedule '" + schedule->name + "' already.");
    checkComplete(*detail);
    state()->details.push_back(detail);
}

void Schedule::remove(const ScheduleDetail::State& detail) {
    if (!has(*state(), detail))
        throw Refusal("The detail doesn't belong to the schedule '" + state_->name + "'.");
    std::erase(state_->details, detail);
}

void Schedule::setThrottle(std::int32_t percent) {
    if (percent < 1 || percent > 100)
        throw Refusal("A backup can't use " + std::to_string(percent) + " % of the processor.");
    state()->cpuThrottle = percent;
}

} // namespace simulator
