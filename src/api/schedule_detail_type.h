// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "hessian/kinds.h"

namespace hessiancln {

/// How often a part of a schedule runs, 0 to 3. Weekly is shown to users as daily because it lists
/// days of the week.
enum class ScheduleDetailType : std::int32_t {
    Weekly = 2,
    Monthly = 3,
};
constexpr auto declaredValues(ScheduleDetailType) {
    return hessianser::values({{0, 3}});
}

} // namespace hessiancln
