// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/client_configuration.h"

#include "api/remote_call.h"

namespace hessiancln {

ad_user_info ClientConfiguration::getADUserInfo() {
    return call<ad_user_info>("getADUserInfo");
}

std::string ClientConfiguration::getAccountNumber() {
    return call<std::string>("getAccountNumber");
}

std::int32_t ClientConfiguration::getAdvancedConfigNumber(const std::string& key) {
    return call<std::int32_t>("getAdvancedConfigNumber", key);
}

std::string ClientConfiguration::getClientNumber() {
    return call<std::string>("getClientNumber");
}

ClientOSType ClientConfiguration::getClientOSType() {
    return call<ClientOSType>("getClientOSType");
}

std::string ClientConfiguration::getCustomerName() {
    return call<std::string>("getCustomerName");
}

tarnc_reg_info ClientConfiguration::getTarnCRegistrationInfo() {
    return call<tarnc_reg_info>("getTarnCRegistrationInfo");
}

time_in_day ClientConfiguration::getDailyAdminRunTime() {
    return call<time_in_day>("getDailyAdminRunTime");
}

ClientConfiguration::UserInfo ClientConfiguration::getUserInfoConfiguration() {
    return call<UserInfo>("getUserInfoConfiguration");
}

DayOfWeekCode ClientConfiguration::getWeeklyAdminRunDay() {
    return call<DayOfWeekCode>("getWeeklyAdminRunDay");
}

time_in_day ClientConfiguration::getWeeklyAdminRunTime() {
    return call<time_in_day>("getWeeklyAdminRunTime");
}

void ClientConfiguration::init_register() {
    call<void>("init_register");
}

bool ClientConfiguration::isTarnToolEnabled(std::int32_t tool) {
    return call<bool>("isTarnToolEnabled", tool);
}

void ClientConfiguration::re_register() {
    call<void>("re_register");
}

void ClientConfiguration::setADUserInfo(const ad_user_info& info) {
    call<void>("setADUserInfo", info);
}

void ClientConfiguration::setAdvancedConfigNumber(const std::string& key, std::int32_t value) {
    call<void>("setAdvancedConfigNumber", key, value);
}

void ClientConfiguration::setTarnCRegistrationInfo(const tarnc_reg_info& info) {
    call<void>("setTarnCRegistrationInfo", info);
}

void ClientConfiguration::setDailyAdminRunTime(const time_in_day& time) {
    call<void>("setDailyAdminRunTime", time);
}

void ClientConfiguration::setWeeklyAdminRunTime(DayOfWeekCode day, const time_in_day& time) {
    call<void>("setWeeklyAdminRunTime", day, time);
}

ClientConfiguration::Activity ClientConfiguration::start_daily_admin() {
    return call<Activity>("start_daily_admin");
}

ClientConfiguration::Activity ClientConfiguration::start_weekly_admin() {
    return call<Activity>("start_weekly_admin");
}

} // namespace hessiancln
