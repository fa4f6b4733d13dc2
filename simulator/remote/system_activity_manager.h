// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// The agent's work on itself.
class SystemActivityManager final : public Servant {
public:
    SystemActivityManager(std::shared_ptr<Session> opened, World&)
        : Servant(std::move(opened)) {
        implements("SystemActivityManager");
    }
};

} // namespace simulator
