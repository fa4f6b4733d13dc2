// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set.h"

#include "tests/api/golden_records.h"
#include "tests/support/proxy_test.h"

namespace {

using namespace hessiancln;

class BackupSetTest : public support::ProxyTest {
protected:
    const boost::shared_ptr<BackupSet> set = proxyAt<BackupSet>("here");
};

TEST_F(BackupSetTest, backup_times) {
    expect("c 01 00 m 00 0C 'backup_times' z",
           std::string("r 01 00 V ") + golden::backup_sessions + " z z");
    const auto rows = set->backup_times();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].files, 41);
}

TEST_F(BackupSetTest, backup_timesOfASetThatHasNeverRun) {
    expect("c 01 00 m 00 0C 'backup_times' z", "r 01 00 V z z");
    EXPECT_TRUE(set->backup_times().empty());
}

TEST_F(BackupSetTest, createDefaultBackupParameters) {
    expect("c 01 00 m 00 1D 'createDefaultBackupParameters' z",
           "r 01 00 r t 00 24 'com.norvel.api.BackupStartParameters' S 00 0B 'https://a/p' z");
    const auto result = set->createDefaultBackupParameters();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/p");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/p");
}

TEST_F(BackupSetTest, dataBrowser) {
    expect("c 01 00 m 00 0B 'dataBrowser' z",
           "r 01 00 r t 00 20 'com.norvel.api.DataSourceBrowser' S 00 0B 'https://a/b' z");
    const auto result = set->dataBrowser();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/b");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/b");
}

TEST_F(BackupSetTest, getComputerName) {
    expect("c 01 00 m 00 0F 'getComputerName' z", "r 01 00 S 00 09 'RECHNER-Ö' z");
    EXPECT_EQ(set->getComputerName(), "RECHNER-Ö");
}

TEST_F(BackupSetTest, getCredentials) {
    expect("c 01 00 m 00 0E 'getCredentials' z",
           "r 01 00 r t 00 33 'com.norvel.api.Win32FS_Generic_BackupSetCredentials' S 00 0B "
           "'https://a/c' z");
    const auto result = set->getCredentials();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/c");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/c");
}

TEST_F(BackupSetTest, getCurrentStatus) {
    expect("c 01 00 m 00 10 'getCurrentStatus' z",
           std::string("r 01 00 ") + golden::backup_set_status + " z");
    EXPECT_EQ(set->getCurrentStatus().on_line_file_count, 31);
}

TEST_F(BackupSetTest, getDataType) {
    expect("c 01 00 m 00 0B 'getDataType' z", "r 01 00 I 00 00 00 12 z");
    EXPECT_EQ(set->getDataType(), BackupDataType::VMWareVADP);
}

TEST_F(BackupSetTest, aDataTypeOfANewerAgent) {
    expect("c 01 00 m 00 0B 'getDataType' z", "r 01 00 I 00 00 00 1F z");
    EXPECT_EQ(set->getDataType(), BackupDataType{30});
}

TEST_F(BackupSetTest, getID) {
    expect("c 01 00 m 00 05 'getID' z", "r 01 00 I FF FF FF F9 z");
    EXPECT_EQ(set->getID(), -7);
}

TEST_F(BackupSetTest, getLastActivityOfType) {
    expect("c 01 00 m 00 15 'getLastActivityOfType' I 00 00 00 00 z",
           std::string("r 01 00 ") + golden::activity_log_info + " z");
    EXPECT_EQ(set->getLastActivityOfType(ActivityType::Backup).id, 72);
}

TEST_F(BackupSetTest, getLocalStoragePath) {
    expect("c 01 00 m 00 13 'getLocalStoragePath' z", "r 01 00 S 00 09 '/srv/über' z");
    EXPECT_EQ(set->getLocalStoragePath(), "/srv/über");
}

TEST_F(BackupSetTest, getName) {
    expect("c 01 00 m 00 07 'getName' z", "r 01 00 S 00 00 z");
    EXPECT_EQ(set->getName(), "");
}

TEST_F(BackupSetTest, getOverview) {
    expect("c 01 00 m 00 0B 'getOverview' z",
           std::string("r 01 00 ") + golden::backup_set_overview_info + " z");
    const auto overview = set->getOverview();
    EXPECT_EQ(overview.max_gen, 51);
    EXPECT_EQ(overview.status.local_storage_file_count, 32);
}

