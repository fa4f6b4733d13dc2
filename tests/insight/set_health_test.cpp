// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "insight/set_health.h"
#include "tests/insight/plans.h"

using insight::HealthClock;
using insight::HealthReason;
using insight::HealthState;
using insight::SchedulePlan;
using insight::SetFacts;
using insight::SetHealth;
using plans::at;
using plans::everyDay;
using plans::hourly;
using plans::weekly;

namespace {

constexpr std::int64_t day = 86'400;

/// Daily at 20:00; the agent catches up on a missed start for four hours.
class SetHealthTest : public testing::Test {
protected:
    SetHealthTest() {
        facts.info.is_active = facts.info.in_sync = facts.info.has_items = true;
        facts.info.schedule_id = 1;
        facts.info.online_file_count = 10;
        backedUpAt(at("2026-11-20T20:01:00Z"));
        use(everyEvening);
    }

    void backedUpAt(std::int64_t time) {
        facts.info.last_backup = facts.info.last_successful_backup =
            static_cast<std::int32_t>(time);
    }
    void use(const SchedulePlan& plan) {
        facts.plan = &plan;
        facts.interval = insight::longestInterval(plan);
    }
    SetHealth judged() const { return insight::judge(facts, {now, 4, QTimeZone::utc()}); }
    HealthState state() const { return judged().state; }

