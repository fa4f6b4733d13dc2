// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/backup_set.h"

#include <initializer_list>
#include <utility>

#include "simulator/remote/backup_set_credentials.h"
#include "simulator/remote/backup_set_data_view.h"
#include "simulator/remote/backup_set_item.h"
#include "simulator/remote/backup_start_parameters.h"
#include "simulator/remote/data_source_browser.h"
#include "simulator/remote/generic_activity.h"
#include "simulator/remote/retention_rule.h"
#include "simulator/remote/schedule.h"
#include "simulator/world/set_storage.h"

namespace simulator {

using hessiancln::backup_set_overview_info;
using hessiancln::backup_set_status;

namespace {

void requireTimes(std::initializer_list<std::int32_t> times) {
    for (const std::int32_t time : times)
        if (time < 0)
            throw Violation("no backup was made at the time " + std::to_string(time));
}

} // namespace

BackupSet::BackupSet(std::shared_ptr<Session> opened, World& world, World::Set set)
    : Servant(std::move(opened))
    , world_(world)
    , set_(std::move(set)) {
    implements("BackupSet");
    offerFigures();
    offerSettings();
    offerLocalStorage();
    offerPlans();
    offerActivities();
    offerViews();
    if (set_->ofWindows) {
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
    on("getComputerName", [this] { return source(); });
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
    on("setItems",
       [this](const std::vector<std::shared_ptr<BackupSetItem>>& list) { setItems(list); });
    on("dataBrowser", [this] {
        return std::make_shared<DataSourceBrowser>(session(), world_, set_->credentials);
    });
    on("getCredentials", [this] { return credentials(); });
    on("setCredentials", [this](const std::shared_ptr<BackupSetCredentials>& value) {
        set_->credentials = *value->state();
    });
}

void BackupSet::offerLocalStorage() {
    on("getLocalStoragePath", [this] { return set_->localStoragePath; });
    on("setLocalStoragePath", [this](const std::string& path) { set_->localStoragePath = path; });
    on("isUsingLocalStorage", [this] { return set_->info.using_local_storage; });
    on("setUsingLocalStorage", [this](bool value) {
        requireLocalPath(value);
        set_->info.using_local_storage = value;
    });
    on("isUsingLocalTransmissionCache", [this] { return set_->usingLocalTransmissionCache; });
    on("setUsingLocalTransmissionCache", [this](bool value) {
        requireLocalPath(value);
        set_->usingLocalTransmissionCache = value;
    });
}

void BackupSet::offerPlans() {
    on("getSchedule", [this] { return schedule(); });
    on("setSchedule", [this](const Nullable<Schedule>& schedule) {
        set_->info.schedule_id = schedule.object ? schedule.object->state()->id : noSchedule;
    });
    on("getRetentionRule", [this] { return retentionRule(); });
    on("setRetentionRule", [this](const Nullable<RetentionRule>& rule) {
        set_->info.retention_rule_id = rule.object ? rule.object->state()->id : noRule;
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

void BackupSet::offerViews() {
    on("prepare_restore", [this](std::int32_t from, std::int32_t to, std::int32_t removedBefore) {
        requireTimes({from, to, removedBefore});
        storageOf(*set_, seconds(world_.now()));
        StoredFilter filter{from, to};
        filter.removedBefore = removedBefore;
        return std::make_shared<BackupSetRestoreView>(session(), world_, set_, filter);
    });
    on("prepare_delete", [this](std::int32_t from, std::int32_t to, std::int32_t removedSince,
                                std::int32_t keepLast, std::int32_t mode) {
        if (mode != 0)
            throw Refusal("There is no way " + std::to_string(mode) + " to delete.");
        if (keepLast < 0)
            throw Violation("generations can't be counted back to " + std::to_string(keepLast));
        requireTimes({from, to, removedSince});
        storageOf(*set_, seconds(world_.now()));
        StoredFilter filter{from, to};
        filter.removedSince = removedSince;
        filter.keepLast = keepLast;
        return std::make_shared<BackupSetDeleteView>(session(), world_, set_, filter);
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
    const auto info = world_.infoOf(*set_);
    return {.data_type = info.data_type,
            .status = status(),
            .min_gen = set_->leastGenerations,
            .max_gen = set_->mostGenerations,
            .retention_rule_id = info.retention_rule_id,
            .retention_rule_name = info.retention_rule_name,
            .schedule_id = info.schedule_id,
            .schedule_name = info.schedule_name,
            .schedule_type = world_.scheduleTypeOf(*set_)};
}

std::vector<std::shared_ptr<BackupSetItem>> BackupSet::items() const {
    std::vector<std::shared_ptr<BackupSetItem>> list;
    for (const ItemState& item : set_->items)
        list.push_back(makeItem(session(), item));
    return list;
}

void BackupSet::setItems(const std::vector<std::shared_ptr<BackupSetItem>>& items) {
    for (const auto& item : items)
        if (!world_.network.same(item->state().computer, source()))
            throw Refusal("The item '" + item->state().folder + "' is of the computer '" +
                          item->state().computer + "', and not of '" + source() + "'.");
    set_->items.clear();
    for (const auto& item : items)
        set_->items.push_back(item->state());
    set_->info.has_items = !items.empty();
}

std::shared_ptr<BackupSetCredentials> BackupSet::credentials() const {
    // A copy: changes take effect only when it is set again.
    const auto copy = std::make_shared<CredentialsState>(set_->credentials);
    copy->ofSet = true;
    return makeCredentials(session(), world_, copy);
}

std::shared_ptr<Schedule> BackupSet::schedule() const {
    const auto schedule = world_.schedules.find(set_->info.schedule_id);
    return schedule ? std::make_shared<Schedule>(session(), world_, schedule) : nullptr;
}

std::shared_ptr<RetentionRule> BackupSet::retentionRule() const {
    const auto rule = world_.retentionRules.find(set_->info.retention_rule_id);
    return rule ? std::make_shared<RetentionRule>(session(), world_, rule) : nullptr;
}

void BackupSet::requireLocalPath(bool wanted) const {
    if (wanted && set_->localStoragePath.empty())
        throw Refusal("The local storage needs a path.");
}

const std::string& BackupSet::source() const {
    return set_->source.empty() ? set_->info.computer : set_->source;
}

} // namespace simulator
