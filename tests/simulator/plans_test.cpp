// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <utility>

#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

/// Schedules and retention rules, and the sets that share them.
class Plans : public AgentTest {
protected:
    void SetUp() override {
        start();
        logIn();
        schedules_ = get("getScheduleManager");
        rules_ = get("getRetentionRuleManager");
        agent_->clearCallLog();
    }
    void TearDown() override { EXPECT_THAT(agent_->violations(), IsEmpty()); }

    static std::string time(std::int32_t hour, std::int32_t minute, std::int32_t second = 0) {
        return raw::record("time_in_day", raw::member("hour", raw::int32(hour)) +
                                              raw::member("minute", raw::int32(minute)) +
                                              raw::member("second", raw::int32(second)));
    }
    static std::string span(std::int32_t period, std::int32_t unit) {
        return raw::record("retention_time_span", raw::member("period", raw::int32(period)) +
                                                      raw::member("unit", raw::int32(unit)));
    }

    std::string weekly() { return getFrom(schedules_, "createWeeklyDetail"); }
    std::string monthly() { return getFrom(schedules_, "createMonthlyDetail"); }
    std::string option() { return getFrom(rules_, "createIntervalTimeRetention"); }

    /// A weekly detail that a schedule accepts.
    std::string goodDetail() {
        const std::string detail = weekly();
        callOn(detail, "setScheduleDays", raw::int32(31));
        callOn(detail, "setTasks", raw::int32(1));
        return detail;
    }

    std::string add(const std::string& schedule, const std::string& detail) {
        return callOn(schedule, "addDetail", as("ScheduleDetail", detail));
    }
    std::string remove(const std::string& schedule, const std::string& detail) {
        return callOn(schedule, "removeDetail", as("ScheduleDetail", detail));
    }
    std::string named(const std::string& object, std::string_view name) {
        return callOn(object, "setName", raw::text(name));
    }

    std::string schedules_;
    std::string rules_;
};

TEST_F(Plans, ADetailReportsWhatItIs) {
    const std::string base = raw::text("ScheduleDetail");
    EXPECT_EQ(callOn(weekly(), "types"),
              raw::reply(raw::list({base, raw::text("WeeklyScheduleDetail")})));
    EXPECT_EQ(callOn(monthly(), "types"),
              raw::reply(raw::list({base, raw::text("MonthlyScheduleDetail")})));
    EXPECT_EQ(callOn(weekly(), "getType"), raw::reply(raw::int32(2)));
    EXPECT_EQ(callOn(monthly(), "getType"), raw::reply(raw::int32(3)));
}

TEST_F(Plans, ADetailOfAnotherKindIsOfNoNarrowerClass) {
    const auto all = raw::referencesIn(callOn(schedules_, "definedSchedules"));
    ASSERT_THAT(all, SizeIs(3));
    const std::string detail = getFrom(all[2], "getDetails");
    EXPECT_EQ(callOn(detail, "types"), raw::reply(raw::list({raw::text("ScheduleDetail")})));
    EXPECT_EQ(callOn(detail, "getType"), raw::reply(raw::int32(0)));
    EXPECT_EQ(callOn(detail, "getTasks"), raw::reply(raw::int32(7)));
    EXPECT_EQ(callOn(detail, "getHourlyFrequency"), raw::reply(raw::int32(2)));
}

TEST_F(Plans, ADetailKeepsItsTimes) {
    const std::string detail = weekly();
    EXPECT_EQ(callOn(detail, "hasEndTime"), raw::reply("F"));
    EXPECT_EQ(callOn(detail, "setStartTime", time(23, 45)), raw::reply());
    EXPECT_EQ(callOn(detail, "setEndTime", time(167, 59, 59)), raw::reply());
    EXPECT_EQ(callOn(detail, "getStartTime"), raw::reply(time(23, 45)));
    EXPECT_EQ(callOn(detail, "getEndTime"), raw::reply(time(167, 59, 59)));
    EXPECT_EQ(callOn(detail, "hasEndTime"), raw::reply("T"));
    EXPECT_EQ(callOn(detail, "setNoEndTime"), raw::reply());
    EXPECT_EQ(callOn(detail, "hasEndTime"), raw::reply("F"));
}

