// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/retention_task.h"

#include <stdexcept>

#include "api/backup_set.h"
#include "tests/support/proxy_test.h"

namespace {

constexpr char askRule[] = "c 01 00 m 00 10 'getRetentionRule' z";
constexpr char askSchedule[] = "c 01 00 m 00 0B 'getSchedule' z";
constexpr char askDetails[] = "c 01 00 m 00 0A 'getDetails' z";
constexpr char none[] = "r 01 00 N z";
constexpr char schedule[] = "r 01 00 r t 00 17 'com.norvel.api.Schedule' S 00 03 'sch' z";

class RetentionTaskTest : public support::ProxyTest {
protected:
    const boost::shared_ptr<hessiancln::BackupSet> set = proxyAt<hessiancln::BackupSet>("here");
};

TEST_F(RetentionTaskTest, ASetWithoutAScheduleIsLeftAlone) {
    expect(askRule, none);
    expect(askSchedule, none);
    wizards::syncRetentionTask(*set);
    EXPECT_EQ(agent->left(), 0u);
}

TEST_F(RetentionTaskTest, ADetailThatTheAgentDoesntHaveIsAnError) {
    expect(askRule, none);
    expect(askSchedule, schedule);
    agent->expect("sch", askDetails, "r 01 00 V N z z");
    agent->expectRelease("sch");
    EXPECT_THROW(wizards::syncRetentionTask(*set), std::runtime_error);
    EXPECT_EQ(agent->left(), 0u);
}

} // namespace
