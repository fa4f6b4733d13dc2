// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/admin_times.h"

#include "api/client_configuration_records.h"
#include "session/wire_time.h"

namespace config {

using hessiancln::DayOfWeekCode;

namespace {

constexpr int off = -1;

} // namespace

int rowOfDay(DayOfWeekCode day) {
    const bool onWeekday = DayOfWeekCode::Monday <= day && day <= DayOfWeekCode::Saturday;
    return onWeekday ? static_cast<int>(day) + 1 : 0;
}

DayOfWeekCode dayOfRow(int row) {
    return row < 1 ? DayOfWeekCode::Sunday : DayOfWeekCode(row - 1);
}

hessiancln::time_in_day runTime(bool on, const QTime& time) {
    return on ? session::wireTime(time) : hessiancln::time_in_day{off, 0, 0};
}

} // namespace config
