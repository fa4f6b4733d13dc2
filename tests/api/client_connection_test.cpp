// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/client_connection.h"

#include "tests/api/golden_records.h"
#include "tests/support/proxy_test.h"

namespace {

using namespace hessiancln;

class ClientConnectionTest : public support::ProxyTest {
protected:
    const boost::shared_ptr<ClientConnection> root = proxyAt<ClientConnection>("here");
};

TEST_F(ClientConnectionTest, getTarnClientType) {
    expect("c 01 00 m 00 11 'getTarnClientType' z", "r 01 00 I 00 00 00 0E z");
    EXPECT_EQ(root->getTarnClientType(), 14);
}

TEST_F(ClientConnectionTest, AnAgentKindIsAPlainNumber) {
    expect("c 01 00 m 00 11 'getTarnClientType' z", "r 01 00 I 00 00 00 02 z");
    EXPECT_EQ(root->getTarnClientType(), 2);
}

TEST_F(ClientConnectionTest, getAvailableDomains) {
    expect("c 01 00 m 00 13 'getAvailableDomains' z",
           "r 01 00 V S 00 04 'BÜRO' S 00 04 'WERK' z z");
    EXPECT_EQ(root->getAvailableDomains(), (std::vector<std::string>{"BÜRO", "WERK"}));
}

TEST_F(ClientConnectionTest, getAvailableDomainsWithTypeAndLength) {
    expect("c 01 00 m 00 13 'getAvailableDomains' z",
           "r 01 00 V t 00 06 'string' l 00 00 00 09 S 00 04 'BÜRO' z z");
    EXPECT_EQ(root->getAvailableDomains(), std::vector<std::string>{"BÜRO"});
}

TEST_F(ClientConnectionTest, login) {
    expect("c 01 00 m 00 05 'login' S 00 16 'https://127.0.0.1:4411' S 00 08 '13.0.0.0' S 00 07 "
           "'Jörg €𝄞' S 00 06 'geheim' I 00 00 00 01 z",
           "r 01 00 r t 00 1F 'com.norvel.api.ClientConnection' S 00 1A "
           "'https://127.0.0.1:4411/s/1' z");
    const auto session = root->login("https://127.0.0.1:4411", "13.0.0.0", "Jörg €𝄞", "geheim", 1);
    ASSERT_TRUE(session);
    EXPECT_EQ(session->url(), "https://127.0.0.1:4411/s/1");
    EXPECT_EQ(session->getDispatcher(), agent);
    agent->expectRelease("https://127.0.0.1:4411/s/1");
}

TEST_F(ClientConnectionTest, loginWithEmptyTexts) {
    expect("c 01 00 m 00 05 'login' S 00 00 S 00 00 S 00 00 S 00 00 I 00 00 00 00 z",
           "r 01 00 N z");
    EXPECT_FALSE(root->login("", "", "", "", 0));
}

TEST_F(ClientConnectionTest, sspi_login) {
    expect("c 01 00 m 00 0A 'sspi_login' S 00 09 'https://a' S 00 08 '13.0.0.0' B 00 05 01 00 00 "
           "00 FF z",
           std::string("r 01 00 ") + golden::sspi_login_info + " z");
    const auto step = root->sspi_login("https://a", "13.0.0.0", {1, 0, 0, 0, 0xFF});
    EXPECT_EQ(step.context, (hessianser::Binary{2, 0, 0, 0, 0xA1, 0xB2}));
    ASSERT_TRUE(step.conn);
    EXPECT_EQ(step.conn->url(), "https://a/s7");
    EXPECT_EQ(step.conn->getDispatcher(), agent);
    agent->expectRelease("https://a/s7");
}

TEST_F(ClientConnectionTest, sspi_loginWithoutConnectionYet) {
    expect("c 01 00 m 00 0A 'sspi_login' S 00 00 S 00 00 B 00 00 z",
           "r 01 00 M t 00 1E 'com.norvel.api.sspi_login_info' S 00 04 'conn' N S 00 07 'context' "
           "B 00 00 z z");
    const auto step = root->sspi_login("", "", {});
    EXPECT_TRUE(step.context.empty());
    EXPECT_FALSE(step.conn);
}

TEST_F(ClientConnectionTest, logout) {
    expect("c 01 00 m 00 06 'logout' z", "r 01 00 z");
    root->logout();
}

TEST_F(ClientConnectionTest, getTarnClientInfo) {
    expect("c 01 00 m 00 11 'getTarnClientInfo' z",
           std::string("r 01 00 V ") + golden::tarn_client_info + " z z");
    const auto rows = root->getTarnClientInfo();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].name, "Größe");
}

TEST_F(ClientConnectionTest, backup_sets_info) {
    expect("c 01 00 m 00 10 'backup_sets_info' z",
           std::string("r 01 00 V ") + golden::backup_set_info + " z z");
    const auto rows = root->backup_sets_info();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].name, "Büro");
}

TEST_F(ClientConnectionTest, backup_set) {
    expect("c 01 00 m 00 0A 'backup_set' I FF FF FF FE z",
           "r 01 00 r t 00 18 'com.norvel.api.BackupSet' S 00 0D 'https://a/set' z");
    const auto result = root->backup_set(-2);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/set");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/set");
}