TEST_F(BackupSetTest, getRetentionRule) {
    expect("c 01 00 m 00 10 'getRetentionRule' z",
           "r 01 00 r t 00 1C 'com.norvel.api.RetentionRule' S 00 0B 'https://a/r' z");
    const auto result = set->getRetentionRule();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/r");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/r");
}

TEST_F(BackupSetTest, getRetentionRuleOfASetWithoutOne) {
    expect("c 01 00 m 00 10 'getRetentionRule' z", "r 01 00 N z");
    EXPECT_FALSE(set->getRetentionRule());
}

TEST_F(BackupSetTest, getSchedule) {
    expect("c 01 00 m 00 0B 'getSchedule' z",
           "r 01 00 r t 00 17 'com.norvel.api.Schedule' S 00 0D 'https://a/sch' z");
    const auto result = set->getSchedule();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/sch");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/sch");
}

TEST_F(BackupSetTest, getScheduleOfASetWithoutOne) {
    expect("c 01 00 m 00 0B 'getSchedule' z", "r 01 00 N z");
    EXPECT_FALSE(set->getSchedule());
}

TEST_F(BackupSetTest, isUsingLocalStorage) {
    expect("c 01 00 m 00 13 'isUsingLocalStorage' z", "r 01 00 T z");
    EXPECT_TRUE(set->isUsingLocalStorage());
}

TEST_F(BackupSetTest, isUsingLocalTransmissionCache) {
    expect("c 01 00 m 00 1D 'isUsingLocalTransmissionCache' z", "r 01 00 F z");
    EXPECT_FALSE(set->isUsingLocalTransmissionCache());
}

TEST_F(BackupSetTest, items) {
    expect("c 01 00 m 00 05 'items' z",
           "r 01 00 V r t 00 25 'com.norvel.api.BackupSetInclusionItem' S 00 02 'i1' N r t 00 26 "
           "'com.norvel.api.BackupSetRegexExclusion' S 00 02 'i2' z z");
    auto items = set->items();
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0]->url(), "i1");
    EXPECT_EQ(items[0]->getDispatcher(), agent);
    EXPECT_FALSE(items[1]);
    EXPECT_EQ(items[2]->url(), "i2");
    EXPECT_EQ(items[2]->getDispatcher(), agent);
    agent->expectRelease("i1");
    items[0].reset();
    agent->expectRelease("i2");
    items[2].reset();
}

TEST_F(BackupSetTest, prepare_delete) {
    expect("c 01 00 m 00 0E 'prepare_delete' I 00 00 00 01 I 00 00 00 02 I 00 00 00 03 I 00 00 00 "
           "04 I 00 00 00 00 z",
           "r 01 00 r t 00 22 'com.norvel.api.BackupSetDeleteView' S 00 0C 'https://a/dv' z");
    const auto result = set->prepare_delete(1, 2, 3, 4, 0);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/dv");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/dv");
}

TEST_F(BackupSetTest, prepare_restore) {
    expect("c 01 00 m 00 0F 'prepare_restore' I 00 00 00 00 I 65 53 F1 00 I 00 00 00 00 z",
           "r 01 00 r t 00 23 'com.norvel.api.BackupSetRestoreView' S 00 0C 'https://a/rv' z");
    const auto result = set->prepare_restore(0, 1700000000, 0);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/rv");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/rv");
}

TEST_F(BackupSetTest, setActive) {
    expect("c 01 00 m 00 09 'setActive' T z", "r 01 00 z");
    set->setActive(true);
}

TEST_F(BackupSetTest, setCredentials) {
    expect("c 01 00 m 00 0E 'setCredentials' r t 00 23 'com.norvel.api.BackupSetCredentials' S 00 "
           "04 'cred' z",
           "r 01 00 z");
    set->setCredentials(proxyAt<BackupSetCredentials>("cred"));
}

TEST_F(BackupSetTest, setItems) {
    expect("c 01 00 m 00 08 'setItems' V r t 00 1C 'com.norvel.api.BackupSetItem' S 00 02 'i1' r t "
           "00 1C 'com.norvel.api.BackupSetItem' S 00 02 'i2' z z",
           "r 01 00 z");
    set->setItems({proxyAt<BackupSetItem>("i1"), proxyAt<BackupSetItem>("i2")});
}

TEST_F(BackupSetTest, setItemsToNone) {
    expect("c 01 00 m 00 08 'setItems' V z z", "r 01 00 z");
    set->setItems({});
}

TEST_F(BackupSetTest, setLocalStoragePath) {
    expect("c 01 00 m 00 13 'setLocalStoragePath' S 00 09 'D:\\Ablage' z", "r 01 00 z");
    set->setLocalStoragePath("D:\\Ablage");
}

