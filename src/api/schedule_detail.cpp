// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/schedule_detail.h"

#include "api/remote_call.h"

namespace hessiancln {

ScheduleDetailType ScheduleDetail::getType() {
    return call<ScheduleDetailType>("getType");
}

time_in_day ScheduleDetail::getStartTime() {
    return call<time_in_day>("getStartTime");
}

void ScheduleDetail::setStartTime(const time_in_day& time) {
    call<void>("setStartTime", time);
}

bool ScheduleDetail::hasEndTime() {
    return call<bool>("hasEndTime");
}

time_in_day ScheduleDetail::getEndTime() {
    return call<time_in_day>("getEndTime");
}

void ScheduleDetail::setEndTime(const time_in_day& time) {
    call<void>("setEndTime", time);
}

void ScheduleDetail::setNoEndTime() {
    call<void>("setNoEndTime");
}

std::int32_t ScheduleDetail::getHourlyFrequency() {
    return call<std::int32_t>("getHourlyFrequency");
}

void ScheduleDetail::setHourlyFrequency(std::int32_t hours) {
    call<void>("setHourlyFrequency", hours);
}

std::int32_t ScheduleDetail::getTasks() {
    return call<std::int32_t>("getTasks");
}

void ScheduleDetail::setTasks(std::int32_t mask) {
    call<void>("setTasks", mask);
}

std::int32_t WeeklyScheduleDetail::getScheduleDays() {
    return call<std::int32_t>("getScheduleDays");
}

void WeeklyScheduleDetail::setScheduleDays(std::int32_t mask) {
    call<void>("setScheduleDays", mask);
}

std::int32_t MonthlyScheduleDetail::getScheduleDay() {
    return call<std::int32_t>("getScheduleDay");
}

void MonthlyScheduleDetail::setScheduleDay(std::int32_t day) {
    call<void>("setScheduleDay", day);
}

} // namespace hessiancln
