// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/retention_rule_manager.h"

#include "tests/api/golden_data_records.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class RetentionRuleTest : public ReceivingTest {
protected:
    const boost::shared_ptr<RetentionRuleManager> manager = proxyAt<RetentionRuleManager>("here");
    const boost::shared_ptr<RetentionRule> rule = proxyAt<RetentionRule>("here");
    const boost::shared_ptr<TimeRetentionOption> option = proxyAt<TimeRetentionOption>("here");
    const retention_time_span twoWeeks{14, RetentionTimeUnit::Weeks};
};

TEST_F(RetentionRuleTest, definedRules) {
    expect("c 01 00 m 00 0C 'definedRules' z",
           "r 01 00 V r t 00 1C 'com.norvel.api.RetentionRule' S 00 02 'r1' z z");
    auto rules = manager->definedRules();
    ASSERT_EQ(rules.size(), 1u);
    expectReceived(std::move(rules[0]), "r1");
}

TEST_F(RetentionRuleTest, createRule) {
    expect("c 01 00 m 00 0A 'createRule' z",
           "r 01 00 r t 00 1C 'com.norvel.api.RetentionRule' S 00 02 'r1' z");
    expectReceived(manager->createRule(), "r1");
}

TEST_F(RetentionRuleTest, removeRule) {
    expect("c 01 00 m 00 0A 'removeRule' r t 00 1C 'com.norvel.api.RetentionRule' S 00 02 'r1' z",
           "r 01 00 z");
    manager->removeRule(proxyAt<RetentionRule>("r1"));
}

TEST_F(RetentionRuleTest, createIntervalTimeRetention) {
    expect("c 01 00 m 00 1B 'createIntervalTimeRetention' z",
           "r 01 00 r t 00 2A 'com.norvel.api.IntervalTimeRetentionOption' S 00 02 'o1' z");
    expectReceived(manager->createIntervalTimeRetention(), "o1");
}

TEST_F(RetentionRuleTest, Name) {
    expect("c 01 00 m 00 07 'getName' z", "r 01 00 S 00 0E 'Sieben Jahre ü' z");
    EXPECT_EQ(rule->getName(), "Sieben Jahre ü");
    expect("c 01 00 m 00 07 'setName' S 00 07 'Büro €𝄞' z", "r 01 00 z");
    rule->setName("Büro €𝄞");
}

TEST_F(RetentionRuleTest, KeepLastGenerations) {
    expect("c 01 00 m 00 16 'getKeepLastGenerations' z", "r 01 00 I 00 00 00 07 z");
    EXPECT_EQ(rule->getKeepLastGenerations(), 7);
    expect("c 01 00 m 00 16 'setKeepLastGenerations' I 00 00 01 2C z", "r 01 00 z");
    rule->setKeepLastGenerations(300);
}

TEST_F(RetentionRuleTest, getTimeRetentions) {
    expect("c 01 00 m 00 11 'getTimeRetentions' z",
           "r 01 00 V r t 00 2A 'com.norvel.api.IntervalTimeRetentionOption' S 00 02 'o1' z z");
    auto options = rule->getTimeRetentions();
    ASSERT_EQ(options.size(), 1u);
    expectReceived(std::move(options[0]), "o1");
}

TEST_F(RetentionRuleTest, OptionsAreWrittenUnderTheNameOfTheFamily) {
    expect("c 01 00 m 00 16 'addTimeRetentionOption' r t 00 22 "
           "'com.norvel.api.TimeRetentionOption' S 00 02 'o1' z",
           "r 01 00 z");
    rule->addTimeRetentionOption(proxyAt<IntervalTimeRetentionOption>("o1"));
    expect("c 01 00 m 00 19 'removeTimeRetentionOption' r t 00 22 "
           "'com.norvel.api.TimeRetentionOption' S 00 02 'o2' z",
           "r 01 00 z");
    rule->removeTimeRetentionOption(proxyAt<TimeRetentionOption>("o2"));
}

TEST_F(RetentionRuleTest, CleanupRemovedFiles) {
    expect("c 01 00 m 00 16 'getCleanupRemovedFiles' z", "r 01 00 T z");
    EXPECT_TRUE(rule->getCleanupRemovedFiles());
    expect("c 01 00 m 00 16 'setCleanupRemovedFiles' F z", "r 01 00 z");
    rule->setCleanupRemovedFiles(false);
}

TEST_F(RetentionRuleTest, CleanupRemovedAfter) {
    expect("c 01 00 m 00 16 'getCleanupRemovedAfter' z",
           std::string("r 01 00 ") + golden::retention_time_span + " z");
    EXPECT_EQ(rule->getCleanupRemovedAfter().period, 14);
    expect(std::string("c 01 00 m 00 16 'setCleanupRemovedAfter' ") + golden::retention_time_span +
               " z",
           "r 01 00 z");
    rule->setCleanupRemovedAfter(twoWeeks);
}

TEST_F(RetentionRuleTest, CleanupRemovedKeep) {
    expect("c 01 00 m 00 15 'getCleanupRemovedKeep' z", "r 01 00 I 00 00 00 02 z");
    EXPECT_EQ(rule->getCleanupRemovedKeep(), 2);
    expect("c 01 00 m 00 15 'setCleanupRemovedKeep' I 00 00 00 01 z", "r 01 00 z");
    rule->setCleanupRemovedKeep(1);
}

TEST_F(RetentionRuleTest, LocalStorageRetention) {
    expect("c 01 00 m 00 18 'getLocalStorageRetention' z",
           "r 01 00 M t 00 22 'com.norvel.api.retention_time_span' S 00 04 'unit' I 00 00 00 09 S "
           "00 06 'period' I 00 00 00 00 z z");
    const auto span = rule->getLocalStorageRetention();
    EXPECT_EQ(span.period, 0);
    EXPECT_EQ(span.unit, RetentionTimeUnit{7});
    expect(
        "c 01 00 m 00 18 'setLocalStorageRetention' M t 00 22 'com.norvel.api.retention_time_span' "
        "S 00 06 'period' I 00 00 00 00 S 00 04 'unit' I 00 00 00 03 "
        "z z",
        "r 01 00 z");
    rule->setLocalStorageRetention({0, RetentionTimeUnit::Days});
}

TEST_F(RetentionRuleTest, ValidFor) {
    expect("c 01 00 m 00 0B 'getValidFor' z",
           std::string("r 01 00 ") + golden::retention_time_span + " z");
    EXPECT_EQ(option->getValidFor().unit, RetentionTimeUnit::Weeks);
    expect(std::string("c 01 00 m 00 0B 'setValidFor' ") + golden::retention_time_span + " z",
           "r 01 00 z");
    option->setValidFor(twoWeeks);
}

TEST_F(RetentionRuleTest, setRepeatTime) {
    expect(std::string("c 01 00 m 00 0D 'setRepeatTime' ") + golden::retention_time_span + " z",
           "r 01 00 z");
    proxyAt<IntervalTimeRetentionOption>("here")->setRepeatTime(twoWeeks);
}

} // namespace
