// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/schedule_manager.h"

#include <utility>
#include <vector>

#include "simulator/remote/monthly_schedule_detail.h"
#include "simulator/remote/schedule.h"
#include "simulator/remote/weekly_schedule_detail.h"

namespace simulator {
namespace {

using hessiancln::ScheduleDetailType;

ScheduleDetail::State newDetail(ScheduleDetailType type) {
    auto detail = std::make_shared<ScheduleDetailState>();
    detail->type = type;
    return detail;
}

void removeUnused(World& world, const Schedule::State& schedule) {
    for (const World::Set& set : world.sets())
        if (set->info.schedule_id == schedule->id)
            throw Refusal("The backup set '" + set->info.name + "' still uses the schedule '" +
                          schedule->name + "'.");
    world.schedules.remove(schedule);
}

} // namespace

ScheduleManager::ScheduleManager(std::shared_ptr<Session> opened, World& world)
    : Servant(std::move(opened)) {
    implements("ScheduleManager");
    on("definedSchedules", [this, &world] {
        std::vector<std::shared_ptr<Schedule>> list;
        for (const auto& schedule : world.schedules.all())
            list.push_back(std::make_shared<Schedule>(session(), world, schedule));
        return list;
    });
    on("createSchedule", [this, &world] {
        return std::make_shared<Schedule>(session(), world, world.schedules.add({}));
    });
    on("removeSchedule", [&world](const std::shared_ptr<Schedule>& schedule) {
        removeUnused(world, schedule->state());
    });
    on("createWeeklyDetail", [this] {
        return std::make_shared<WeeklyScheduleDetail>(session(),
                                                      newDetail(ScheduleDetailType::Weekly));
    });
    on("createMonthlyDetail", [this] {
        return std::make_shared<MonthlyScheduleDetail>(session(),
                                                       newDetail(ScheduleDetailType::Monthly));
    });
}

} // namespace simulator