TEST_F(Plans, ADetailRefusesWhatIsOutOfRange) {
    const std::string day = weekly();
    const std::string month = monthly();
    const std::pair<const std::string*, std::pair<const char*, std::string>> wrong[] = {
        {&day, {"setStartTime", time(24, 0)}},
        {&day, {"setStartTime", time(-1, 0)}},
        {&day, {"setStartTime", time(0, 60)}},
        {&day, {"setStartTime", time(0, 0, 60)}},
        {&day, {"setEndTime", time(168, 0)}},
        {&day, {"setEndTime", time(0, -1)}},
        {&day, {"setScheduleDays", raw::int32(0)}},
        {&day, {"setScheduleDays", raw::int32(128)}},
        {&month, {"setScheduleDay", raw::int32(0)}},
        {&month, {"setScheduleDay", raw::int32(29)}},
        {&day, {"setHourlyFrequency", raw::int32(-1)}},
        {&day, {"setHourlyFrequency", raw::int32(25)}},
        {&day, {"setTasks", raw::int32(-1)}},
    };
    for (const auto& [detail, call] : wrong)
        EXPECT_NE(refusalOf(callOn(*detail, call.first, call.second)), "no refusal") << call.first;
    EXPECT_EQ(refusalOf(callOn(day, "setStartTime", time(24, 0))),
              "The time {hour=24, minute=0, second=0} is out of range.");
    EXPECT_EQ(refusalOf(callOn(day, "setScheduleDays", raw::int32(128))),
              "There are no days 128 in a week.");
    EXPECT_EQ(refusalOf(callOn(month, "setScheduleDay", raw::int32(29))),
              "Not each month has a day 29.");
}

TEST_F(Plans, ADetailTakesWhatIsJustInRange) {
    const std::string day = weekly();
    const std::string month = monthly();
    EXPECT_EQ(callOn(day, "setStartTime", time(0, 0)), raw::reply());
    for (const std::int32_t mask : {1, 127})
        EXPECT_EQ(callOn(day, "setScheduleDays", raw::int32(mask)), raw::reply());
    for (const std::int32_t number : {1, 28})
        EXPECT_EQ(callOn(month, "setScheduleDay", raw::int32(number)), raw::reply());
    for (const std::int32_t hours : {0, 24})
        EXPECT_EQ(callOn(day, "setHourlyFrequency", raw::int32(hours)), raw::reply());
    EXPECT_EQ(callOn(day, "getScheduleDays"), raw::reply(raw::int32(127)));
    EXPECT_EQ(callOn(month, "getScheduleDay"), raw::reply(raw::int32(28)));
}

TEST_F(Plans, AScheduleTakesAndGivesItsDetails) {
    const std::string schedule = getFrom(schedules_, "createSchedule");
    const std::string detail = goodDetail();
    EXPECT_EQ(add(schedule, detail), raw::reply());
    const auto details = raw::referencesIn(callOn(schedule, "getDetails"));
    ASSERT_THAT(details, SizeIs(1));
    EXPECT_EQ(callOn(details[0], "getScheduleDays"), raw::reply(raw::int32(31)));
    callOn(details[0], "setTasks", raw::int32(3));
    EXPECT_EQ(callOn(detail, "getTasks"), raw::reply(raw::int32(3)));
    EXPECT_EQ(remove(schedule, details[0]), raw::reply());
    EXPECT_EQ(callOn(schedule, "getDetails"), raw::reply(raw::list({})));
}

TEST_F(Plans, AScheduleRefusesDetails) {
    const std::string schedule = getFrom(schedules_, "createSchedule");
    const std::string detail = weekly();
    EXPECT_EQ(refusalOf(add(schedule, detail)), "The detail of the schedule has no days.");
    callOn(detail, "setScheduleDays", raw::int32(1));
    EXPECT_EQ(refusalOf(add(schedule, detail)), "The detail of the schedule has no tasks.");
    callOn(detail, "setTasks", raw::int32(1));
    callOn(detail, "setStartTime", time(20, 0));
    callOn(detail, "setEndTime", time(19, 59, 59));
    EXPECT_EQ(refusalOf(add(schedule, detail)),
              "The detail of the schedule ends before it starts.");
    callOn(detail, "setEndTime", time(20, 0));
    EXPECT_EQ(refusalOf(remove(schedule, detail)), "The detail doesn't belong to the schedule ''.");
    EXPECT_EQ(add(schedule, detail), raw::reply());
    EXPECT_EQ(refusalOf(add(schedule, detail)), "The detail belongs to the schedule '' already.");
}

TEST_F(Plans, AScheduleHasANameOfItsOwn) {
    const std::string schedule = getFrom(schedules_, "createSchedule");
    EXPECT_EQ(refusalOf(named(schedule, "")), "A schedule needs a name.");
    EXPECT_EQ(refusalOf(named(schedule, "Every evening")),
              "There is a schedule 'Every evening' already.");
    EXPECT_EQ(named(schedule, "schedule_for_set_1"), raw::reply());
    EXPECT_EQ(named(schedule, "schedule_for_set_1"), raw::reply());
    EXPECT_EQ(callOn(schedule, "getName"), raw::reply(raw::text("schedule_for_set_1")));
}

