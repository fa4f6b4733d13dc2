// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/schedule_manager.h"

#include "api/remote_call.h"

namespace hessiancln {

std::vector<ScheduleManager::SchedulePointer> ScheduleManager::definedSchedules() {
    return call<std::vector<SchedulePointer>>("definedSchedules");
}

ScheduleManager::SchedulePointer ScheduleManager::createSchedule() {
    return call<SchedulePointer>("createSchedule");
}

void ScheduleManager::removeSchedule(const SchedulePointer& schedule) {
    call<void>("removeSchedule", schedule);
}

ScheduleManager::WeeklyDetail ScheduleManager::createWeeklyDetail() {
    return call<WeeklyDetail>("createWeeklyDetail");
}

ScheduleManager::MonthlyDetail ScheduleManager::createMonthlyDetail() {
    return call<MonthlyDetail>("createMonthlyDetail");
}

} // namespace hessiancln
