// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/objects/servant.h"
#include "simulator/world/world.h"

namespace simulator {

class GenericActivity;

/// The agent's information about the customer.
class UserInfoConfiguration final : public Servant {
public:
    UserInfoConfiguration(std::shared_ptr<Session> opened, World& world);
};

/// The agent's own settings.
class ClientConfiguration final : public Servant {
public:
    ClientConfiguration(std::shared_ptr<Session> opened, World& world);

private:
    void onRegistration();
    void onAdmin();
    std::shared_ptr<GenericActivity> started(ActivityPlan plan);

    World& world_;
};

} // namespace simulator
