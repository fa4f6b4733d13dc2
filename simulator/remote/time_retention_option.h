// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/world/retention_state.h"

namespace simulator {

/// How long a rule keeps something. Changes apply to its rule at once.
class TimeRetentionOption : public Servant {
public:
    static constexpr std::string_view family = "TimeRetentionOption";
    using State = std::shared_ptr<RetentionOptionState>;
    using Span = hessiancln::retention_time_span;

    TimeRetentionOption(std::shared_ptr<Session> opened, State state);

    const State& state() const { return state_; }

protected:
    /// Throws `Refusal` for an empty span.
    static const Span& checked(const Span& span);

    State state_;
};

/// Creates an option of the class for its kind.
std::shared_ptr<TimeRetentionOption> makeOption(const std::shared_ptr<Session>& opened,
                                                const TimeRetentionOption::State& state);

} // namespace simulator
