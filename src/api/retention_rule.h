// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/remote_object.h"
#include "api/retention_time_span.h"
#include "api/time_retention_option.h"

namespace hessiancln {

/// Which generations are kept; shared by the sets that refer to it.
class RetentionRule : public RemoteObject {
public:
    static constexpr std::string_view family = "RetentionRule";
    using RemoteObject::RemoteObject;

    using Option = boost::shared_ptr<TimeRetentionOption>;

    std::string getName() { return call<std::string>("getName"); }
    void setName(const std::string& name) { call<void>("setName", name); }

    /// The newest generations, which are always kept.
    std::int32_t getKeepLastGenerations() { return call<std::int32_t>("getKeepLastGenerations"); }
    void setKeepLastGenerations(std::int32_t count) { call<void>("setKeepLastGenerations", count); }

    std::vector<Option> getTimeRetentions() {
        return call<std::vector<Option>>("getTimeRetentions");
    }
    void addTimeRetentionOption(const Option& option) {
        call<void>("addTimeRetentionOption", option);
    }
    void removeTimeRetentionOption(const Option& option) {
        call<void>("removeTimeRetentionOption", option);
    }

    /// Whether files that were removed from the source are cleaned up, after how long, and how many
    /// generations of them are kept then.
    bool getCleanupRemovedFiles() { return call<bool>("getCleanupRemovedFiles"); }
    void setCleanupRemovedFiles(bool value) { call<void>("setCleanupRemovedFiles", value); }
    retention_time_span getCleanupRemovedAfter() {
        return call<retention_time_span>("getCleanupRemovedAfter");
    }
    void setCleanupRemovedAfter(const retention_time_span& span) {
        call<void>("setCleanupRemovedAfter", span);
    }
    std::int32_t getCleanupRemovedKeep() { return call<std::int32_t>("getCleanupRemovedKeep"); }
    void setCleanupRemovedKeep(std::int32_t count) { call<void>("setCleanupRemovedKeep", count); }

    /// A period of 0 is off.
    retention_time_span getLocalStorageRetention() {
        return call<retention_time_span>("getLocalStorageRetention");
    }
    void setLocalStorageRetention(const retention_time_span& span) {
        call<void>("setLocalStorageRetention", span);
    }
};

} // namespace hessiancln
