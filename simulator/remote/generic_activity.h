// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// The handle of an activity. It outlives the activity itself.
class GenericActivity final : public Servant {
public:
    GenericActivity(std::shared_ptr<Session> opened, World& world, std::int32_t id)
        : Servant(std::move(opened))
        , id_(id) {
        implements("GenericActivity");
        on("getID", [this] { return id_; });
        on("Stop", [this, &world] { world.stop(id_); });
    }

    std::string label() const override { return "GenericActivity(" + std::to_string(id_) + ")"; }

private:
    std::int32_t id_;
};

} // namespace simulator
