// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/world/schedule_state.h"

namespace simulator {

/// A part of a schedule, or not yet added to one. Changes apply to its schedule at once.
class ScheduleDetail : public Servant {
public:
    static constexpr std::string_view family = "ScheduleDetail";
    using State = std::shared_ptr<ScheduleDetailState>;

    ScheduleDetail(std::shared_ptr<Session> opened, State state);

    const State& state() const { return state_; }
    std::string label() const override;

protected:
    State state_;
};

/// Creates a detail of the class for its type.
std::shared_ptr<ScheduleDetail> makeDetail(const std::shared_ptr<Session>& opened,
                                           const ScheduleDetail::State& state);

} // namespace simulator
