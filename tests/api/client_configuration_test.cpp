// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/client_configuration.h"

#include "tests/api/golden_configuration_records.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class ClientConfigurationTest : public ReceivingTest {
protected:
    const boost::shared_ptr<ClientConfiguration> configuration =
        proxyAt<ClientConfiguration>("here");
    const boost::shared_ptr<UserInfoConfiguration> userInfo =
        proxyAt<UserInfoConfiguration>("here");
};

TEST_F(ClientConfigurationTest, getADUserInfo) {
    expect("c 01 00 m 00 0D 'getADUserInfo' z",
           std::string("r 01 00 ") + golden::ad_user_info + " z");
    EXPECT_EQ(configuration->getADUserInfo().password, "pässwört €");
}

TEST_F(ClientConfigurationTest, getAccountNumber) {
    expect("c 01 00 m 00 10 'getAccountNumber' z", "r 01 00 S 00 06 'ACC-17' z");
    EXPECT_EQ(configuration->getAccountNumber(), "ACC-17");
}

TEST_F(ClientConfigurationTest, getAdvancedConfigNumber) {
    expect("c 01 00 m 00 17 'getAdvancedConfigNumber' S 00 0C 'ScheduleMiss' z",
           "r 01 00 I FF FF FF FD z");
    EXPECT_EQ(configuration->getAdvancedConfigNumber("ScheduleMiss"), -3);
}

TEST_F(ClientConfigurationTest, getClientNumber) {
    expect("c 01 00 m 00 0F 'getClientNumber' z", "r 01 00 S 00 0C 'ABCDEF012345' z");
    EXPECT_EQ(configuration->getClientNumber(), "ABCDEF012345");
}

TEST_F(ClientConfigurationTest, getClientOSType) {
    expect("c 01 00 m 00 0F 'getClientOSType' z", "r 01 00 I 00 00 00 00 z");
    EXPECT_EQ(configuration->getClientOSType(), ClientOSType::Windows);
    expect("c 01 00 m 00 0F 'getClientOSType' z", "r 01 00 I 00 00 00 2C z");
    EXPECT_EQ(configuration->getClientOSType(), ClientOSType{3});
}

TEST_F(ClientConfigurationTest, getCustomerName) {
    expect("c 01 00 m 00 0F 'getCustomerName' z", "r 01 00 S 00 0A 'Bäckerei €' z");
    EXPECT_EQ(configuration->getCustomerName(), "Bäckerei €");
}

TEST_F(ClientConfigurationTest, getTarnCRegistrationInfo) {
    expect("c 01 00 m 00 18 'getTarnCRegistrationInfo' z",
           std::string("r 01 00 ") + golden::tarnc_reg_info + " z");
    EXPECT_EQ(configuration->getTarnCRegistrationInfo().client_num, "ABCDEF012345");
}

TEST_F(ClientConfigurationTest, getDailyAdminRunTime) {
    expect("c 01 00 m 00 14 'getDailyAdminRunTime' z",
           std::string("r 01 00 ") + golden::time_in_day + " z");
    const auto time = configuration->getDailyAdminRunTime();
    EXPECT_EQ(time.minute, 45);
    EXPECT_FALSE(isRunOff(time));
}

TEST_F(ClientConfigurationTest, getDailyAdminRunTimeOfARunThatIsOff) {
    expect("c 01 00 m 00 14 'getDailyAdminRunTime' z",
           "r 01 00 M t 00 1A 'com.norvel.api.time_in_day' S 00 04 'hour' I FF FF FF FF S 00 06 "
           "'minute' I 00 00 00 00 S 00 06 'second' I 00 00 00 00 z z");
    EXPECT_TRUE(isRunOff(configuration->getDailyAdminRunTime()));
}

TEST_F(ClientConfigurationTest, getUserInfoConfiguration) {
    expect("c 01 00 m 00 18 'getUserInfoConfiguration' z",
           "r 01 00 r t 00 24 'com.norvel.api.UserInfoConfiguration' S 00 0B 'https://a/ü' z");
    expectReceived(configuration->getUserInfoConfiguration(), "https://a/ü");
}

TEST_F(ClientConfigurationTest, getUserInfoConfigurationOfAnAgentWithoutOne) {
    expect("c 01 00 m 00 18 'getUserInfoConfiguration' z", "r 01 00 N z");
    EXPECT_FALSE(configuration->getUserInfoConfiguration());
}

TEST_F(ClientConfigurationTest, getWeeklyAdminRunDay) {
    expect("c 01 00 m 00 14 'getWeeklyAdminRunDay' z", "r 01 00 I 00 00 00 06 z");
    EXPECT_EQ(configuration->getWeeklyAdminRunDay(), DayOfWeekCode::Sunday);
}

TEST_F(ClientConfigurationTest, getWeeklyAdminRunTime) {
    expect("c 01 00 m 00 15 'getWeeklyAdminRunTime' z",
           std::string("r 01 00 ") + golden::time_in_day + " z");
    EXPECT_EQ(configuration->getWeeklyAdminRunTime().hour, 30);
}

