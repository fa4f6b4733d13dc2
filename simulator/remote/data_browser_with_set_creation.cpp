// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/data_browser_with_set_creation.h"

#include "simulator/remote/backup_set.h"
#include "simulator/world/names.h"

namespace simulator {

DataBrowserWithSetCreation::DataBrowserWithSetCreation(const std::shared_ptr<Session>& opened,
                                                       World& world)
    : DataSourceBrowser(opened, world) {
    implements("DataBrowserWithSetCreation");
    on("createBackupSet", [this](const std::string& computer) {
        return std::make_shared<BackupSet>(session(), world_, newSet(computer));
    });
}

World::Set DataBrowserWithSetCreation::newSet(const std::string& computer) const {
    const Network::Computer source = world_.network.computer(computer);
    auto set = std::make_shared<BackupSetState>();
    set->source = source->name;
    set->ofWindows = source->kind == LoginKind::Windows;
    set->credentials = current();
    auto& info = set->info;
    info.computer = source->local ? world_.computer : std::string(lastName(source->name));
    info.in_sync = true;
    info.owner_id = 1;
    info.owner_name = session()->user;
    info.schedule_id = noSchedule;
    return set;
}

} // namespace simulator
