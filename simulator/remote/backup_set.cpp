// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/backup_set.h"

#include <utility>

#include "simulator/remote/backup_set_item.h"
#include "simulator/remote/backup_start_parameters.h"
#include "simulator/remote/generic_activity.h"

namespace simulator {

using hessiancln::backup_set_overview_info;
using hessiancln::backup_set_status;

BackupSet::BackupSet(std::shared_ptr<Session> opened, World& world, World::Set set)
    : Servant(std::move(opened))
    , world_(world)
    , set_(std::move(set)) {
    implements("BackupSet");
    offerFigures();
    offerSettings();
    offerActivities();
    if (world_.pathsOfWindows) {
        implements("Win32FS_BackupSet");
        on("setUseVSS", [this](bool value) { set_->useVss = value; });
    }
}

std::string BackupSet::label() const {
    return "BackupSet(" + std::to_string(set_->info.id) + ")";
}

void BackupSet::offerFigures() {
    on("getID", [this] { return set_->info.id; });
    on("getName", [this] { return set_->info.name; });
    on("getComputerName", [this] { return set_->info.computer; });
    on("getDataType", [this] { return set_->info.data_type; });
    on("getCurrentStatus", [this] { return status(); });
    on("getOverview", [this] { return overview(); });
    on("backup_times", [this] { return set_->sessions; });
    on("items", [this] { return items(); });
    on("getLastActivityOfType",
       [this](hessiancln::ActivityType type) { return world_.lastActivity(set_->info.id, type); });
}

void BackupSet::offerSettings() {
    on("setName", [this](const std::string& name) { set_->info.name = name; });
    on("setActive", [this](bool value) { set_->info.is_active = value; });
    on("getLocalStoragePath", [this] { return set_->localStoragePath; });
    on("setLocalStoragePath", [this](const std::string& path) { set_->localStoragePath = path; });
    on("isUsingLocalStorage", [this] { return set_->info.using_local_storage; });
    on("setUsingLocalStorage", [this](bool value) { set_->info.using_local_storage = value; });
    on("isUsingLocalTransmissionCache", [this] { return set_->usingLocalTransmissionCache; });
    on("setUsingLocalTransmissionCache",
       [this](bool value) { set_->usingLocalTransmissionCache = value; });
    on("setItems", [this](const std::vector<std::shared_ptr<BackupSetItem>>& items) {
        set_->items.clear();
        for (const auto& item : items)
            set_->items.push_back(item->state());
        set_->info.has_items = !items.empty();
    });
}

void BackupSet::offerActivities() {
    on("createDefaultBackupParameters",
       [this] { return std::make_shared<BackupStartParameters>(session()); });
    on("start_backup", [this](const std::vector<std::shared_ptr<BackupSetItem>>& items,
                              const std::shared_ptr<BackupStartParameters>&) {
        if (items.empty())
            throw Refusal("The backup set has no items to back up.");
        const auto id = world_.start(world_.backupOf(set_, session()->user));
        return std::make_shared<GenericActivity>(session(), world_, id);
    });
    on("start_sync", [this](bool) {
        const auto id = world_.start(world_.synchronisationOf(set_, session()->user));
        return std::make_shared<GenericActivity>(session(), world_, id);
    });
}

backup_set_status BackupSet::status() const {
    const auto& info = set_->info;
    return {.last_sync_time = info.last_sync_time,
            .last_successful_backup = info.last_successful_backup,
            .on_line_data_size = info.online_data_size,
            .on_line_file_count = info.online_file_count,
            .local_storage_data_size = info.local_storage_data_size,
            .local_storage_file_count = info.local_storage_file_count,
            .tarnsystem_compressed_size = info.tarnsys_compressed_size};
}

backup_set_overview_info BackupSet::overview() const {
    const auto& info = set_->info;
    return {.data_type = info.data_type,
            .status = status(),
            .min_gen = set_->leastGenerations,
            .max_gen = set_->mostGenerations,
            .retention_rule_id = info.retention_rule_id,
            .retention_rule_name = info.retention_rule_name,
            .schedule_id = info.schedule_id,
            .schedule_name = info.schedule_name,
            .schedule_type = set_->scheduleType};
}

std::vector<std::shared_ptr<BackupSetItem>> BackupSet::items() const {
    std::vector<std::shared_ptr<BackupSetItem>> list;
    for (const ItemState& item : set_->items)
        list.push_back(std::make_shared<BackupSetItem>(session(), item));
    return list;
}

} // namespace simulator
