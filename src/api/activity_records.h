// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// What an activity does. 21 to 30 are also in use but have no name here.
enum class ActivityType : std::int32_t {
    Backup = 0,
    CDPBackup = 1,
    Restore = 2,
    DailyAdmin = 3,
    WeeklyAdmin = 4,
    Delete = 5,
    Recovery = 6,
    Synchronization = 7,
    DiskTapeRequest = 8,
    DiskTapeRestore = 9,
    OrlopRequest = 10,
    OnLineFileSummary = 11,
    Registration = 12,
    LANDiscovery = 13,
    OrlopRestore = 14,
    Validation = 15,
    Retention = 16,
    TapeConversion = 17,
    CacheCopy = 18,
    CacheMonitor = 19,
    AppAutoUpgrade = 20,
};
constexpr auto declaredValues(ActivityType) {
    return hessianser::values({{0, 30}});
}

/// How an activity ended, 0 to 35. The meaning of the numbers is up to the agent.
enum class ActivityCompletion : std::int32_t {};
constexpr auto declaredValues(ActivityCompletion) {
    return hessianser::values({{0, 35}});
}

/// A running activity. Sizes are in bytes.
struct running_activity_info {
    std::int32_t activity_id = 0; ///< argument of `ClientConnection::activity`
    ActivityType type{};
    std::string description;
    std::string user;            ///< who started it
    std::int32_t start_time = 0; ///< seconds since 1970 UTC
    std::int32_t set_id = 0;     ///< the backup set concerned
    std::int32_t files_processed = 0;
    std::int32_t files_left = 0;
    std::int64_t size_processed = 0;
    std::int64_t size_left = 0;
    std::string status_msg;
    std::string process_dir; ///< the directory being processed
    bool finished = false;

    static constexpr std::string_view wireType = "com.norvel.api.running_activity_info";
    template <class R = running_activity_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(
            field("activity_id", &R::activity_id), field("type", &R::type),
            field("description", &R::description), field("user", &R::user),
            field("start_time", &R::start_time), field("set_id", &R::set_id),
            field("files_processed", &R::files_processed), field("files_left", &R::files_left),
            field("size_processed", &R::size_processed), field("size_left", &R::size_left),
            field("status_msg", &R::status_msg), field("process_dir", &R::process_dir),
            field("finished", &R::finished));
    }
};

/// A row of the activity log. Sizes are in bytes.
struct activity_log_info {
    std::int32_t id = 0;
    ActivityType type{};
    std::int32_t start_time = 0; ///< seconds since 1970 UTC
    std::int32_t end_time = 0;   ///< seconds since 1970 UTC
    ActivityCompletion completion{};
    std::string description;
    std::string user;
    std::int32_t errors = 0;
    std::int32_t warnings = 0;
    std::int32_t set_id = 0;
    std::int32_t schedule_id = 0; ///< the schedule that started it
    std::int32_t file_count = 0;
    std::int64_t data_size = 0;
    std::int32_t node_id = 0; ///< node of the agent
    std::int64_t transmit_amt = 0;
    std::int64_t net_transmit_amt = 0;

    static constexpr std::string_view wireType = "com.norvel.api.activity_log_info";
    template <class R = activity_log_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(
            field("id", &R::id), field("type", &R::type), field("start_time", &R::start_time),
            field("end_time", &R::end_time), field("completion", &R::completion),
            field("description", &R::description), field("user", &R::user),
            field("errors", &R::errors), field("warnings", &R::warnings),
            field("set_id", &R::set_id), field("schedule_id", &R::schedule_id),
            field("file_count", &R::file_count), field("data_size", &R::data_size),
            field("node_id", &R::node_id), field("transmit_amt", &R::transmit_amt),
            field("net_transmit_amt", &R::net_transmit_amt));
    }
};

} // namespace hessiancln
