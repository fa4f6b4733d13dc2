// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "insight/insight_texts.h"

using insight::HealthCount;
using insight::HealthReason;
using insight::HealthState;
using insight::Pace;
using insight::SetFacts;
using insight::SetHealth;
using testing::HasSubstr;

namespace {

// Read when the first text is created.
const bool localeIsSet = qputenv("LC_ALL", "en_US.UTF-8") && qputenv("TZ", "UTC");

std::string help(const SetFacts& facts, HealthState state, HealthReason reason = HealthReason::none,
                 std::int32_t missedHours = 4) {
    SetHealth health;
    health.state = facts.isRunning ? HealthState::Running : state;
    health.beneath = state;
    health.reason = reason;
    return insight::helpText(facts, health, {1'000'000, missedHours, QTimeZone::utc()})
        .toStdString();
}

TEST(InsightTexts, Ages) {
    ASSERT_TRUE(localeIsSet);
    const auto age = [](std::int64_t seconds) { return insight::ageText(seconds).toStdString(); };
    EXPECT_EQ(age(-5), "just now");
    EXPECT_EQ(age(59), "just now");
    EXPECT_EQ(age(60), "1 minute ago");
    EXPECT_EQ(age(3'599), "59 minutes ago");
    EXPECT_EQ(age(3'600), "1 hour ago");
    EXPECT_EQ(age(86'399), "23 hours ago");
    EXPECT_EQ(age(86'400), "1 day ago");
    EXPECT_EQ(age(2 * 86'400), "2 days ago");
}

TEST(InsightTexts, Outcomes) {
    EXPECT_EQ(insight::outcomeText(0, 0).toStdString(), "no errors");
    EXPECT_EQ(insight::outcomeText(1, 0).toStdString(), "1 error");
    EXPECT_EQ(insight::outcomeText(3, 1).toStdString(), "3 errors, 1 warning");
    EXPECT_EQ(insight::outcomeText(0, 2).toStdString(), "2 warnings");
}

TEST(InsightTexts, TheSummary) {
    const auto summary = [](const HealthCount& count) {
        return insight::summaryText(count).toStdString();
    };
    EXPECT_EQ(summary({0, 0, 0}), "No backup sets");
    EXPECT_EQ(summary({7, 0, 0}), "All 7 sets are safe");
    EXPECT_EQ(summary({7, 2, 0}), "2 of 7 sets need attention");
    EXPECT_EQ(summary({7, 1, 3}), "1 of 7 sets needs attention");
    EXPECT_EQ(summary({1, 0, 0}), "The backup set is safe");
    EXPECT_EQ(summary({1, 1, 0}), "The backup set needs attention");
    // It isn't known yet whether they are overdue.
    EXPECT_EQ(summary({7, 0, 1}), "7 sets, no failures");
}

TEST(InsightTexts, ThePace) {
    const auto text = [](const Pace& pace) { return insight::paceText(pace).toStdString(); };
    EXPECT_EQ(text({}), "");
    EXPECT_EQ(text({3.2 * 1024 * 1024, 1, 240, 0}), "3.20 MB/s, 4 minutes left");
    EXPECT_EQ(text({1024, 1, {}, 59}), "1.00 KB/s");
    EXPECT_EQ(text({0, 2.5, {}, 0}), "2.5 files/s");
    EXPECT_EQ(text({0, 0, {}, 60}), "no progress for 1 min");
    EXPECT_EQ(text({1024, 1, 7, 299}), "no progress for 4 min");
}

TEST(InsightTexts, HowAnActivityEnded) {
    hessiancln::activity_log_info row;
    row.errors = 3;
    EXPECT_EQ(insight::endedText(row, QStringLiteral("Documents")).toStdString(),
              "Backup of 'Documents' ended with 3 errors");
    row.type = hessiancln::ActivityType::Restore;
    row.errors = 0;
    EXPECT_EQ(insight::endedText(row, QStringLiteral("100%1")).toStdString(),
              "Restore of '100%1' ended with no errors");
    EXPECT_EQ(insight::endedText(row, {}).toStdString(), "Restore ended with no errors");
}

TEST(InsightTexts, HelpSaysWhyAndWhatToDo) {
    SetFacts facts;
    facts.info.is_active = true;
    facts.info.schedule_id = 1;
    facts.info.last_successful_backup = 1'000'000 - 3 * 86'400;
    facts.lastAttempt = {7, 0, 0, 3, 0};
    EXPECT_THAT(help(facts, HealthState::NeverBackedUp), HasSubstr("Back up now"));
    EXPECT_THAT(help(facts, HealthState::NeverBackedUp, HealthReason::noSuccess),
                HasSubstr("No backup of this set has succeeded"));
    EXPECT_THAT(help(facts, HealthState::Failed, HealthReason::hasErrors),
                HasSubstr("ended with 3 errors"));
    EXPECT_THAT(help(facts, HealthState::Failed, HealthReason::noSuccess),
                HasSubstr("did not succeed"));
    EXPECT_THAT(help(facts, HealthState::Overdue, HealthReason::isTooOld), HasSubstr("3 days old"));
    EXPECT_THAT(help(facts, HealthState::Overdue, HealthReason::missedStart),
                HasSubstr("the 4 hours"));
    EXPECT_THAT(help(facts, HealthState::Overdue, HealthReason::missedStart, 1),
                HasSubstr("the hour in which"));
    EXPECT_THAT(help(facts, HealthState::NotInSync), HasSubstr("Synchronize"));
    EXPECT_THAT(help(facts, HealthState::Recovered), HasSubstr("Edit its items"));
    EXPECT_THAT(help(facts, HealthState::Safe), HasSubstr("by schedule"));
    facts.info.schedule_id = -1;
    EXPECT_THAT(help(facts, HealthState::Safe), HasSubstr("no schedule"));
    facts.isRunning = true;
    EXPECT_EQ(help(facts, HealthState::Safe), "The agent is working on this set.");
    EXPECT_THAT(help(facts, HealthState::NotInSync), HasSubstr("Until it is done: The agent and"));
}

} // namespace
