// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/client_configuration.h"

#include <algorithm>

#include "simulator/remote/generic_activity.h"

namespace simulator {
namespace {

using hessiancln::KeyEncryptionType;
using hessiancln::tarnc_reg_info;
using hessiancln::time_in_day;
using hessiancln::user_info;

constexpr std::size_t clientNumberLength = 12;

std::int32_t& configNumber(World& world, const std::string& key) {
    const auto found = world.advancedConfig.find(key);
    if (found == world.advancedConfig.end())
        throw Refusal("There is no setting '" + key + "'.");
    return found->second;
}

void setNumber(World& world, const std::string& key, std::int32_t value) {
    std::int32_t& number = configNumber(world, key);
    if (value < 0)
        throw Refusal("The setting '" + key + "' can't be " + std::to_string(value) + ".");
    number = value;
}

time_in_day checkedRun(const time_in_day& time) {
    const bool off = time.hour == -1 && time.minute == 0;
    const bool on = 0 <= time.hour && time.hour < 24 && 0 <= time.minute && time.minute < 60;
    if ((!off && !on) || time.second != 0)
        throw Violation("an admin run has no such time");
    return time;
}

/// Whether the number is one of the AES numbers that are only read.
bool isOldNumber(KeyEncryptionType type) {
    return type > KeyEncryptionType::DES && type < KeyEncryptionType::AES128;
}

bool hasSmallLetters(const std::string& text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return 'a' <= c && c <= 'z'; });
}

void check(const tarnc_reg_info& info) {
    if (info.customer_name.empty() || info.account_num.empty() || info.tarnsys_ip_addr.empty())
        throw Violation("a registration lacks its customer, account or addresses");
    if (info.client_num.size() != clientNumberLength)
        throw Violation("a client number hasn't 12 characters");
    if (hasSmallLetters(info.account_num) || hasSmallLetters(info.client_num))
        throw Violation("account and client number aren't in upper case");
    if (isOldNumber(info.private_key_enc) || isOldNumber(info.account_key_enc))
        throw Violation("a cipher is sent by its old number");
    if (info.private_key.empty() ||
        (info.account_key.empty() && info.account_key_enc != KeyEncryptionType::NONE))
        throw Violation("a key is empty");
}

void setInfo(World& world, const std::string& name, const std::string& value) {
    for (hessiancln::tarn_client_info& row : world.about)
        if (row.name == name)
            row.value = value;
}

void enrol(World& world, const tarnc_reg_info& info) {
    check(info);
    world.registration = info;
    setInfo(world, "Account", info.account_num);
    setInfo(world, "Client Number", info.client_num);
    setInfo(world, "Tarn-System", info.tarnsys_ip_addr.substr(0, info.tarnsys_ip_addr.find("\\;")));
    setInfo(world, "InitialClient", "No");
}

void registerAtServer(World& world) {
    if (world.registration.client_num.empty())
        throw Refusal("There is no registration information.");
    ++world.configuration.registrations;
}

void setDirectoryAccount(World& world, const hessiancln::ad_user_info& account) {
    if (account.username.find('\\') == std::string::npos)
        throw Violation("a directory account has no backslash");
    if (account.save)
        world.configuration.directoryAccount = account;
}

} // namespace

UserInfoConfiguration::UserInfoConfiguration(std::shared_ptr<Session> opened, World& world)
    : Servant(std::move(opened)) {
    implements("UserInfoConfiguration");
    on("getUserInfo", [&world] { return world.customer; });
    on("setUserInfo", [&world](const user_info& info) {
        if (hessiancln::isMissing(info))
            throw Violation("what is sent about the customer isn't complete");
        world.customer = info;
    });
}

ClientConfiguration::ClientConfiguration(std::shared_ptr<Session> opened, World& world)
    : Servant(std::move(opened))
    , world_(world) {
    implements("ClientConfiguration");
    on("getClientOSType", [this] { return world_.system; });
    on("isTarnToolEnabled", [this](std::int32_t tool) { return world_.tools.count(tool) != 0; });
    on("getAdvancedConfigNumber",
       [this](const std::string& key) { return configNumber(world_, key); });
    on("setAdvancedConfigNumber",
       [this](const std::string& key, std::int32_t value) { setNumber(world_, key, value); });
    onRegistration();
    onAdmin();
    on("getADUserInfo", [this] { return world_.configuration.directoryAccount; });
    on("setADUserInfo",
       [this](const hessiancln::ad_user_info& account) { setDirectoryAccount(world_, account); });
}

void ClientConfiguration::onRegistration() {
    on("getCustomerName", [this] { return world_.registration.customer_name; });
    on("getAccountNumber", [this] { return world_.registration.account_num; });
    on("getClientNumber", [this] { return world_.registration.client_num; });
    on("getTarnCRegistrationInfo", [this] { return world_.registration; });
    on("setTarnCRegistrationInfo", [this](const tarnc_reg_info& info) { enrol(world_, info); });
    on("init_register", [this] { registerAtServer(world_); });
    on("re_register", [this] { registerAtServer(world_); });
    on("getUserInfoConfiguration", [this] {
        return world_.configuration.keepsCustomer
                   ? std::make_shared<UserInfoConfiguration>(session(), world_)
                   : nullptr;
    });
}

void ClientConfiguration::onAdmin() {
    ConfigurationState& state = world_.configuration;
    on("getDailyAdminRunTime", [&state] { return state.dailyAdmin; });
    on("getWeeklyAdminRunTime", [&state] { return state.weeklyAdmin; });
    on("getWeeklyAdminRunDay", [&state] { return state.weeklyDay; });
    on("setDailyAdminRunTime",
       [&state](const time_in_day& time) { state.dailyAdmin = checkedRun(time); });
    on("setWeeklyAdminRunTime", [&state](hessiancln::DayOfWeekCode day, const time_in_day& time) {
        state.weeklyAdmin = checkedRun(time);
        state.weeklyDay = day;
    });
    on("start_daily_admin", [this] { return started(world_.dailyAdmin(session()->user)); });
    on("start_weekly_admin", [this] { return started(world_.weeklyAdmin(session()->user)); });
}

std::shared_ptr<GenericActivity> ClientConfiguration::started(ActivityPlan plan) {
    return std::make_shared<GenericActivity>(session(), world_, world_.start(std::move(plan)));
}

} // namespace simulator
