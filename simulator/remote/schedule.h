// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/remote/schedule_detail.h"
#include "simulator/world/world.h"

namespace simulator {

/// When backups run; shared by the sets that refer to it.
class Schedule final : public Servant {
public:
    static constexpr std::string_view family = "Schedule";
    using State = std::shared_ptr<ScheduleState>;

    Schedule(std::shared_ptr<Session> opened, World& world, State state);

    /// Throws `Refusal` if the schedule was removed.
    const State& state() const;
    std::string label() const override { return "Schedule(" + state_->name + ")"; }

private:
    void rename(const std::string& name);
    void add(const ScheduleDetail::State& detail);
    void remove(const ScheduleDetail::State& detail);
    void setThrottle(std::int32_t percent);

    World& world_;
    State state_;
};

} // namespace simulator
