// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/activity_records.h"
#include "api/backup_set_credentials.h"
#include "api/backup_set_delete_view.h"
#include "api/backup_set_item.h"
#include "api/backup_set_records.h"
#include "api/backup_set_restore_view.h"
#include "api/backup_start_parameters.h"
#include "api/data_source_browser.h"
#include "api/generic_activity.h"
#include "api/remote_object.h"
#include "api/retention_rule.h"
#include "api/schedule.h"

namespace hessiancln {

/// A backup set of the agent. Times are seconds since 1970 UTC; 0 means no limit.
class BackupSet : public RemoteObject {
public:
    static constexpr std::string_view family = "BackupSet";
    using RemoteObject::RemoteObject;

    using Browser = boost::shared_ptr<DataSourceBrowser>;
    using Credentials = boost::shared_ptr<BackupSetCredentials>;
    using Items = std::vector<boost::shared_ptr<BackupSetItem>>;
    using Parameters = boost::shared_ptr<BackupStartParameters>;
    using Activity = boost::shared_ptr<GenericActivity>;
    using DeleteView = boost::shared_ptr<BackupSetDeleteView>;
    using RestoreView = boost::shared_ptr<BackupSetRestoreView>;
    using Rule = boost::shared_ptr<RetentionRule>;
    using SchedulePointer = boost::shared_ptr<Schedule>;

    /// One entry per backup run of the set.
    std::vector<backup_sessions> backup_times();
    Parameters createDefaultBackupParameters();
    /// The browser for the computer of the set.
    Browser dataBrowser();
    std::string getComputerName();
    Credentials getCredentials();
    backup_set_status getCurrentStatus();
    BackupDataType getDataType();
    std::int32_t getID();
    activity_log_info getLastActivityOfType(ActivityType type);
    std::string getLocalStoragePath();
    std::string getName();
    backup_set_overview_info getOverview();
    /// Null if the set has no retention rule.
    Rule getRetentionRule();
    /// Null if the set has no schedule.
    SchedulePointer getSchedule();
    bool isUsingLocalStorage();
    bool isUsingLocalTransmissionCache();
    Items items();
    DeleteView prepare_delete(std::int32_t from, std::int32_t to, std::int32_t removed_since,
                              std::int32_t keep_last, std::int32_t mode);
    RestoreView prepare_restore(std::int32_t from, std::int32_t to, std::int32_t removed_before);
    void setActive(bool value);
    void setCredentials(const Credentials& value);
    void setItems(const Items& value);
    void setLocalStoragePath(const std::string& value);
    void setName(const std::string& value);
    /// Null detaches the rule.
    void setRetentionRule(const Rule& value);
    /// Null detaches the schedule.
    void setSchedule(const SchedulePointer& value);
    void setUsingLocalStorage(bool value);
    void setUsingLocalTransmissionCache(bool value);
    Activity start_backup(const Items& items, const Parameters& parameters);
    Activity start_sync(bool recover);
};

/// A set of files on a Windows computer.
class Win32FS_BackupSet : public BackupSet {
public:
    static constexpr std::string_view className = "Win32FS_BackupSet";
    using BackupSet::BackupSet;

    /// Read files through volume shadow copies.
    void setUseVSS(bool value);
};

} // namespace hessiancln
