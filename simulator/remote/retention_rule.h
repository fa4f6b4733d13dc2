// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/remote/time_retention_option.h"
#include "simulator/world/world.h"

namespace simulator {

/// Defines which generations to keep; shared by the sets that refer to it.
class RetentionRule final : public Servant {
public:
    static constexpr std::string_view family = "RetentionRule";
    using State = std::shared_ptr<RetentionRuleState>;

    RetentionRule(std::shared_ptr<Session> opened, World& world, State state);

    /// Throws `Refusal` if the rule was removed.
    const State& state() const;
    std::string label() const override { return "RetentionRule(" + state_->name + ")"; }

private:
    void offerOptions();
    void offerCleanup();

    void rename(const std::string& name);
    void add(const TimeRetentionOption::State& option);
    void remove(const TimeRetentionOption::State& option);

    World& world_;
    State state_;
};

} // namespace simulator
