// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/system_activity_manager.h"

#include "api/remote_call.h"

namespace hessiancln {

std::vector<SystemActivityManager::Orphan> SystemActivityManager::getOrphanedbackupSets() {
    return call<std::vector<Orphan>>("getOrphanedbackupSets");
}

SystemActivityManager::Activity
SystemActivityManager::recover_tarnclient_database(std::int32_t mode) {
    return call<Activity>("recover_tarnclient_database", mode);
}

std::int32_t SystemActivityManager::recover_orphaned_backup_set(const Orphan& orphan) {
    return call<std::int32_t>("recover_orphaned_backup_set", orphan);
}

} // namespace hessiancln