TEST_F(ClientConfigurationTest, init_register) {
    expect("c 01 00 m 00 0D 'init_register' z", "r 01 00 z");
    configuration->init_register();
}

TEST_F(ClientConfigurationTest, isTarnToolEnabled) {
    expect("c 01 00 m 00 11 'isTarnToolEnabled' I 00 00 00 08 z", "r 01 00 T z");
    EXPECT_TRUE(configuration->isTarnToolEnabled(8));
}

TEST_F(ClientConfigurationTest, re_register) {
    expect("c 01 00 m 00 0B 're_register' z", "r 01 00 N z");
    configuration->re_register();
}

TEST_F(ClientConfigurationTest, re_registerThatTheStorageServerRefuses) {
    expect("c 01 00 m 00 0B 're_register' z",
           "f S 00 04 'code' S 00 02 '17' S 00 07 'message' S 00 11 'Unbekanntes Konto' z");
    expectFault([this] { configuration->re_register(); }, "Unbekanntes Konto");
}

TEST_F(ClientConfigurationTest, setADUserInfo) {
    expect(std::string("c 01 00 m 00 0D 'setADUserInfo' ") + golden::ad_user_info + " z",
           "r 01 00 z");
    configuration->setADUserInfo({"jörg", "pässwört €", true});
}

TEST_F(ClientConfigurationTest, setAdvancedConfigNumber) {
    expect("c 01 00 m 00 17 'setAdvancedConfigNumber' S 00 0C 'ScheduleMiss' I 00 00 00 04 z",
           "r 01 00 z");
    configuration->setAdvancedConfigNumber("ScheduleMiss", 4);
}

TEST_F(ClientConfigurationTest, setTarnCRegistrationInfo) {
    expect(std::string("c 01 00 m 00 18 'setTarnCRegistrationInfo' ") + golden::tarnc_reg_info +
               " z",
           "r 01 00 z");
    configuration->setTarnCRegistrationInfo(
        {"Bäckerei Größe €", "ACC-17", "ABCDEF012345", KeyEncryptionType::AES256,
         KeyEncryptionType::DES, "schlüssel 𝄞", "zweiter", "10.0.0.1\\;süd.example", true});
}

TEST_F(ClientConfigurationTest, setDailyAdminRunTime) {
    expect("c 01 00 m 00 14 'setDailyAdminRunTime' M t 00 1A 'com.norvel.api.time_in_day' S 00 04 "
           "'hour' I 00 00 00 04 S 00 06 'minute' I 00 00 00 05 S 00 06 'second' "
           "I 00 00 00 00 z z",
           "r 01 00 z");
    configuration->setDailyAdminRunTime({4, 5, 0});
}

TEST_F(ClientConfigurationTest, setDailyAdminRunTimeOff) {
    expect("c 01 00 m 00 14 'setDailyAdminRunTime' M t 00 1A 'com.norvel.api.time_in_day' S 00 04 "
           "'hour' I FF FF FF FF S 00 06 'minute' I 00 00 00 00 "
           "S 00 06 'second' I 00 00 00 00 z z",
           "r 01 00 z");
    configuration->setDailyAdminRunTime({-1, 0, 0});
}

TEST_F(ClientConfigurationTest, setWeeklyAdminRunTime) {
    expect(
        "c 01 00 m 00 15 'setWeeklyAdminRunTime' I 00 00 00 02 M t 00 1A "
        "'com.norvel.api.time_in_day' S 00 04 'hour' I 00 00 00 17 S 00 06 'minute' I 00 00 00 1E "
        "S 00 06 'second' I 00 00 00 00 z z",
        "r 01 00 z");
    configuration->setWeeklyAdminRunTime(DayOfWeekCode::Wednesday, {23, 30, 0});
}

TEST_F(ClientConfigurationTest, start_daily_admin) {
    expect("c 01 00 m 00 11 'start_daily_admin' z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'day' z");
    expectReceived(configuration->start_daily_admin(), "day");
}

TEST_F(ClientConfigurationTest, start_weekly_admin) {
    expect("c 01 00 m 00 12 'start_weekly_admin' z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 04 'week' z");
    expectReceived(configuration->start_weekly_admin(), "week");
}

TEST_F(ClientConfigurationTest, getUserInfo) {
    expect("c 01 00 m 00 0B 'getUserInfo' z", std::string("r 01 00 ") + golden::user_info + " z");
    EXPECT_EQ(userInfo->getUserInfo().country_code, 276);
}

TEST_F(ClientConfigurationTest, setUserInfo) {
    expect(std::string("c 01 00 m 00 0B 'setUserInfo' ") + golden::user_info + " z", "r 01 00 z");
    userInfo->setUserInfo(
        {276, EmployeeCountCode::UpTo500, IndustryCode::PublicSectorAndHealthcare});
}

} // namespace
