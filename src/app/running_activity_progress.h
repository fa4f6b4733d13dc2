// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <QString>

#include "api/activity_records.h"

namespace app {

/// Progress of an activity as text: its status and remaining work, or the work done.
QString progressText(const hessiancln::running_activity_info& activity);

/// Progress of an activity from 0 to 1; no value while unknown.
std::optional<double> progressOf(const hessiancln::running_activity_info& activity);

} // namespace app
