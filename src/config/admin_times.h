// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "api/time_in_day.h"

class QTime;

namespace hessiancln {
enum class DayOfWeekCode : std::int32_t;
}

/// When the agent's own daily and weekly work runs, as a page shows it and as the agent keeps it.
namespace config {

/// The row of a list of days that begins with Sunday. What is no day counts as Sunday.
int rowOfDay(hessiancln::DayOfWeekCode day);
hessiancln::DayOfWeekCode dayOfRow(int row);

/// The time of a run, or that it is off.
hessiancln::time_in_day runTime(bool on, const QTime& time);

} // namespace config
