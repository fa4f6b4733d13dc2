// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// A unit of time, 0 to 6. The smaller units aren't used here.
enum class RetentionTimeUnit : std::int32_t {
    Days = 3,
    Weeks = 4,
    Months = 5,
    Years = 6,
};
constexpr auto declaredValues(RetentionTimeUnit) {
    return hessianser::values({{0, 6}});
}

/// A length of time.
struct retention_time_span {
    std::int32_t period = 0; ///< number of units
    RetentionTimeUnit unit{};

    static constexpr std::string_view wireType = "com.norvel.api.retention_time_span";
    template <class R = retention_time_span>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("period", &R::period), field("unit", &R::unit));
    }
};

} // namespace hessiancln
