// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

/// Agent-wide settings, and the recovery of lost data.
class Configuration : public AgentTest {
protected:
    void SetUp() override { open({}); }

    void open(simulator::Options options) {
        start(std::move(options));
        logIn();
        manager_ = get("getConfigurationManager");
    }

    static std::string time(std::int32_t hour, std::int32_t minute, std::int32_t second = 0) {
        return raw::record("time_in_day", raw::member("hour", raw::int32(hour)) +
                                              raw::member("minute", raw::int32(minute)) +
                                              raw::member("second", raw::int32(second)));
    }
    static std::string registration(std::string_view account, std::string_view client,
                                    std::int32_t cipher, std::string_view key) {
        return raw::record("tarnc_reg_info",
                           raw::member("customer_name", raw::text("Ada")) +
                               raw::member("account_num", raw::text(account)) +
                               raw::member("client_num", raw::text(client)) +
                               raw::member("private_key_enc", raw::int32(cipher)) +
                               raw::member("account_key_enc", raw::int32(0)) +
                               raw::member("private_key", raw::text(key)) +
                               raw::member("account_key", raw::text("")) +
                               raw::member("tarnsys_ip_addr", raw::text("a\\;b")) +
                               raw::member("escrow_enc_key", raw::boolean(false)));
    }
    static std::string account(std::string_view username, bool save) {
        return raw::record("ad_user_info", raw::member("username", raw::text(username)) +
                                               raw::member("password", raw::text("p")) +
                                               raw::member("save", raw::boolean(save)));
    }
    std::string set(std::string_view what, std::string_view value) {
        return callOn(manager_, what, value);
    }
    std::string reported(const std::string& name) {
        std::string value;
        agent_->withWorld([&](World& world) {
            for (const auto& row : world.about)
                if (row.name == name)
                    value = row.value;
        });
        return value;
    }

    std::string manager_;
};

} // namespace

TEST_F(Configuration, KeepsTheTimesOfItsOwnWork) {
    EXPECT_EQ(set("setDailyAdminRunTime", time(-1, 0)), raw::reply());
    EXPECT_EQ(set("setWeeklyAdminRunTime", raw::int32(3) + time(23, 59)), raw::reply());
    EXPECT_EQ(callOn(manager_, "getDailyAdminRunTime"), raw::reply(time(-1, 0)));
    EXPECT_EQ(callOn(manager_, "getWeeklyAdminRunTime"), raw::reply(time(23, 59)));
    EXPECT_EQ(callOn(manager_, "getWeeklyAdminRunDay"), raw::reply(raw::int32(3)));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Configuration, KnowsNoOtherTimes) {
    for (const std::string& wrong :
         {time(24, 0), time(-2, 0), time(-1, 1), time(0, 60), time(0, -1), time(0, 0, 1)}) {
        const std::size_t before = agent_->violations().size();
        set("setDailyAdminRunTime", wrong);
        EXPECT_EQ(agent_->violations().size(), before + 1);
    }
    EXPECT_EQ(callOn(manager_, "getDailyAdminRunTime"), raw::reply(time(12, 30)));
}

TEST_F(Configuration, RunsItsOwnWorkOnDemand) {
    const std::string activity = getFrom(manager_, "start_weekly_admin");
    EXPECT_NE(callOn(activity, "getID"), raw::reply(raw::int32(0)));
    EXPECT_THAT(call("running_activities"), HasSubstr("Weekly administration"));
}

TEST_F(Configuration, ReportsItsRegistration) {
    open({.scenario = simulator::Scenario::FirstRun});
    EXPECT_EQ(refusalOf(callOn(manager_, "init_register")),
              "There is no registration information.");
    EXPECT_EQ(reported("InitialClient"), "Yes");
    EXPECT_EQ(set("setTarnCRegistrationInfo", registration("A", "ABCDEFGHIJK1", 5, "k")),
              raw::reply());
    EXPECT_EQ(callOn(manager_, "init_register"), raw::reply());
    EXPECT_EQ(reported("InitialClient"), "No");
    EXPECT_EQ(reported("Client Number"), "ABCDEFGHIJK1");
    EXPECT_EQ(reported("Tarn-System"), "a");
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Configuration, IsStrictAboutARegistration) {
    for (const std::string& wrong :
         {registration("a", "ABCDEFGHIJK1", 5, "k"), registration("A", "ABCDEFGHIJKl", 5, "k"),
          registration("A", "ABCDEFGHIJK", 5, "k"), registration("A", "ABCDEFGHIJK1", 2, "k"),
          registration("A", "ABCDEFGHIJK1", 5, ""), registration("", "ABCDEFGHIJK1", 5, "k")}) {
        const std::size_t before = agent_->violations().size();
        set("setTarnCRegistrationInfo", wrong);
        EXPECT_EQ(agent_->violations().size(), before + 1);
    }
    EXPECT_EQ(callOn(manager_, "getClientNumber"), raw::reply(raw::text("A4C100931700")));
}

TEST_F(Configuration, KeepsADirectoryAccountIfAskedTo) {
    EXPECT_EQ(set("setADUserInfo", account("HOME\\ada", false)), raw::reply());
    EXPECT_THAT(callOn(manager_, "getADUserInfo"), HasSubstr("OFFICE\\backup"));
    EXPECT_EQ(set("setADUserInfo", account("HOME\\ada", true)), raw::reply());
    EXPECT_EQ(callOn(manager_, "getADUserInfo"), raw::reply(account("HOME\\ada", true)));
    EXPECT_THAT(agent_->violations(), IsEmpty());
    set("setADUserInfo", account("ada", true));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("no backslash")));
}

TEST_F(Configuration, MayKeepNothingAboutCustomers) {
    agent_->withWorld([](World& world) { world.configuration.keepsCustomer = false; });
    EXPECT_EQ(callOn(manager_, "getUserInfoConfiguration"), raw::reply("N"));
}

TEST_F(Configuration, GetsALostSetBackOnce) {
    std::int32_t id = 0;
    agent_->withWorld([&id](World& world) { id = world.sets().back()->info.id + 1; });
    const std::string activities = get("getSystemActivityManager");
    const std::string orphan =
        as("OrphanedBackupSet", raw::referenceIn(callOn(activities, "getOrphanedbackupSets")));
    EXPECT_EQ(callOn(activities, "recover_orphaned_backup_set", orphan),
              raw::reply(raw::int32(id)));
    EXPECT_THAT(call("backup_sets_info"), HasSubstr("Letters before 2019"));
    EXPECT_EQ(callOn(activities, "getOrphanedbackupSets"), raw::reply(raw::list({})));
    EXPECT_THAT(refusalOf(callOn(activities, "recover_orphaned_backup_set", orphan)),
                HasSubstr("isn't orphaned any more"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Configuration, RecoversTheWholeDatabaseOnly) {
    const std::string activities = get("getSystemActivityManager");
    getFrom(activities, "recover_tarnclient_database", raw::int32(0));
    EXPECT_THAT(call("running_activities"), HasSubstr("Recovery of the database"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
    callOn(activities, "recover_tarnclient_database", raw::int32(1));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("mode 1")));
}
