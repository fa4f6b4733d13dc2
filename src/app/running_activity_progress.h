// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QString>

#include "api/activity_records.h"

namespace app {

/// How far an activity is, in words: its status and what lies before it, or what it has done.
QString progressText(const hessiancln::running_activity_info& activity);

/// How far an activity is, from 0 to 1; none while that can't be told.
std::optional<double> progressOf(const hessiancln::running_activity_info& activity);

} // namespace app
