// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/retention_time_span.h"

/// The retention periods that people choose from.
namespace wizards {

/// The entry of the unit in the list day(s), week(s), month(s), year(s); -1 if it has none.
int indexOfUnit(hessiancln::RetentionTimeUnit unit);

/// The reverse. No entry gives days, the unit of a period that has none.
hessiancln::RetentionTimeUnit unitOfIndex(int index);

/// One generation is kept for each `repeat`, for as long as `validFor`.
struct IntervalRule {
    hessiancln::retention_time_span repeat;
    hessiancln::retention_time_span validFor;
};

IntervalRule onePerDay();   ///< for a week
IntervalRule onePerWeek();  ///< for a month
IntervalRule onePerMonth(); ///< for a year

} // namespace wizards
