// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

#include <boost/shared_ptr.hpp>

#include "api/client_configuration_records.h"
#include "api/generic_activity.h"
#include "api/remote_object.h"
#include "api/time_in_day.h"
#include "api/user_info_configuration.h"

namespace hessiancln {

/// The agent's own settings.
class ClientConfiguration : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    using Activity = boost::shared_ptr<GenericActivity>;
    using UserInfo = boost::shared_ptr<UserInfoConfiguration>;

    ad_user_info getADUserInfo();
    std::string getAccountNumber();
    std::int32_t getAdvancedConfigNumber(const std::string& key);
    std::string getClientNumber();
    ClientOSType getClientOSType();
    std::string getCustomerName();
    tarnc_reg_info getTarnCRegistrationInfo();
    time_in_day getDailyAdminRunTime();
    /// Null if the agent has no such configuration.
    UserInfo getUserInfoConfiguration();
    DayOfWeekCode getWeeklyAdminRunDay();
    time_in_day getWeeklyAdminRunTime();
    /// Registers with the storage server for the first time.
    void init_register();
    bool isTarnToolEnabled(std::int32_t tool);
    /// Registers with the storage server again.
    void re_register();
    void setADUserInfo(const ad_user_info& info);
    void setAdvancedConfigNumber(const std::string& key, std::int32_t value);
    void setTarnCRegistrationInfo(const tarnc_reg_info& info);
    void setDailyAdminRunTime(const time_in_day& time);
    void setWeeklyAdminRunTime(DayOfWeekCode day, const time_in_day& time);
    /// Runs the daily admin process now.
    Activity start_daily_admin();
    /// Runs the weekly admin process now.
    Activity start_weekly_admin();
};

} // namespace hessiancln
