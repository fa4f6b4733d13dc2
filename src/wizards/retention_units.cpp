// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/retention_units.h"

#include <algorithm>
#include <array>

namespace wizards {

using hessiancln::RetentionTimeUnit;

namespace {

constexpr std::array units{RetentionTimeUnit::Days, RetentionTimeUnit::Weeks,
                           RetentionTimeUnit::Months, RetentionTimeUnit::Years};

} // namespace

int indexOfUnit(RetentionTimeUnit unit) {
    const auto found = std::ranges::find(units, unit);
    return found == units.end() ? -1 : static_cast<int>(found - units.begin());
}

RetentionTimeUnit unitOfIndex(int index) {
    if (index < 0 || index >= static_cast<int>(units.size()))
        return RetentionTimeUnit::Days;
    return units[static_cast<std::size_t>(index)];
}

IntervalRule onePerDay() {
    return {{1, RetentionTimeUnit::Days}, {1, RetentionTimeUnit::Weeks}};
}

IntervalRule onePerWeek() {
    return {{1, RetentionTimeUnit::Weeks}, {1, RetentionTimeUnit::Months}};
}

IntervalRule onePerMonth() {
    return {{1, RetentionTimeUnit::Months}, {1, RetentionTimeUnit::Years}};
}

} // namespace wizards
