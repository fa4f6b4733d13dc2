// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/schedule_detail.h"

#include <utility>

#include "simulator/remote/monthly_schedule_detail.h"
#include "simulator/remote/weekly_schedule_detail.h"

namespace simulator {
namespace {

using hessiancln::ScheduleDetailType;
using hessiancln::time_in_day;

constexpr std::int32_t hoursOfADay = 24;
constexpr std::int32_t hoursOfAWeek = 7 * 24;

const time_in_day& checked(const time_in_day& time, std::int32_t hours) {
    const auto within = [](std::int32_t number, std::int32_t end) {
        return 0 <= number && number < end;
    };
    if (!within(time.hour, hours) || !within(time.minute, 60) || !within(time.second, 60))
        throw Refusal("The time " + describe(time) + " is out of range.");
    return time;
}

std::int32_t checkedHours(std::int32_t hours) {
    if (hours < 0 || hours > hoursOfADay)
        throw Refusal("A backup can't recur every " + std::to_string(hours) + " hours.");
    return hours;
}

std::int32_t checkedTasks(std::int32_t mask) {
    if (mask < 0)
        throw Refusal("There are no tasks " + std::to_string(mask) + ".");
    return mask;
}

} // namespace

ScheduleDetail::ScheduleDetail(std::shared_ptr<Session> opened, State state)
    : Servant(std::move(opened))
    , state_(std::move(state)) {
    implements("ScheduleDetail");
    on("getType", [this] { return state_->type; });
    on("getStartTime", [this] { return state_->start; });
    on("setStartTime",
       [this](const time_in_day& time) { state_->start = checked(time, hoursOfADay); });
    on("hasEndTime", [this] { return state_->end.has_value(); });
    on("getEndTime", [this] { return state_->end.value_or(time_in_day()); });
    on("setEndTime",
       [this](const time_in_day& time) { state_->end = checked(time, hoursOfAWeek); });
    on("setNoEndTime", [this] { state_->end.reset(); });
    on("getHourlyFrequency", [this] { return state_->hourlyFrequency; });
    on("setHourlyFrequency",
       [this](std::int32_t hours) { state_->hourlyFrequency = checkedHours(hours); });
    on("getTasks", [this] { return state_->tasks; });
    on("setTasks", [this](std::int32_t mask) { state_->tasks = checkedTasks(mask); });
}

std::string ScheduleDetail::label() const {
    const bool weekly = state_->type == ScheduleDetailType::Weekly;
    const bool monthly = state_->type == ScheduleDetailType::Monthly;
    return weekly    ? "ScheduleDetail(weekly)"
           : monthly ? "ScheduleDetail(monthly)"
                     : "ScheduleDetail(other)";
}

std::shared_ptr<ScheduleDetail> makeDetail(const std::shared_ptr<Session>& opened,
                                           const ScheduleDetail::State& state) {
    if (state->type == ScheduleDetailType::Weekly)
        return std::make_shared<WeeklyScheduleDetail>(opened, state);
    if (state->type == ScheduleDetailType::Monthly)
        return std::make_shared<MonthlyScheduleDetail>(opened, state);
    return std::make_shared<ScheduleDetail>(opened, state);
}

} // namespace simulator
