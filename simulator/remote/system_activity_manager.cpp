// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/system_activity_manager.h"

#include "simulator/remote/generic_activity.h"

namespace simulator {
namespace {

constexpr std::int32_t wholeDatabase = 0;

} // namespace

std::string OrphanedBackupSet::label() const {
    return "OrphanedBackupSet(" + inQuotes(set_->info.name) + ")";
}

SystemActivityManager::SystemActivityManager(std::shared_ptr<Session> opened, World& world)
    : Servant(std::move(opened))
    , world_(world) {
    implements("SystemActivityManager");
    on("getOrphanedbackupSets", [this] {
        std::vector<std::shared_ptr<OrphanedBackupSet>> orphans;
        for (const World::Set& set : world_.configuration.orphans)
            orphans.push_back(std::make_shared<OrphanedBackupSet>(session(), set));
        return orphans;
    });
    on("recover_orphaned_backup_set",
       [this](const std::shared_ptr<OrphanedBackupSet>& orphan) { return recover(orphan->set()); });
    on("recover_tarnclient_database", [this](std::int32_t mode) {
        if (mode != wholeDatabase)
            throw Violation("there is no recovery of the mode " + std::to_string(mode));
        const auto id = world_.start(world_.databaseRecovery(session()->user));
        return std::make_shared<GenericActivity>(session(), world_, id);
    });
}

std::int32_t SystemActivityManager::recover(const World::Set& orphan) {
    if (std::erase(world_.configuration.orphans, orphan) == 0)
        throw Refusal("The backup set '" + orphan->info.name + "' isn't orphaned any more.");
    world_.enlist(orphan);
    return orphan->info.id;
}

} // namespace simulator
