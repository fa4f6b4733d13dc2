// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>

#include "simulator/remote/schedule_detail.h"

namespace simulator {

/// Runs on given days of the week.
class WeeklyScheduleDetail final : public ScheduleDetail {
public:
    WeeklyScheduleDetail(std::shared_ptr<Session> opened, State detail)
        : ScheduleDetail(std::move(opened), std::move(detail)) {
        implements("WeeklyScheduleDetail");
        on("getScheduleDays", [this] { return state_->days; });
        on("setScheduleDays", [this](std::int32_t mask) { setDays(mask); });
    }

private:
    void setDays(std::int32_t mask) {
        constexpr std::int32_t allDays = 127;
        if (mask < 1 || mask > allDays)
            throw Refusal("There are no days " + std::to_string(mask) + " in a week.");
        state_->days = mask;
    }
};

} // namespace simulator
