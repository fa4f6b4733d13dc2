// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>

#include "simulator/remote/schedule_detail.h"

namespace simulator {

/// Runs on one day of the month.
class MonthlyScheduleDetail final : public ScheduleDetail {
public:
    MonthlyScheduleDetail(std::shared_ptr<Session> opened, State detail)
        : ScheduleDetail(std::move(opened), std::move(detail)) {
        implements("MonthlyScheduleDetail");
        on("getScheduleDay", [this] { return state_->days; });
        on("setScheduleDay", [this](std::int32_t day) { setDay(day); });
    }

private:
    void setDay(std::int32_t day) {
        constexpr std::int32_t lastOfEachMonth = 28;
        if (day < 1 || day > lastOfEachMonth)
            throw Refusal("Not each month has a day " + std::to_string(day) + ".");
        state_->days = day;
    }
};

} // namespace simulator
