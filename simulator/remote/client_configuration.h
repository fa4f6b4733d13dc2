// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/client_configuration_records.h"
#include "simulator/objects/servant.h"
#include "simulator/remote/generic_activity.h"
#include "simulator/world/world.h"

namespace simulator {

/// What the agent knows about the customer.
class UserInfoConfiguration final : public Servant {
public:
    UserInfoConfiguration(std::shared_ptr<Session> opened, World& world)
        : Servant(std::move(opened)) {
        implements("UserInfoConfiguration");
        on("getUserInfo", [&world] { return world.customer; });
        on("setUserInfo", [&world](const hessiancln::user_info& info) { world.customer = info; });
    }
};

/// The agent's own settings.
class ClientConfiguration final : public Servant {
public:
    ClientConfiguration(std::shared_ptr<Session> opened, World& world)
        : Servant(std::move(opened)) {
        implements("ClientConfiguration");
        on("getCustomerName", [&world] { return world.registration.customer_name; });
        on("getAccountNumber", [&world] { return world.registration.account_num; });
        on("getClientNumber", [&world] { return world.registration.client_num; });
        on("getTarnCRegistrationInfo", [&world] { return world.registration; });
        on("getClientOSType", [&world] { return world.system; });
        on("isTarnToolEnabled",
           [&world](std::int32_t tool) { return world.tools.count(tool) != 0; });
        on("getAdvancedConfigNumber",
           [&world](const std::string& key) { return configNumber(world, key); });
        on("setAdvancedConfigNumber",
           [&world](const std::string& key, std::int32_t value) { setNumber(world, key, value); });
        on("start_daily_admin", [this, &world] {
            const auto id = world.start(world.dailyAdmin(session()->user));
            return std::make_shared<GenericActivity>(session(), world, id);
        });
        on("getUserInfoConfiguration",
           [this, &world] { return std::make_shared<UserInfoConfiguration>(session(), world); });
    }

private:
    static std::int32_t& configNumber(World& world, const std::string& key) {
        const auto found = world.advancedConfig.find(key);
        if (found == world.advancedConfig.end())
            throw Refusal("There is no setting '" + key + "'.");
        return found->second;
    }
    static void setNumber(World& world, const std::string& key, std::int32_t value) {
        std::int32_t& number = configNumber(world, key);
        if (value < 0)
            throw Refusal("The setting '" + key + "' can't be " + std::to_string(value) + ".");
        number = value;
    }
};

} // namespace simulator
