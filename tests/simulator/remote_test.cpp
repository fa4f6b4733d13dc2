// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/client_configuration_records.h"
#include "simulator/objects/describe.h"
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using namespace std::string_literals;
using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

/// The replies of the session's objects, as bytes, and their effect on the world.
class Remote : public AgentTest {
protected:
    void SetUp() override {
        start({.scenario = simulator::Scenario::Empty});
        logIn();
        agent_->withWorld([](World& world) {
            simulator::BackupSetState set;
            set.info.name = "Papers";
            set.info.computer = "PC";
            set.info.has_items = true;
            set.items.push_back({simulator::ItemState::Kind::Inclusion, "PC", "C:\\Papers"});
            world.addSet(set);
        });
        set_ = setUrl(1);
    }

    void TearDown() override { EXPECT_THAT(agent_->violations(), IsEmpty()); }

    std::string reference(const std::string& reply) { return raw::referenceIn(reply); }

    std::string set_;
};

TEST_F(Remote, GivesTheOverview) {
    agent_->withWorld([](World& world) {
        auto& set = *world.sets().front();
        set.info.last_sync_time = 1;
        set.info.last_successful_backup = 2;
        set.info.online_data_size = 3;
        set.info.online_file_count = 4;
        set.info.local_storage_data_size = 5;
        set.info.local_storage_file_count = 6;
        set.info.tarnsys_compressed_size = 7;
        set.leastGenerations = 8;
        set.mostGenerations = 9;
        set.info.retention_rule_id = world.retentionRules.add({.name = "R"})->id;
        const auto schedule = world.schedules.add({.name = "S"});
        schedule->details.push_back(std::make_shared<simulator::ScheduleDetailState>());
        schedule->details.front()->type = hessiancln::ScheduleDetailType::Monthly;
        set.info.schedule_id = schedule->id;
    });
    const std::string status = raw::record(
        "backup_set_status", raw::member("last_sync_time", raw::int32(1)) +
                                 raw::member("last_successful_backup", raw::int32(2)) +
                                 raw::member("on_line_data_size", raw::int64(3)) +
                                 raw::member("on_line_file_count", raw::int32(4)) +
                                 raw::member("local_storage_data_size", raw::int64(5)) +
                                 raw::member("local_storage_file_count", raw::int32(6)) +
                                 raw::member("tarnsystem_compressed_size", raw::int64(7)));
    EXPECT_EQ(callOn(set_, "getCurrentStatus"), raw::reply(status));
    EXPECT_EQ(callOn(set_, "getOverview"),
              raw::reply(raw::record("backup_set_overview_info",
                                     raw::member("data_type", raw::int32(0)) +
                                         raw::member("status", status) +
                                         raw::member("min_gen", raw::int32(8)) +
                                         raw::member("max_gen", raw::int32(9)) +
                                         raw::member("retention_rule_id", raw::int32(3)) +
                                         raw::member("retention_rule_name", raw::text("R")) +
                                         raw::member("schedule_id", raw::int32(4)) +
                                         raw::member("schedule_name", raw::text("S")) +
                                         raw::member("schedule_type", raw::int32(3)))));
}

TEST_F(Remote, HasNoBackupTimesForASetThatNeverRan) {
    EXPECT_EQ(callOn(set_, "backup_times"), raw::reply("Vz"));
}

TEST_F(Remote, GivesAnEmptyRowForAnActivityThatNeverRan) {
    EXPECT_THAT(callOn(set_, "getLastActivityOfType", raw::int32(0)),
                HasSubstr(raw::member("start_time", raw::int32(0))));
}

