// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_start_parameters.h"
#include "api/generic_activity.h"
#include "api/system_activity_manager.h"
#include "tests/support/proxy_test.h"

namespace {

using namespace hessiancln;

class ActivityTest : public support::ProxyTest {
protected:
    const boost::shared_ptr<BackupStartParameters> parameters =
        proxyAt<BackupStartParameters>("here");
    const boost::shared_ptr<GenericActivity> activity = proxyAt<GenericActivity>("here");
    const boost::shared_ptr<SystemActivityManager> manager = proxyAt<SystemActivityManager>("here");
};

TEST_F(ActivityTest, setDoRetentionAfter) {
    expect("c 01 00 m 00 13 'setDoRetentionAfter' T z", "r 01 00 z");
    parameters->setDoRetentionAfter(true);
}

TEST_F(ActivityTest, setPreScanSource) {
    expect("c 01 00 m 00 10 'setPreScanSource' F z", "r 01 00 z");
    parameters->setPreScanSource(false);
}

TEST_F(ActivityTest, Stop) {
    expect("c 01 00 m 00 04 'Stop' z", "r 01 00 z");
    activity->Stop();
}

TEST_F(ActivityTest, getID) {
    expect("c 01 00 m 00 05 'getID' z", "r 01 00 I 00 00 00 47 z");
    EXPECT_EQ(activity->getID(), 71);
}

TEST_F(ActivityTest, getOrphanedbackupSets) {
    expect("c 01 00 m 00 15 'getOrphanedbackupSets' z",
           "r 01 00 V r t 00 20 'com.norvel.api.OrphanedBackupSet' S 00 02 'o1' z z");
    const auto orphans = manager->getOrphanedbackupSets();
    ASSERT_EQ(orphans.size(), 1u);
    EXPECT_EQ(orphans[0]->url(), "o1");
    EXPECT_EQ(orphans[0]->getDispatcher(), agent);
    agent->expectRelease("o1");
}

TEST_F(ActivityTest, recover_tarnclient_database) {
    expect("c 01 00 m 00 1B 'recover_tarnclient_database' I 00 00 00 00 z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 0D 'https://a/rec' z");
    const auto result = manager->recover_tarnclient_database(0);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->url(), "https://a/rec");
    EXPECT_EQ(result->getDispatcher(), agent);
    agent->expectRelease("https://a/rec");
}

TEST_F(ActivityTest, recover_orphaned_backup_set) {
    expect("c 01 00 m 00 1B 'recover_orphaned_backup_set' r t 00 20 "
           "'com.norvel.api.OrphanedBackupSet' S 00 02 'o1' z",
           "r 01 00 I 00 00 00 58 z");
    EXPECT_EQ(manager->recover_orphaned_backup_set(proxyAt<OrphanedBackupSet>("o1")), 88);
}

} // namespace
