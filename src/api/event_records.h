// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// Severity of an event.
enum class EventLogType : std::int32_t {
    Information = 0,
    Warning = 1,
    Error = 2,
};
constexpr auto declaredValues(EventLogType) {
    return hessianser::values({{0, 2}});
}

/// Origin of an event.
enum class EventCategory : std::int32_t {
    Application = 0,
    Socket = 1,
    Message = 2,
    Database = 3,
    Exception = 4,
    IO = 5,
    OperatingSystem = 6,
    Security = 7,
    MAPI = 8,
    Novell = 9,
    Oracle = 10,
    RMAN = 11,
    XML = 12,
    DB2 = 13,
};
constexpr auto declaredValues(EventCategory) {
    return hessianser::values({{0, 13}});
}

/// A row of the event log.
struct event_log_info {
    EventLogType type{};
    std::int32_t when = 0; ///< seconds since 1970 UTC
    std::string user;
    EventCategory category{};
    std::int32_t event_id = 0;
    std::int32_t activity_id = 0; ///< the activity concerned
    std::string extra_info;
    std::string description;
    std::int32_t node_id = 0; ///< node of the agent

    static constexpr std::string_view wireType = "com.norvel.api.event_log_info";
    template <class R = event_log_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(
            field("type", &R::type), field("when", &R::when), field("user", &R::user),
            field("category", &R::category), field("event_id", &R::event_id),
            field("activity_id", &R::activity_id), field("extra_info", &R::extra_info),
            field("description", &R::description), field("node_id", &R::node_id));
    }
};

} // namespace hessiancln
