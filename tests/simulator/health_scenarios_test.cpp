// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/health_scenarios.h"

#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::Scenario;
using simulator::StoredNode;
using simulator::World;

namespace {

constexpr std::int64_t day = 86'400;

class HealthScenarios : public AgentTest {
protected:
    template <class Look>
    void at(Scenario scenario, Look look) {
        start({.scenario = scenario});
        agent_->withWorld([&](World& world) { look(world); });
    }
    static hessiancln::backup_set_info named(const World& world, std::string_view name) {
        return world.setNamed(std::string(name))->info;
    }
    std::int64_t ago(std::int32_t time) const { return now_.load() / 1'000 - time; }
};

TEST_F(HealthScenarios, Overdue) {
    at(Scenario::Overdue, [this](World& world) {
        const auto missed = named(world, simulator::health::missed);
        EXPECT_EQ(ago(missed.last_backup), 28 * 3'600);
        EXPECT_EQ(ago(named(world, simulator::health::old).last_successful_backup), 3 * day);
        const auto unscheduled = named(world, simulator::health::unscheduled);
        EXPECT_LT(unscheduled.schedule_id, 0);
        EXPECT_EQ(ago(unscheduled.last_successful_backup), 400 * day);
        // The start was five hours before noon.
        const auto schedule = world.schedules.find(missed.schedule_id);
        ASSERT_TRUE(schedule);
        EXPECT_EQ(schedule->details.at(0)->start.hour, 7);
    });
}

TEST_F(HealthScenarios, Failed) {
    at(Scenario::Failed, [](World& world) {
        const auto withErrors = named(world, simulator::health::withErrors);
        const auto row = world.lastActivity(withErrors.id, hessiancln::ActivityType::Backup);
        EXPECT_EQ(row.errors, 3);
        EXPECT_EQ(row.warnings, 1);
        EXPECT_GE(world.eventLog(0, 0, row.id).size(), 3u);
        const auto lost = named(world, simulator::health::unsuccessful);
        EXPECT_GT(lost.last_backup, lost.last_successful_backup);
    });
}

TEST_F(HealthScenarios, AStalledBackupStandsStillAndTheOtherMoves) {
    const auto done = [](const World& world, std::string_view name) {
        for (const auto& activity : world.running())
            if (activity.set_id == named(world, name).id)
                return activity.size_processed;
        return std::int64_t{-1};
    };
    at(Scenario::Stalled, [&](World& world) {
        now_ += 600'000;
        const auto stalled = done(world, simulator::health::stalled);
        const auto moving = done(world, simulator::health::moving);
        EXPECT_GT(stalled, 0);
        now_ += 600'000;
        EXPECT_EQ(done(world, simulator::health::stalled), stalled);
        EXPECT_GT(done(world, simulator::health::moving), moving);
    });
}

TEST_F(HealthScenarios, OverlappingHasSchedulesOfAllKinds) {
    at(Scenario::Overlapping, [](World& world) {
        bool monthly = false;
        bool hourly = false;
        bool acrossMidnight = false;
        for (const auto& set : world.sets()) {
            const auto detail = world.schedules.find(set->info.schedule_id)->details.at(0);
            monthly |= detail->type == hessiancln::ScheduleDetailType::Monthly;
            hourly |= detail->hourlyFrequency > 0;
            acrossMidnight |= detail->end && detail->end->hour > 24;
        }
        EXPECT_TRUE(monthly && hourly && acrossMidnight);
    });
}

std::size_t count(const StoredNode& node, bool files) {
    std::size_t sum = 0;
    for (const auto& child : node.children)
        sum += (child->isFile == files ? 1 : 0) + count(*child, files);
    return sum;
}

TEST_F(HealthScenarios, ManyFolders) {
    at(Scenario::ManyFolders, [](World& world) {
        const StoredNode& root = world.sets().at(0)->stored->root();
        EXPECT_EQ(count(root, true), simulator::health::files);
        // The set's drive and folder contain them.
        EXPECT_EQ(count(root, false), simulator::health::folders + 2);
    });
}

} // namespace
