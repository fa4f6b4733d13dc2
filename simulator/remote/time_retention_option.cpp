// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/time_retention_option.h"

#include <utility>

#include "simulator/remote/interval_time_retention_option.h"

namespace simulator {

TimeRetentionOption::TimeRetentionOption(std::shared_ptr<Session> opened, State state)
    : Servant(std::move(opened))
    , state_(std::move(state)) {
    implements("TimeRetentionOption");
    on("getValidFor", [this] { return state_->validFor; });
    on("setValidFor", [this](const Span& span) { state_->validFor = checked(span); });
}

const TimeRetentionOption::Span& TimeRetentionOption::checked(const Span& span) {
    if (span.period < 1)
        throw Refusal("The time " + describe(span) + " is no time.");
    return span;
}

std::shared_ptr<TimeRetentionOption> makeOption(const std::shared_ptr<Session>& opened,
                                                const TimeRetentionOption::State& state) {
    if (state->interval)
        return std::make_shared<IntervalTimeRetentionOption>(opened, state);
    return std::make_shared<TimeRetentionOption>(opened, state);
}

} // namespace simulator
