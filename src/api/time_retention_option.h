// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "api/remote_object.h"
#include "api/retention_time_span.h"

namespace hessiancln {

/// How long a retention rule keeps something.
class TimeRetentionOption : public RemoteObject {
public:
    static constexpr std::string_view family = "TimeRetentionOption";
    using RemoteObject::RemoteObject;

    retention_time_span getValidFor();
    void setValidFor(const retention_time_span& span);
};

/// Keeps one generation per repeat time.
class IntervalTimeRetentionOption : public TimeRetentionOption {
public:
    static constexpr std::string_view className = "IntervalTimeRetentionOption";
    using TimeRetentionOption::TimeRetentionOption;

    void setRepeatTime(const retention_time_span& span);
};

} // namespace hessiancln
