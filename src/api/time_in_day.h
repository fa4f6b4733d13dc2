// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

#include "hessian/record_layout.h"

namespace hessiancln {

/// A time of day in the agent's time zone. The hour exceeds 23 if an end is on a later day than the
/// start, and is -1 for a daily or weekly run that is off.
struct time_in_day {
    std::int32_t hour = 0;
    std::int32_t minute = 0;
    std::int32_t second = 0;

    static constexpr std::string_view wireType = "com.norvel.api.time_in_day";
    template <class R = time_in_day>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("hour", &R::hour), field("minute", &R::minute),
                                  field("second", &R::second));
    }
};

/// True if this is the agent's placeholder for the time of a run that is off.
constexpr bool isRunOff(const time_in_day& time) {
    return time.hour == -1;
}

} // namespace hessiancln
