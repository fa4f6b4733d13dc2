// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/retention_time_span.h"

/// The retention periods offered to users.
namespace wizards {

/// The index of the unit in the list day(s), week(s), month(s), year(s); -1 if it isn't in it.
int indexOfUnit(hessiancln::RetentionTimeUnit unit);

/// The reverse. Without a selection, returns days, the unit of an unset period.
hessiancln::RetentionTimeUnit unitOfIndex(int index);

/// Keeps one generation per `repeat`, for the duration `validFor`.
struct IntervalRule {
    hessiancln::retention_time_span repeat;
    hessiancln::retention_time_span validFor;
};

IntervalRule onePerDay();   ///< for a week
IntervalRule onePerWeek();  ///< for a month
IntervalRule onePerMonth(); ///< for a year

} // namespace wizards
