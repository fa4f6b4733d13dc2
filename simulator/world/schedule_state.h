// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/schedule_detail_type.h"
#include "api/time_in_day.h"

namespace simulator {

/// One part of a schedule.
struct ScheduleDetailState {
    hessiancln::ScheduleDetailType type{};
    std::int32_t days = 0; ///< a mask if weekly, the day of the month if monthly
    hessiancln::time_in_day start;
    std::optional<hessiancln::time_in_day> end; ///< relative to the day of the start
    std::int32_t hourlyFrequency = 0;
    std::int32_t tasks = 0;
};

/// When backups run.
struct ScheduleState {
    std::int32_t id = 0;
    std::string name{};
    std::vector<std::shared_ptr<ScheduleDetailState>> details{};
    bool usingNetworkDetection = false;
    std::int32_t cpuThrottle = 100; ///< percent
};

/// The type of the first detail; without details, the reserved value above all declared ones.
inline hessiancln::ScheduleDetailType typeOf(const ScheduleState& schedule) {
    return schedule.details.empty() ? hessianser::reservedValue<hessiancln::ScheduleDetailType>()
                                    : schedule.details.front()->type;
}

} // namespace simulator
