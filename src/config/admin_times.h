// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "api/time_in_day.h"

class QTime;

namespace hessiancln {
enum class DayOfWeekCode : std::int32_t;
}

/// Times of the agent's own daily and weekly tasks: converts between page and agent.
namespace config {

/// The row in a list of days that begins with Sunday. An invalid day counts as Sunday.
int rowOfDay(hessiancln::DayOfWeekCode day);
hessiancln::DayOfWeekCode dayOfRow(int row);

/// The time of a run, or the value for a run that is off.
hessiancln::time_in_day runTime(bool on, const QTime& time);

} // namespace config
