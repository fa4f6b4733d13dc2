// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/retention_time_span.h"

namespace simulator {

/// How long a rule keeps something.
struct RetentionOptionState {
    bool interval = true; ///< one generation per repeat time
    hessiancln::retention_time_span validFor{0, hessiancln::RetentionTimeUnit::Days};
    hessiancln::retention_time_span repeat{0, hessiancln::RetentionTimeUnit::Days};
};

/// Which generations to keep.
struct RetentionRuleState {
    std::int32_t id = 0;
    std::string name{};
    std::int32_t keepLast = 1;
    std::vector<std::shared_ptr<RetentionOptionState>> options{};
    bool cleanupRemoved = false;
    hessiancln::retention_time_span cleanupAfter{30, hessiancln::RetentionTimeUnit::Days};
    std::int32_t cleanupKeep = 0;
    hessiancln::retention_time_span localStorage{0, hessiancln::RetentionTimeUnit::Days};
};

} // namespace simulator
