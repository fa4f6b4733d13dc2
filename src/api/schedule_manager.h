// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/remote_object.h"
#include "api/schedule.h"
#include "api/schedule_detail.h"

namespace hessiancln {

/// Lists, creates and removes schedules.
class ScheduleManager : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using SchedulePointer = boost::shared_ptr<Schedule>;
    using WeeklyDetail = boost::shared_ptr<WeeklyScheduleDetail>;
    using MonthlyDetail = boost::shared_ptr<MonthlyScheduleDetail>;

    std::vector<SchedulePointer> definedSchedules();
    SchedulePointer createSchedule();
    void removeSchedule(const SchedulePointer& schedule);
    /// A detail that doesn't belong to a schedule yet.
    WeeklyDetail createWeeklyDetail();
    /// A detail that doesn't belong to a schedule yet.
    MonthlyDetail createMonthlyDetail();
};

} // namespace hessiancln
