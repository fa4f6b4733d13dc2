// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <boost/shared_ptr.hpp>

#include "api/backup_set.h"

namespace app {

/// A backup set of the session, never null. Throws what the call throws, and `std::runtime_error`
/// if the agent has no set with this id.
boost::shared_ptr<hessiancln::BackupSet> openBackupSet(std::int32_t id);

} // namespace app
