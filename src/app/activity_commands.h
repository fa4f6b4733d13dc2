// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <boost/shared_ptr.hpp>

#include "api/generic_activity.h"

/// Starting and stopping activities of the agent. All raise what the calls raise.
namespace app {

/// Backs up what a set holds, looks at the source first and applies the retention afterwards.
boost::shared_ptr<hessiancln::GenericActivity> startBackup(std::int32_t setId);
boost::shared_ptr<hessiancln::GenericActivity> startSync(std::int32_t setId);
boost::shared_ptr<hessiancln::GenericActivity> startDailyAdmin();

/// Asks an activity to end, and returns the id that it names itself by.
std::int32_t stopActivity(std::int32_t activityId);

} // namespace app
