// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// Codes by mail as a second factor.
class TFAManager final : public Servant {
public:
    TFAManager(std::shared_ptr<Session> opened, World& world)
        : Servant(std::move(opened)) {
        implements("TFAManager");
        on("is2FAEnabled", [&world] { return world.twoFactor; });
        on("getUserEmails", [&world] { return world.userEmails; });
    }
};

} // namespace simulator
