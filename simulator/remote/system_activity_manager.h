// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// A set that the agent has lost.
class OrphanedBackupSet final : public Servant {
public:
    static constexpr std::string_view family = "OrphanedBackupSet";

    OrphanedBackupSet(std::shared_ptr<Session> opened, World::Set set)
        : Servant(std::move(opened))
        , set_(std::move(set)) {
        implements("OrphanedBackupSet");
    }

    const World::Set& set() const { return set_; }
    std::string label() const override;

private:
    World::Set set_;
};

/// The agent's maintenance of itself.
class SystemActivityManager final : public Servant {
public:
    SystemActivityManager(std::shared_ptr<Session> opened, World& world);

private:
    /// Returns the id of the recovered set.
    std::int32_t recover(const World::Set& orphan);

    World& world_;
};

} // namespace simulator