TEST_F(Plans, AScheduleWaitsForTheNetwork) {
    const std::string schedule = getFrom(schedules_, "createSchedule");
    EXPECT_EQ(callOn(schedule, "isUsingNetworkDetection"), raw::reply("F"));
    EXPECT_EQ(callOn(schedule, "setUsingNetworkDetection", "T"), raw::reply());
    EXPECT_EQ(callOn(schedule, "isUsingNetworkDetection"), raw::reply("T"));
    EXPECT_EQ(callOn(schedule, "setBackupCPUThrottle", raw::int32(100)), raw::reply());
    for (const std::int32_t percent : {0, 101})
        EXPECT_NE(refusalOf(callOn(schedule, "setBackupCPUThrottle", raw::int32(percent))),
                  "no refusal");
}

TEST_F(Plans, SetsShareASchedule) {
    const std::string ofOne = getFrom(setUrl(1), "getSchedule");
    const std::string ofOther = getFrom(setUrl(2), "getSchedule");
    EXPECT_EQ(named(ofOne, "Late"), raw::reply());
    EXPECT_EQ(callOn(ofOther, "getName"), raw::reply(raw::text("Late")));
    EXPECT_THAT(call("backup_sets_info"),
                HasSubstr(raw::member("schedule_name", raw::text("Late"))));
    EXPECT_THAT(callOn(setUrl(2), "getOverview"),
                HasSubstr(raw::member("schedule_name", raw::text("Late"))));
}

TEST_F(Plans, ASetTakesAScheduleAndLetsItGo) {
    const std::string set = setUrl(1);
    const std::string schedule = getFrom(schedules_, "createSchedule");
    agent_->clearCallLog();
    EXPECT_EQ(callOn(set, "setSchedule", as("Schedule", schedule)), raw::reply());
    EXPECT_EQ(callOn(getFrom(set, "getSchedule"), "getName"), raw::reply(raw::text("")));
    EXPECT_THAT(callOn(set, "getOverview"), HasSubstr(raw::member("schedule_type", raw::int32(4))));
    EXPECT_EQ(callOn(set, "setSchedule", "N"), raw::reply());
    EXPECT_EQ(callOn(set, "getSchedule"), raw::reply("N"));
    EXPECT_THAT(callOn(set, "getOverview"), HasSubstr(raw::member("schedule_id", raw::int32(-1))));
    EXPECT_EQ(agent_->callTexts().front(), "BackupSet.setSchedule(Schedule())");
    EXPECT_EQ(agent_->callTexts().at(4), "BackupSet.setSchedule(null)");
}

TEST_F(Plans, AScheduleThatIsUsedStays) {
    const std::string schedule = getFrom(setUrl(1), "getSchedule");
    EXPECT_EQ(refusalOf(callOn(schedules_, "removeSchedule", as("Schedule", schedule))),
              "The backup set 'Documents' still uses the schedule 'Every evening'.");
}

TEST_F(Plans, AScheduleThatWasRemovedIsGone) {
    const std::string schedule = getFrom(schedules_, "createSchedule");
    named(schedule, "Mine");
    EXPECT_EQ(callOn(schedules_, "removeSchedule", as("Schedule", schedule)), raw::reply());
    EXPECT_THAT(raw::referencesIn(callOn(schedules_, "definedSchedules")), SizeIs(3));
    EXPECT_EQ(refusalOf(callOn(setUrl(1), "setSchedule", as("Schedule", schedule))),
              "The schedule 'Mine' was removed.");
    EXPECT_EQ(refusalOf(callOn(schedules_, "removeSchedule", as("Schedule", schedule))),
              "The schedule 'Mine' was removed.");
    EXPECT_EQ(refusalOf(named(schedule, "Other")), "The schedule 'Mine' was removed.");
}

TEST_F(Plans, ARuleKeepsWhatItIsGiven) {
    const std::string rule = getFrom(rules_, "createRule");
    const std::pair<const char*, std::string> values[] = {
        {"Name", raw::text("retention_for_set_1")},
        {"KeepLastGenerations", raw::int32(9999)},
        {"CleanupRemovedFiles", "T"},
        {"CleanupRemovedAfter", span(0, 3)},
        {"CleanupRemovedKeep", raw::int32(0)},
        {"LocalStorageRetention", span(30, 3)},
    };
    for (const auto& [name, value] : values) {
        EXPECT_EQ(callOn(rule, "set" + std::string(name), value), raw::reply()) << name;
        EXPECT_EQ(callOn(rule, "get" + std::string(name)), raw::reply(value)) << name;
    }
}

