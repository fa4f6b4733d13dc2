// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// Lists, creates and removes retention rules. A new one exists immediately, without a name.
class RetentionRuleManager final : public Servant {
public:
    RetentionRuleManager(std::shared_ptr<Session> opened, World& world);
};

} // namespace simulator