TEST_F(Remote, RunsABackupOnDemand) {
    const std::string items = callOn(set_, "items");
    const std::string parameters = reference(callOn(set_, "createDefaultBackupParameters"));
    EXPECT_EQ(callOn(parameters, "setDoRetentionAfter", "T"), raw::reply());
    EXPECT_EQ(callOn(parameters, "setPreScanSource", "T"), raw::reply());
    agent_->clearCallLog();
    const std::string activity =
        reference(callOn(set_, "start_backup",
                         items.substr(3, items.size() - 4) +
                             raw::remote("com.norvel.api.BackupStartParameters", parameters)));
    EXPECT_THAT(agent_->callTexts(),
                ElementsAre("BackupSet.start_backup([BackupSetItem(C:\\Papers)]"
                            ", BackupStartParameters)"));
    EXPECT_EQ(callOn(activity, "getID"), raw::reply(raw::int32(1001)));
    EXPECT_THAT(call("running_activities"),
                HasSubstr(raw::member("activity_id", raw::int32(1001))));
    pass(600'000);
    EXPECT_EQ(call("running_activities"), raw::reply("Vz"));
    EXPECT_THAT(call("activity_log", raw::int32(0) + raw::int32(0x7FFFFFFF)),
                HasSubstr(raw::member("id", raw::int32(1001))));
    EXPECT_THAT(callOn(set_, "backup_times"),
                HasSubstr(raw::member("activity_id", raw::int32(1001))));
}

TEST_F(Remote, StopsAnActivity) {
    callOn(set_, "start_sync", "F");
    const std::string activity = reference(call("activity", raw::int32(1001)));
    EXPECT_EQ(callOn(activity, "Stop"), raw::reply());
    EXPECT_EQ(callOn(activity, "getID"), raw::reply(raw::int32(1001)));
    EXPECT_EQ(call("running_activities"), raw::reply("Vz"));
    EXPECT_THAT(call("activity", raw::int32(1001)), HasSubstr("no running activity"));
}

TEST_F(Remote, RefusesABackupOfNothing) {
    const std::string parameters = reference(callOn(set_, "createDefaultBackupParameters"));
    EXPECT_THAT(callOn(set_, "start_backup",
                       "Vz" + raw::remote("com.norvel.api.BackupStartParameters", parameters)),
                HasSubstr("no items"));
}

TEST_F(Remote, ReportsAnItem) {
    const std::string items = callOn(set_, "items");
    const std::string item =
        items.substr(items.find("http"), items.rfind("zz") - items.find("http"));
    EXPECT_EQ(callOn(item, "getFolder"), raw::reply(raw::text("C:\\Papers")));
    EXPECT_EQ(callOn(item, "getType"), raw::reply(raw::int32(0)));
    EXPECT_EQ(callOn(item, "types"), raw::reply("V" + raw::text("BackupSetItem") +
                                                raw::text("BackupSetInclusionItem") + "z"));
}

TEST_F(Remote, ReportsTheEventsOfAnActivity) {
    callOn(set_, "start_sync", "F");
    EXPECT_THAT(call("event_log", raw::int32(0) + raw::int32(0) + raw::int32(1001)),
                HasSubstr("Activity started: Papers"));
}

TEST_F(Remote, ReportsTheSecondFactor) {
    const std::string manager = reference(call("getTFAManager"));
    EXPECT_EQ(callOn(manager, "is2FAEnabled"), raw::reply("F"));
    agent_->withWorld([](World& world) { world.twoFactor = true; });
    EXPECT_EQ(callOn(manager, "is2FAEnabled"), raw::reply("T"));
}

TEST_F(Remote, ReportsTheCustomer) {
    const std::string settings = reference(call("getConfigurationManager"));
    const std::string info = reference(callOn(settings, "getUserInfoConfiguration"));
    EXPECT_EQ(
        callOn(info, "getUserInfo"),
        raw::reply(raw::record("user_info", raw::member("country_code", raw::int32(276)) +
                                                raw::member("num_of_employees", raw::int32(1)) +
                                                raw::member("industry_code", raw::int32(4)))));
}

TEST_F(Remote, HidesKeysInTheCallLog) {
    hessiancln::tarnc_reg_info info;
    info.customer_name = "C";
    info.private_key = "open";
    info.account_key = "sesame";
    const std::string shown = simulator::describe(info);
    EXPECT_THAT(shown, HasSubstr("customer_name=\"C\""));
    EXPECT_THAT(shown, HasSubstr("private_key=***, account_key=***"));
}

} // namespace
