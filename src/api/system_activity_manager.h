// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/generic_activity.h"
#include "api/orphaned_backup_set.h"
#include "api/remote_object.h"

namespace hessiancln {

/// Recovers what an agent has lost.
class SystemActivityManager : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using Activity = boost::shared_ptr<GenericActivity>;
    using Orphan = boost::shared_ptr<OrphanedBackupSet>;

    std::vector<Orphan> getOrphanedbackupSets();
    Activity recover_tarnclient_database(std::int32_t mode);
    /// Returns the id of the recovered set.
    std::int32_t recover_orphaned_backup_set(const Orphan& orphan);
};

} // namespace hessiancln