TEST_F(ClientConnectionTest, backup_setThatIsNotThere) {
    expect("c 01 00 m 00 0A 'backup_set' I 00 00 00 05 z", "72 01 00 4E 7A");
    EXPECT_FALSE(root->backup_set(5));
}

TEST_F(ClientConnectionTest, addBackupSet) {
    expect("c 01 00 m 00 0C 'addBackupSet' r t 00 18 'com.norvel.api.BackupSet' S 00 0D "
           "'https://a/süd' z",
           "r 01 00 z");
    root->addBackupSet(proxyAt<BackupSet>("https://a/süd"));
}

TEST_F(ClientConnectionTest, addBackupSetOfANarrowerClass) {
    expect("c 01 00 m 00 0C 'addBackupSet' r t 00 18 'com.norvel.api.BackupSet' S 00 01 'w' z",
           "r 01 00 z");
    root->addBackupSet(proxyAt<Win32FS_BackupSet>("w"));
}

TEST_F(ClientConnectionTest, addBackupSetNull) {
    expect("c 01 00 m 00 0C 'addBackupSet' N z", "r 01 00 z");
    root->addBackupSet(nullptr);
}

TEST_F(ClientConnectionTest, removeBackupSet) {
    expect("c 01 00 m 00 0F 'removeBackupSet' r t 00 18 'com.norvel.api.BackupSet' S 00 0B "
           "'https://a/3' z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 0D 'https://a/act' z");
    const auto activity = root->removeBackupSet(proxyAt<BackupSet>("https://a/3"));
    ASSERT_TRUE(activity);
    EXPECT_EQ(activity->url(), "https://a/act");
    EXPECT_EQ(activity->getDispatcher(), agent);
    agent->expectRelease("https://a/act");
}

TEST_F(ClientConnectionTest, running_activities) {
    expect("c 01 00 m 00 12 'running_activities' z",
           std::string("r 01 00 V ") + golden::running_activity_info + " z z");
    const auto rows = root->running_activities();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].activity_id, 71);
}

TEST_F(ClientConnectionTest, running_activitiesOfAnIdleAgent) {
    expect("c 01 00 m 00 12 'running_activities' z", "r 01 00 V z z");
    EXPECT_TRUE(root->running_activities().empty());
}

TEST_F(ClientConnectionTest, activity) {
    expect("c 01 00 m 00 08 'activity' I 00 00 00 47 z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 0F 'https://a/act71' z");
    const auto result = root->activity(71);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/act71");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/act71");
}

TEST_F(ClientConnectionTest, activity_log) {
    expect("c 01 00 m 00 0C 'activity_log' I 65 53 F1 00 I 65 55 42 80 z",
           std::string("r 01 00 V ") + golden::activity_log_info + " z z");
    const auto rows = root->activity_log(1700000000, 1700086400);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].id, 72);
}

TEST_F(ClientConnectionTest, event_log) {
    expect("c 01 00 m 00 09 'event_log' I 00 00 00 00 I 7F FF FF FF I 00 00 00 49 z",
           std::string("r 01 00 V ") + golden::event_log_info + " z z");
    const auto rows = root->event_log(0, 2147483647, 73);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].event_id, 101);
}

TEST_F(ClientConnectionTest, createBrowser) {
    expect("c 01 00 m 00 0D 'createBrowser' I 00 00 00 00 z",
           "r 01 00 r t 00 20 'com.norvel.api.DataSourceBrowser' S 00 0B 'https://a/b' z");
    const auto result = root->createBrowser(0);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/b");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/b");
}

TEST_F(ClientConnectionTest, getScheduleManager) {
    expect(
        "c 01 00 m 00 12 'getScheduleManager' z",
        "r 01 00 r t 00 1E 'com.norvel.api.ScheduleManager' S 00 19 'https://a/ScheduleManager' z");
    const auto result = root->getScheduleManager();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/ScheduleManager");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/ScheduleManager");
}

TEST_F(ClientConnectionTest, getRetentionRuleManager) {
    expect("c 01 00 m 00 17 'getRetentionRuleManager' z",
           "r 01 00 r t 00 23 'com.norvel.api.RetentionRuleManager' S 00 1E "
           "'https://a/RetentionRuleManager' z");
    const auto result = root->getRetentionRuleManager();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/RetentionRuleManager");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/RetentionRuleManager");
}

TEST_F(ClientConnectionTest, getConfigurationManager) {
    expect("c 01 00 m 00 17 'getConfigurationManager' z",
           "r 01 00 r t 00 22 'com.norvel.api.ClientConfiguration' S 00 1D "
           "'https://a/ClientConfiguration' z");
    const auto result = root->getConfigurationManager();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/ClientConfiguration");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/ClientConfiguration");
}

TEST_F(ClientConnectionTest, getTFAManager) {
    expect("c 01 00 m 00 0D 'getTFAManager' z",
           "r 01 00 r t 00 19 'com.norvel.api.TFAManager' S 00 14 'https://a/TFAManager' z");
    const auto result = root->getTFAManager();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/TFAManager");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/TFAManager");
}

TEST_F(ClientConnectionTest, getSystemActivityManager) {
    expect("c 01 00 m 00 18 'getSystemActivityManager' z",
           "r 01 00 r t 00 24 'com.norvel.api.SystemActivityManager' S 00 1F "
           "'https://a/SystemActivityManager' z");
    const auto result = root->getSystemActivityManager();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/SystemActivityManager");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/SystemActivityManager");
}

} // namespace
