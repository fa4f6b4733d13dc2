// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <boost/shared_ptr.hpp>

#include "api/generic_activity.h"

/// Starting and stopping activities of the agent. All functions throw what the calls throw.
namespace app {

/// Backs up a set, with a scan of the source first and a retention run afterwards.
boost::shared_ptr<hessiancln::GenericActivity> startBackup(std::int32_t setId);
boost::shared_ptr<hessiancln::GenericActivity> startSync(std::int32_t setId);
boost::shared_ptr<hessiancln::GenericActivity> startDailyAdmin();

/// Asks an activity to stop, and returns the id that it reports for itself.
std::int32_t stopActivity(std::int32_t activityId);

} // namespace app