TEST_F(BackupSetTest, setName) {
    expect("c 01 00 m 00 07 'setName' S 00 07 'Büro €𝄞' z", "r 01 00 z");
    set->setName("Büro €𝄞");
}

TEST_F(BackupSetTest, setRetentionRule) {
    expect("c 01 00 m 00 10 'setRetentionRule' r t 00 1C 'com.norvel.api.RetentionRule' S 00 04 "
           "'rule' z",
           "r 01 00 z");
    set->setRetentionRule(proxyAt<RetentionRule>("rule"));
}

TEST_F(BackupSetTest, setRetentionRuleNullDetachesIt) {
    expect("c 01 00 m 00 10 'setRetentionRule' N z", "r 01 00 z");
    set->setRetentionRule(nullptr);
}

TEST_F(BackupSetTest, setSchedule) {
    expect("c 01 00 m 00 0B 'setSchedule' r t 00 17 'com.norvel.api.Schedule' S 00 03 'sch' z",
           "r 01 00 z");
    set->setSchedule(proxyAt<Schedule>("sch"));
}

TEST_F(BackupSetTest, setScheduleNullDetachesIt) {
    expect("c 01 00 m 00 0B 'setSchedule' N z", "r 01 00 z");
    set->setSchedule(nullptr);
}

TEST_F(BackupSetTest, setUsingLocalStorage) {
    expect("c 01 00 m 00 14 'setUsingLocalStorage' F z", "r 01 00 z");
    set->setUsingLocalStorage(false);
}

TEST_F(BackupSetTest, setUsingLocalTransmissionCache) {
    expect("c 01 00 m 00 1E 'setUsingLocalTransmissionCache' T z", "r 01 00 z");
    set->setUsingLocalTransmissionCache(true);
}

TEST_F(BackupSetTest, start_backup) {
    expect("c 01 00 m 00 0C 'start_backup' V r t 00 1C 'com.norvel.api.BackupSetItem' S 00 02 'i1' "
           "z r t 00 24 'com.norvel.api.BackupStartParameters' S 00 01 'p' z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    const auto activity =
        set->start_backup({proxyAt<BackupSetItem>("i1")}, proxyAt<BackupStartParameters>("p"));
    ASSERT_TRUE(activity);
    EXPECT_EQ(activity->getDispatcher(), agent);
    agent->expectRelease("act");
}

TEST_F(BackupSetTest, start_sync) {
    expect("c 01 00 m 00 0A 'start_sync' F z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 0E 'https://a/sync' z");
    const auto result = set->start_sync(false);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/sync");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/sync");
}

TEST_F(BackupSetTest, start_syncOfARecoveredSet) {
    expect("c 01 00 m 00 0A 'start_sync' T z", "r 01 00 N z");
    EXPECT_FALSE(set->start_sync(true));
}

TEST_F(BackupSetTest, ABackupOnDemandFromBeginningToEnd) {
    expect("c 01 00 m 00 05 'items' z",
           "r 01 00 V r t 00 25 'com.norvel.api.BackupSetInclusionItem' S 00 02 'i1' z z");
    expect("c 01 00 m 00 1D 'createDefaultBackupParameters' z",
           "r 01 00 r t 00 24 'com.norvel.api.BackupStartParameters' S 00 01 'p' z");
    agent->expect("p", "c 01 00 m 00 13 'setDoRetentionAfter' T z", "r 01 00 z");
    agent->expect("p", "c 01 00 m 00 10 'setPreScanSource' T z", "r 01 00 z");
    expect("c 01 00 m 00 0C 'start_backup' V r t 00 1C 'com.norvel.api.BackupSetItem' S 00 02 'i1' "
           "z r t 00 24 'com.norvel.api.BackupStartParameters' S 00 01 'p' z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    agent->expectRelease("act");
    agent->expectRelease("p");
    agent->expectRelease("i1");

    const auto items = set->items();
    const auto parameters = set->createDefaultBackupParameters();
    parameters->setDoRetentionAfter(true);
    parameters->setPreScanSource(true);
    const auto activity = set->start_backup(items, parameters);
}

TEST_F(BackupSetTest, setUseVSSOfAWindowsSet) {
    expect("c 01 00 m 00 09 'setUseVSS' T z", "r 01 00 z");
    proxyAt<Win32FS_BackupSet>("here")->setUseVSS(true);
}

} // namespace
