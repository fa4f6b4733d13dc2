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

/// Defines which generations to keep; shared by the sets that refer to it.
class RetentionRule : public RemoteObject {
public:
    static constexpr std::string_view family = "RetentionRule";
    using RemoteObject::RemoteObject;

    using Option = boost::shared_ptr<TimeRetentionOption>;

    std::string getName();
    void setName(const std::string& name);

    /// Number of newest generations, which are always kept.
    std::int32_t getKeepLastGenerations();
    void setKeepLastGenerations(std::int32_t count);

    std::vector<Option> getTimeRetentions();
    void addTimeRetentionOption(const Option& option);
    void removeTimeRetentionOption(const Option& option);

    /// Whether files removed from the source are cleaned up, after how long, and how many of their
    /// generations are then kept.
    bool getCleanupRemovedFiles();
    void setCleanupRemovedFiles(bool value);
    retention_time_span getCleanupRemovedAfter();
    void setCleanupRemovedAfter(const retention_time_span& span);
    std::int32_t getCleanupRemovedKeep();
    void setCleanupRemovedKeep(std::int32_t count);

    /// A period of 0 turns it off.
    retention_time_span getLocalStorageRetention();
    void setLocalStorageRetention(const retention_time_span& span);
};

} // namespace hessiancln
