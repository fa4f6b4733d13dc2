// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>

#include "simulator/remote/time_retention_option.h"

namespace simulator {

/// Keeps one generation per repeat time.
class IntervalTimeRetentionOption final : public TimeRetentionOption {
public:
    IntervalTimeRetentionOption(std::shared_ptr<Session> opened, State option)
        : TimeRetentionOption(std::move(opened), std::move(option)) {
        implements("IntervalTimeRetentionOption");
        on("setRepeatTime", [this](const Span& span) { state_->repeat = checked(span); });
    }
};

} // namespace simulator
