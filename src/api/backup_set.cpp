// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set.h"

#include "api/remote_call.h"

namespace hessiancln {

std::vector<backup_sessions> BackupSet::backup_times() {
    return call<std::vector<backup_sessions>>("backup_times");
}

BackupSet::Parameters BackupSet::createDefaultBackupParameters() {
    return call<Parameters>("createDefaultBackupParameters");
}

BackupSet::Browser BackupSet::dataBrowser() {
    return call<Browser>("dataBrowser");
}

std::string BackupSet::getComputerName() {
    return call<std::string>("getComputerName");
}

BackupSet::Credentials BackupSet::getCredentials() {
    return call<Credentials>("getCredentials");
}

backup_set_status BackupSet::getCurrentStatus() {
    return call<backup_set_status>("getCurrentStatus");
}

BackupDataType BackupSet::getDataType() {
    return call<BackupDataType>("getDataType");
}

std::int32_t BackupSet::getID() {
    return call<std::int32_t>("getID");
}

activity_log_info BackupSet::getLastActivityOfType(ActivityType type) {
    return call<activity_log_info>("getLastActivityOfType", type);
}

std::string BackupSet::getLocalStoragePath() {
    return call<std::string>("getLocalStoragePath");
}

std::string BackupSet::getName() {
    return call<std::string>("getName");
}

backup_set_overview_info BackupSet::getOverview() {
    return call<backup_set_overview_info>("getOverview");
}

BackupSet::Rule BackupSet::getRetentionRule() {
    return call<Rule>("getRetentionRule");
}

BackupSet::SchedulePointer BackupSet::getSchedule() {
    return call<SchedulePointer>("getSchedule");
}

bool BackupSet::isUsingLocalStorage() {
    return call<bool>("isUsingLocalStorage");
}

bool BackupSet::isUsingLocalTransmissionCache() {
    return call<bool>("isUsingLocalTransmissionCache");
}

BackupSet::Items BackupSet::items() {
    return call<Items>("items");
}

BackupSet::DeleteView BackupSet::prepare_delete(std::int32_t from, std::int32_t to,
                                                std::int32_t removed_since, std::int32_t keep_last,
                                                std::int32_t mode) {
    return call<DeleteView>("prepare_delete", from, to, removed_since, keep_last, mode);
}

BackupSet::RestoreView BackupSet::prepare_restore(std::int32_t from, std::int32_t to,
                                                  std::int32_t removed_before) {
    return call<RestoreView>("prepare_restore", from, to, removed_before);
}

void BackupSet::setActive(bool value) {
    call<void>("setActive", value);
}

void BackupSet::setCredentials(const Credentials& value) {
    call<void>("setCredentials", value);
}

void BackupSet::setItems(const Items& value) {
    call<void>("setItems", value);
}

void BackupSet::setLocalStoragePath(const std::string& value) {
    call<void>("setLocalStoragePath", value);
}

void BackupSet::setName(const std::string& value) {
    call<void>("setName", value);
}

void BackupSet::setRetentionRule(const Rule& value) {
    call<void>("setRetentionRule", value);
}

void BackupSet::setSchedule(const SchedulePointer& value) {
    call<void>("setSchedule", value);
}

void BackupSet::setUsingLocalStorage(bool value) {
    call<void>("setUsingLocalStorage", value);
}

void BackupSet::setUsingLocalTransmissionCache(bool value) {
    call<void>("setUsingLocalTransmissionCache", value);
}

BackupSet::Activity BackupSet::start_backup(const Items& items, const Parameters& parameters) {
    return call<Activity>("start_backup", items, parameters);
}

BackupSet::Activity BackupSet::start_sync(bool recover) {
    return call<Activity>("start_sync", recover);
}

void Win32FS_BackupSet::setUseVSS(bool value) {
    call<void>("setUseVSS", value);
}

} // namespace hessiancln