TEST_F(Plans, ARuleRefusesWhatIsOutOfRange) {
    const std::string rule = getFrom(rules_, "createRule");
    EXPECT_EQ(refusalOf(named(rule, "")), "A retention rule needs a name.");
    EXPECT_EQ(refusalOf(named(rule, "By the hour")),
              "There is a retention rule 'By the hour' already.");
    for (const std::int32_t count : {0, 10'000})
        EXPECT_NE(refusalOf(callOn(rule, "setKeepLastGenerations", raw::int32(count))),
                  "no refusal");
    EXPECT_EQ(refusalOf(callOn(rule, "setCleanupRemovedKeep", raw::int32(-1))),
              "A rule can't keep -1 generations.");
    for (const char* const setter : {"setCleanupRemovedAfter", "setLocalStorageRetention"})
        EXPECT_EQ(refusalOf(callOn(rule, setter, span(-1, 3))),
                  "The time {period=-1, unit=3} is no time.");
}

TEST_F(Plans, ARuleTakesAndGivesItsOptions) {
    const auto with = [this](const std::string& rule, const char* method,
                             const std::string& option) {
        return callOn(rule, method, as("TimeRetentionOption", option));
    };
    const std::string rule = getFrom(rules_, "createRule");
    const std::string daily = option();
    EXPECT_EQ(callOn(daily, "types"),
              raw::reply(raw::list(
                  {raw::text("TimeRetentionOption"), raw::text("IntervalTimeRetentionOption")})));
    EXPECT_EQ(refusalOf(with(rule, "addTimeRetentionOption", daily)),
              "The option of the retention rule lacks a time.");
    EXPECT_EQ(refusalOf(callOn(daily, "setRepeatTime", span(0, 3))),
              "The time {period=0, unit=3} is no time.");
    EXPECT_EQ(callOn(daily, "setRepeatTime", span(1, 3)), raw::reply());
    EXPECT_EQ(callOn(daily, "setValidFor", span(1, 4)), raw::reply());
    EXPECT_EQ(refusalOf(with(rule, "removeTimeRetentionOption", daily)),
              "The option doesn't belong to the retention rule ''.");
    EXPECT_EQ(with(rule, "addTimeRetentionOption", daily), raw::reply());
    EXPECT_EQ(refusalOf(with(rule, "addTimeRetentionOption", daily)),
              "The option belongs to the retention rule '' already.");
    const auto options = raw::referencesIn(callOn(rule, "getTimeRetentions"));
    ASSERT_THAT(options, SizeIs(1));
    EXPECT_EQ(callOn(options[0], "getValidFor"), raw::reply(span(1, 4)));
    EXPECT_EQ(with(rule, "removeTimeRetentionOption", options[0]), raw::reply());
    EXPECT_EQ(callOn(rule, "getTimeRetentions"), raw::reply(raw::list({})));
}

TEST_F(Plans, ARuleOfAnotherAgentHasOtherOptions) {
    const auto all = raw::referencesIn(callOn(rules_, "definedRules"));
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_THAT(raw::referencesIn(callOn(all[0], "getTimeRetentions")), SizeIs(2));
    const std::string strange = getFrom(all[1], "getTimeRetentions");
    EXPECT_EQ(callOn(strange, "types"), raw::reply(raw::list({raw::text("TimeRetentionOption")})));
    EXPECT_EQ(callOn(strange, "getValidFor"), raw::reply(span(36, 2)));
}

TEST_F(Plans, ASetTakesARuleAndLetsItGo) {
    const std::string set = setUrl(5);
    EXPECT_EQ(callOn(set, "getRetentionRule"), raw::reply("N"));
    const std::string rule = getFrom(rules_, "createRule");
    named(rule, "Mine");
    EXPECT_EQ(callOn(set, "setRetentionRule", as("RetentionRule", rule)), raw::reply());
    EXPECT_EQ(callOn(getFrom(set, "getRetentionRule"), "getName"), raw::reply(raw::text("Mine")));
    EXPECT_EQ(refusalOf(callOn(rules_, "removeRule", as("RetentionRule", rule))),
              "The backup set 'Old workstation' still uses the retention rule 'Mine'.");
    EXPECT_EQ(callOn(set, "setRetentionRule", "N"), raw::reply());
    EXPECT_EQ(callOn(set, "getRetentionRule"), raw::reply("N"));
    EXPECT_EQ(callOn(rules_, "removeRule", as("RetentionRule", rule)), raw::reply());
    EXPECT_EQ(refusalOf(callOn(set, "setRetentionRule", as("RetentionRule", rule))),
              "The retention rule 'Mine' was removed.");
}

} // namespace
