// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

/// The root of a session.
class ClientConnection final : public Servant {
public:
    ClientConnection(std::shared_ptr<Session> session, World& world);

private:
    void add(const World::Set& set);
    std::shared_ptr<Servant> browser(std::int32_t kind);

    World& world_;
};

} // namespace simulator
