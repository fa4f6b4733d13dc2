// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "api/schedule_detail_type.h"
#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// What a set holds, 0 to 29. 19 to 29 are also in use but have no name here.
enum class BackupDataType : std::int32_t {
    FileSystem = 0,
    MSSQLServer = 1,
    MSExchangeServer = 2,
    Oracle = 3,
    Permissions = 4,
    MSExchangeEmail = 5,
    MSOutlookEmail = 6,
    IBMSystemI = 7,
    MySQL = 8,
    Postgres = 9,
    DB2 = 10,
    LotusNotesEmail = 11,
    GroupwiseEmail = 12,
    Sharepoint = 13,
    VMWare = 14,
    XenServer = 15,
    Sybase = 16,
    MSHyperVServer = 17,
    VMWareVADP = 18,
};
constexpr auto declaredValues(BackupDataType) {
    return hessianser::values({{0, 29}});
}

/// The kind of a set, 0 to 3. The meaning of the numbers is up to the agent.
enum class BackupSetType : std::int32_t {};
constexpr auto declaredValues(BackupSetType) {
    return hessianser::values({{0, 3}});
}

/// Summary of a backup set. Times are seconds since 1970 UTC, 0 for never; sizes are in bytes.
struct backup_set_info {
    std::int32_t id = 0;  ///< argument of `ClientConnection::backup_set`
    std::string computer; ///< the computer of the set
    std::string name;
    BackupDataType data_type{};
    BackupSetType set_type{};
    bool is_active = false;
    bool in_sync = false;
    bool has_items = false;
    bool is_created_by_policy = false;
    bool is_cdp = false; ///< continuous data protection
    std::int32_t owner_id = 0;
    std::string owner_name;
    std::int32_t retention_rule_id = 0;
    std::string retention_rule_name;
    std::int32_t schedule_id = 0;
    std::string schedule_name;
    bool using_local_storage = false; ///< the set also keeps data in local storage
    std::int32_t last_sync_time = 0;
    std::int32_t last_successful_backup = 0;
    std::int32_t last_backup = 0;
    std::int64_t tarnsys_compressed_size = 0; ///< size on the storage server
    std::int64_t online_data_size = 0;
    std::int32_t online_file_count = 0;
    std::int64_t local_storage_data_size = 0;
    std::int32_t local_storage_file_count = 0;

    static constexpr std::string_view wireType = "com.norvel.api.backup_set_info";
    template <class R = backup_set_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(
            field("id", &R::id), field("computer", &R::computer), field("name", &R::name),
            field("data_type", &R::data_type), field("set_type", &R::set_type),
            field("is_active", &R::is_active), field("in_sync", &R::in_sync),
            field("has_items", &R::has_items),
            field("is_created_by_policy", &R::is_created_by_policy), field("is_cdp", &R::is_cdp),
            field("owner_id", &R::owner_id), field("owner_name", &R::owner_name),
            field("retention_rule_id", &R::retention_rule_id),
            field("retention_rule_name", &R::retention_rule_name),
            field("schedule_id", &R::schedule_id), field("schedule_name", &R::schedule_name),
            field("using_local_storage", &R::using_local_storage),
            field("last_sync_time", &R::last_sync_time),
            field("last_successful_backup", &R::last_successful_backup),
            field("last_backup", &R::last_backup),
            field("tarnsys_compressed_size", &R::tarnsys_compressed_size),
            field("online_data_size", &R::online_data_size),
            field("online_file_count", &R::online_file_count),
            field("local_storage_data_size", &R::local_storage_data_size),
            field("local_storage_file_count", &R::local_storage_file_count));
    }
};

/// Size and age of a set's data. Times are seconds since 1970 UTC, 0 for never; sizes are in bytes.
struct backup_set_status {
    std::int32_t last_sync_time = 0;
    std::int32_t last_successful_backup = 0;
    std::int64_t on_line_data_size = 0;
    std::int32_t on_line_file_count = 0; ///< 0 if the set holds no backed-up data
    std::int64_t local_storage_data_size = 0;
    std::int32_t local_storage_file_count = 0;
    std::int64_t tarnsystem_compressed_size = 0; ///< size on the storage server

    static constexpr std::string_view wireType = "com.norvel.api.backup_set_status";
    template <class R = backup_set_status>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(
            field("last_sync_time", &R::last_sync_time),
            field("last_successful_backup", &R::last_successful_backup),
            field("on_line_data_size", &R::on_line_data_size),
            field("on_line_file_count", &R::on_line_file_count),
            field("local_storage_data_size", &R::local_storage_data_size),
            field("local_storage_file_count", &R::local_storage_file_count),
            field("tarnsystem_compressed_size", &R::tarnsystem_compressed_size));
    }
};

/// A set with its rules.
struct backup_set_overview_info {
    BackupDataType data_type{};
    backup_set_status status;
    std::int32_t min_gen = 0; ///< fewest generations of any item; -1 without items
    std::int32_t max_gen = 0; ///< most generations of any item
    std::int32_t retention_rule_id = 0;
    std::string retention_rule_name;
    std::int32_t schedule_id = 0; ///< below 0 without a schedule
    std::string schedule_name;
    ScheduleDetailType schedule_type{};

    static constexpr std::string_view wireType = "com.norvel.api.backup_set_overview_info";
    template <class R = backup_set_overview_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("data_type", &R::data_type), field("status", &R::status),
                                  field("min_gen", &R::min_gen), field("max_gen", &R::max_gen),
                                  field("retention_rule_id", &R::retention_rule_id),
                                  field("retention_rule_name", &R::retention_rule_name),
                                  field("schedule_id", &R::schedule_id),
                                  field("schedule_name", &R::schedule_name),
                                  field("schedule_type", &R::schedule_type));
    }
};

/// One backup run of a set.
struct backup_sessions {
    std::int32_t start_time = 0; ///< seconds since 1970 UTC
    std::int32_t end_time = 0;   ///< seconds since 1970 UTC
    std::int32_t files = 0;
    std::int64_t size = 0; ///< in bytes
    std::int32_t activity_id = 0;

    static constexpr std::string_view wireType = "com.norvel.api.backup_sessions";
    template <class R = backup_sessions>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("start_time", &R::start_time),
                                  field("end_time", &R::end_time), field("files", &R::files),
                                  field("size", &R::size), field("activity_id", &R::activity_id));
    }
};

} // namespace hessiancln
