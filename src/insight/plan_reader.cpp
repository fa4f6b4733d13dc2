// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/plan_reader.h"

#include <utility>

#include "api/checked_cast.h"
#include "api/schedule.h"

namespace insight {

using hessiancln::MonthlyScheduleDetail;
using hessiancln::ScheduleDetailType;
using hessiancln::WeeklyScheduleDetail;

PlanReader::PlanReader(boost::shared_ptr<hessiancln::Schedule> schedule) {
    calls_.emplace_back([this, schedule = std::move(schedule)] {
        const auto details = schedule->getDetails();
        // The calls refer to the parts, which don't move from here on.
        plan_.details.resize(details.size());
        for (std::size_t i = 0; i < details.size(); ++i)
            if (details[i])
                askFor(details[i], plan_.details[i]);
    });
}

void PlanReader::step() {
    if (calls_.empty())
        return;
    const auto call = std::move(calls_.front());
    calls_.pop_front();
    call();
}

void PlanReader::askFor(const Detail& detail, PlanDetail& read) {
    calls_.emplace_back([=, &read] { read.type = detail->getType(); });
    calls_.emplace_back([=, &read] { read.start = detail->getStartTime(); });
    calls_.emplace_back([=, this, &read] {
        if (detail->hasEndTime())
            calls_.push_front([=, &read] { read.end = detail->getEndTime(); });
    });
    calls_.emplace_back([=, &read] { read.hourly = detail->getHourlyFrequency(); });
    calls_.emplace_back([=, &read] { read.tasks = detail->getTasks(); });
    calls_.emplace_back([=, this, &read] { askForDays(detail, read); });
}

void PlanReader::askForDays(const Detail& detail, PlanDetail& read) {
    if (read.type == ScheduleDetailType::Weekly) {
        const auto weekly = hessiancln::checkedCast<WeeklyScheduleDetail>(detail);
        calls_.push_front([weekly, &read] { read.days = weekly->getScheduleDays(); });
    } else if (read.type == ScheduleDetailType::Monthly) {
        const auto monthly = hessiancln::checkedCast<MonthlyScheduleDetail>(detail);
        calls_.push_front([monthly, &read] { read.days = monthly->getScheduleDay(); });
    }
}

} // namespace insight