    const SchedulePlan everyEvening{{weekly(everyDay, 20)}};
    SetFacts facts;
    std::int64_t now = at("2026-11-21T12:00:00Z");
};

TEST_F(SetHealthTest, ASetThatWasBackedUpLastNightIsSafe) {
    EXPECT_EQ(state(), HealthState::Safe);
    EXPECT_TRUE(judged().isSettled);
    EXPECT_EQ(judged().nextStart, at("2026-11-21T20:00:00Z"));
    EXPECT_FALSE(insight::needsAttention(judged()));
}

TEST_F(SetHealthTest, AnUnknownLastBackupIsNotTooOld) {
    backedUpAt(0);
    EXPECT_EQ(judged().reason, HealthReason::missedStart);
    facts.isRunning = true;
    EXPECT_EQ(judged().beneath, HealthState::Safe);
}

TEST_F(SetHealthTest, OutOfSyncComesFirst) {
    facts.info.in_sync = facts.info.has_items = false;
    EXPECT_EQ(state(), HealthState::NotInSync);
    facts.info.in_sync = true;
    EXPECT_EQ(state(), HealthState::Recovered);
}

TEST_F(SetHealthTest, NeverBackedUpIsASetThatHoldsNothing) {
    facts.info.last_successful_backup = facts.info.last_backup = 0;
    facts.info.online_file_count = 0;
    EXPECT_EQ(state(), HealthState::NeverBackedUp);
    EXPECT_EQ(judged().reason, HealthReason::none);
    facts.info.last_backup = 1;
    EXPECT_EQ(state(), HealthState::NeverBackedUp);
    EXPECT_EQ(judged().reason, HealthReason::noSuccess);
    // It holds something of unknown age.
    facts.info.last_backup = 0;
    facts.info.online_file_count = 1;
    EXPECT_EQ(state(), HealthState::Overdue);
}

TEST_F(SetHealthTest, FailedIsALastBackupWithErrors) {
    const std::int64_t end = facts.info.last_successful_backup;
    facts.lastAttempt = {7, end - 60, end, 1, 0};
    EXPECT_EQ(state(), HealthState::Failed);
    EXPECT_EQ(judged().reason, HealthReason::hasErrors);
    facts.lastAttempt->errors = 0;
    facts.lastAttempt->warnings = 5;
    EXPECT_EQ(state(), HealthState::Safe);
    // A successful one followed.
    facts.lastAttempt = {7, end - 120, end - 60, 1, 0};
    EXPECT_EQ(state(), HealthState::Safe);
}

TEST_F(SetHealthTest, FailedIsABackupAfterTheLastGoodOne) {
    ++facts.info.last_backup;
    EXPECT_EQ(state(), HealthState::Failed);
    EXPECT_EQ(judged().reason, HealthReason::noSuccess);
}

TEST_F(SetHealthTest, OverdueBeyondTwoIntervals) {
    backedUpAt(now - 2 * day);
    facts.info.last_backup = facts.info.last_successful_backup;
    // At exactly two intervals the missed start is reported, beyond them the age.
    const SchedulePlan noon{{weekly(everyDay, 12)}};
    use(noon);
    now = at("2026-11-21T12:00:00Z");
    backedUpAt(at("2026-11-19T12:00:00Z"));
    EXPECT_EQ(judged().reason, HealthReason::missedStart);
    backedUpAt(at("2026-11-19T11:59:59Z"));
    EXPECT_EQ(state(), HealthState::Overdue);
    EXPECT_EQ(judged().reason, HealthReason::isTooOld);
}

TEST_F(SetHealthTest, ExactlyTwoIntervalsAreNotOverdue) {
    const auto stateWithAge = [this](std::int64_t age) {
        backedUpAt(now - age);
        // So patient an agent misses no start.
        return insight::judge(facts, {now, 100, QTimeZone::utc()}).state;
    };
    EXPECT_EQ(stateWithAge(2 * day), HealthState::Safe);
    EXPECT_EQ(stateWithAge(2 * day + 1), HealthState::Overdue);
}

TEST_F(SetHealthTest, ABackupThatTakesLongMissesNoStart) {
    now = at("2026-11-22T02:00:00Z");
    EXPECT_EQ(judged().reason, HealthReason::missedStart);
    facts.isRunning = true;
    EXPECT_EQ(state(), HealthState::Running);
    EXPECT_FALSE(insight::needsAttention(judged()));
}

TEST_F(SetHealthTest, OverdueWhenTheLastStartWasMissed) {
    backedUpAt(at("2026-11-20T20:00:00Z"));
    // The start of the 21st, plus four hours to catch up on it.
    now = at("2026-11-22T00:00:00Z");
    EXPECT_EQ(state(), HealthState::Safe);
    ++now;
    EXPECT_EQ(state(), HealthState::Overdue);
    EXPECT_EQ(judged().reason, HealthReason::missedStart);
    // A backup at exactly the start counts for it.
    backedUpAt(at("2026-11-21T20:00:00Z"));
    EXPECT_EQ(state(), HealthState::Safe);
    backedUpAt(at("2026-11-21T19:59:59Z"));
    EXPECT_EQ(state(), HealthState::Overdue);
}

TEST_F(SetHealthTest, HoursOfASeriesAreJudgedByTheLongestPause) {
    const SchedulePlan office{{hourly(2, weekly(everyDay, 8), {18, 0, 0})}}; // pause of 14 hours
    use(office);
    now = at("2026-11-21T08:30:00Z");
    backedUpAt(at("2026-11-20T18:01:00Z"));
    EXPECT_EQ(state(), HealthState::Safe);
    now = at("2026-11-21T12:00:01Z");
    EXPECT_EQ(judged().reason, HealthReason::missedStart);
}

TEST_F(SetHealthTest, ASetWithoutAScheduleIsNeverOverdue) {
    backedUpAt(now - 1'000 * day);
    EXPECT_EQ(state(), HealthState::Overdue);
    facts.info.schedule_id = -1;
    EXPECT_EQ(state(), HealthState::Safe);
    EXPECT_TRUE(judged().isSettled);
    EXPECT_EQ(judged().nextStart, std::nullopt);
    facts.info.schedule_id = 1;
    facts.info.is_active = false;
    EXPECT_EQ(state(), HealthState::Safe);
}

TEST_F(SetHealthTest, AScheduleThatSaysNothingOfItsTimesMakesNothingOverdue) {
    const SchedulePlan silent;
    use(silent);
    backedUpAt(now - 1'000 * day);
    EXPECT_EQ(state(), HealthState::Safe);
}

TEST_F(SetHealthTest, UntilTheScheduleIsReadNothingIsSettled) {
    facts.plan = nullptr;
    facts.interval.reset();
    backedUpAt(now - 1'000 * day);
    EXPECT_EQ(state(), HealthState::Safe);
    EXPECT_FALSE(judged().isSettled);
    ++facts.info.last_backup;
    EXPECT_EQ(state(), HealthState::Failed);
    EXPECT_TRUE(judged().isSettled);
}

TEST_F(SetHealthTest, AnActivityHidesTheStateButNotTheNeed) {
    facts.isRunning = true;
    EXPECT_EQ(state(), HealthState::Running);
    EXPECT_FALSE(insight::needsAttention(judged()));
    facts.info.in_sync = false;
    EXPECT_EQ(state(), HealthState::Running);
    EXPECT_EQ(judged().beneath, HealthState::NotInSync);
    EXPECT_TRUE(insight::needsAttention(judged()));
}

TEST(HealthOrder, WorstFirst) {
    const auto health = [](HealthState state) {
        SetHealth made;
        made.state = made.beneath = state;
        return made;
    };
    const HealthState order[] = {HealthState::NeverBackedUp, HealthState::Failed,
                                 HealthState::Overdue,       HealthState::NotInSync,
                                 HealthState::Recovered,     HealthState::Running,
                                 HealthState::Safe};
    for (std::size_t i = 1; i < std::size(order); ++i) {
        EXPECT_TRUE(insight::isWorse(health(order[i - 1]), health(order[i])));
        EXPECT_FALSE(insight::isWorse(health(order[i]), health(order[i - 1])));
    }
    EXPECT_FALSE(insight::isWorse(health(HealthState::Safe), health(HealthState::Safe)));
}

TEST(HealthOrder, CountsWhatNeedsAttentionAndWhatIsOpen) {
    SetHealth safe;
    SetHealth open;
    open.isSettled = false;
    SetHealth bad;
    bad.state = HealthState::Running;
    bad.beneath = HealthState::Failed;
    EXPECT_EQ(insight::countHealth({safe, open, bad, safe}), (insight::HealthCount{4, 1, 1}));
}

} // namespace
