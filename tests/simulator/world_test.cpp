// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "simulator/objects/failures.h"
#include "simulator/world/names.h"
#include "simulator/world/scenario.h"
#include "simulator/world/world.h"

using namespace simulator;
using hessiancln::ActivityType;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

constexpr std::int32_t never = 0;
constexpr std::int32_t farAway = 2'147'483'647;

class WorldTest : public ::testing::Test {
protected:
    World make(Scenario scenario, double speed = 1) {
        World world([this] { return now_; }, speed, 1);
        populate(world, scenario);
        return world;
    }

    void pass(World& world, Milliseconds time) {
        now_ += time;
        world.advance();
    }

    Milliseconds now_ = 1'700'049'600'000;
};

TEST_F(WorldTest, IsTheSameForTheSameClockAndSeed) {
    const World one = make(Scenario::Default);
    const World other = make(Scenario::Default);
    const auto rows = one.activityLog(never, farAway);
    const auto otherRows = other.activityLog(never, farAway);
    ASSERT_EQ(rows.size(), otherRows.size());
    ASSERT_GT(rows.size(), 100u);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i]->start_time, otherRows[i]->start_time);
        EXPECT_EQ(rows[i]->data_size, otherRows[i]->data_size);
    }
}

TEST_F(WorldTest, HasALogInOrderThatEndsInThePast) {
    const World world = make(Scenario::Default);
    std::int32_t last = 0;
    for (const auto* line : world.activityLog(never, farAway)) {
        const auto& row = *line;
        EXPECT_GE(row.start_time, last);
        EXPECT_LT(row.end_time, seconds(now_));
        EXPECT_GE(row.end_time, row.start_time);
        last = row.start_time;
    }
    EXPECT_THAT(world.activityLog(seconds(now_) - 86'400, seconds(now_)),
                ::testing::Not(IsEmpty()));
}

TEST_F(WorldTest, FindsTheRowsThatTouchASpan) {
    World world([this] { return now_; }, 1, 1);
    hessiancln::activity_log_info row;
    row.start_time = 100;
    row.end_time = 200;
    world.addToLog(row);
    EXPECT_THAT(world.activityLog(0, 99), IsEmpty());
    EXPECT_THAT(world.activityLog(0, 100), SizeIs(1));
    EXPECT_THAT(world.activityLog(150, 160), SizeIs(1));
    EXPECT_THAT(world.activityLog(200, 300), SizeIs(1));
    EXPECT_THAT(world.activityLog(201, 300), IsEmpty());
}

TEST_F(WorldTest, LetsAnActivityProgressAndEndInTheLog) {
    World world = make(Scenario::Empty);
    const auto set = world.addSet({});
    ActivityPlan plan = world.backupOf(set, "anna");
    plan.files = 1'000;
    plan.bytes = 4'000'000;
    plan.duration = 100'000;
    const std::int32_t id = world.start(plan);

    auto info = world.running().at(0);
    EXPECT_EQ(info.activity_id, id);
    EXPECT_EQ(info.files_processed, 0);
    EXPECT_EQ(info.files_left, 1'000);
    EXPECT_EQ(info.status_msg, "Connecting to the storage server");

    pass(world, 5'000);
    EXPECT_EQ(world.running().at(0).status_msg, "Scanning the source");

    // Data starts to move after 8 % of the time; half of the rest is at 54 %.
    pass(world, 49'000);
    info = world.running().at(0);
    EXPECT_EQ(info.files_processed, 500);
    EXPECT_EQ(info.size_processed, 2'000'000);
    EXPECT_EQ(info.size_left, 2'000'000);
    EXPECT_FALSE(info.finished);
    EXPECT_THAT(world.activityLog(never, farAway), IsEmpty());

    pass(world, 46'000);
    EXPECT_THAT(world.running(), IsEmpty());
    const auto& row = *world.activityLog(never, farAway).at(0);
    EXPECT_EQ(row.id, id);
    EXPECT_EQ(row.type, ActivityType::Backup);
    EXPECT_EQ(row.end_time - row.start_time, 100);
    EXPECT_EQ(row.file_count, 1'000);
    EXPECT_EQ(row.data_size, 4'000'000);
    EXPECT_EQ(static_cast<std::int32_t>(row.completion), 0);
    EXPECT_EQ(set->info.online_file_count, 1'000);
    EXPECT_EQ(set->info.last_successful_backup, row.end_time);
    EXPECT_THAT(set->sessions, SizeIs(1));
}

TEST_F(WorldTest, EndsAnActivityAtItsOwnTimeHoweverLateOneLooks) {
    World world = make(Scenario::Empty);
    ActivityPlan plan;
    plan.duration = 10'000;
    world.start(plan);
    pass(world, 3'600'000);
    const auto& row = *world.activityLog(never, farAway).at(0);
    EXPECT_EQ(row.end_time - row.start_time, 10);
}

TEST_F(WorldTest, RunsFasterOnRequest) {
    World world = make(Scenario::Empty, 10);
    ActivityPlan plan;
    plan.duration = 100'000;
    world.start(plan);
    pass(world, 9'999);
    EXPECT_THAT(world.running(), SizeIs(1));
    pass(world, 1);
    EXPECT_THAT(world.running(), IsEmpty());
}

TEST_F(WorldTest, StopsAnActivity) {
    World world = make(Scenario::Empty);
    const auto set = world.addSet({});
    const std::int32_t id = world.start(world.backupOf(set, "anna"));
    pass(world, 2'000);
    EXPECT_TRUE(world.stop(id));
    EXPECT_FALSE(world.stop(id));
    const auto& row = *world.activityLog(never, farAway).at(0);
    EXPECT_EQ(row.end_time, seconds(now_));
    EXPECT_EQ(static_cast<std::int32_t>(row.completion), 3);
    EXPECT_EQ(set->info.last_backup, seconds(now_));
    EXPECT_EQ(set->info.last_successful_backup, never);
}

TEST_F(WorldTest, BringsASetBackInSync) {
    World world = make(Scenario::Empty);
    const auto set = world.addSet({});
    const std::int32_t id = world.start(world.synchronisationOf(set, "anna"));
    pass(world, 120'000);
    EXPECT_FALSE(world.isRunning(id));
    EXPECT_TRUE(set->info.in_sync);
    EXPECT_EQ(set->info.last_sync_time, world.activityLog(never, farAway).at(0)->end_time);
}

TEST_F(WorldTest, RemovesASetWhenItsRemovalHasEnded) {
    World world = make(Scenario::Empty);
    const auto set = world.addSet({});
    world.start(world.removalOf(set, "anna"));
    EXPECT_THAT(world.sets(), SizeIs(1));
    pass(world, 60'000);
    EXPECT_THAT(world.sets(), IsEmpty());
}

TEST_F(WorldTest, ReportsTheEventsOfAnActivityAndOfASpan) {
    World world = make(Scenario::Empty);
    ActivityPlan plan;
    plan.duration = 10'000;
    plan.errors = 1;
    const std::int32_t id = world.start(plan);
    world.start(plan);
    pass(world, 10'000);
    EXPECT_THAT(world.eventLog(0, 0, id), SizeIs(3));
    EXPECT_THAT(world.eventLog(seconds(now_), seconds(now_), 0), SizeIs(4));
    EXPECT_THAT(world.eventLog(0, seconds(now_) - 11, 0), IsEmpty());
}

TEST_F(WorldTest, FindsTheLastActivityOfAType) {
    const World world = make(Scenario::Default);
    const auto& set = world.sets().front();
    const auto last = world.lastActivity(set->info.id, ActivityType::Backup);
    EXPECT_EQ(last.end_time, set->info.last_backup);
    EXPECT_EQ(world.lastActivity(set->info.id, ActivityType::Validation).start_time, never);
}

TEST_F(WorldTest, StartsABackupNowAndThen) {
    World world = make(Scenario::Default);
    EXPECT_THAT(world.running(), SizeIs(1));
    pass(world, 15 * 60 * 1000);
    ASSERT_THAT(world.running(), SizeIs(1));
    EXPECT_EQ(world.running().at(0).start_time, seconds(now_));
}

TEST_F(WorldTest, DefaultShowsEachLookOfASet) {
    const World world = make(Scenario::Default);
    EXPECT_EQ(world.clientType, 8);
    const auto any = [&world](auto test) {
        return std::any_of(world.sets().begin(), world.sets().end(),
                           [&test](const auto& set) { return test(set->info); });
    };
    using Info = hessiancln::backup_set_info;
    EXPECT_TRUE(any([](const Info& info) { return info.in_sync && info.has_items; }));
    EXPECT_TRUE(any([](const Info& info) { return info.in_sync && !info.has_items; }));
    EXPECT_TRUE(any([](const Info& info) { return !info.in_sync; }));
    EXPECT_TRUE(any([](const Info& info) { return info.last_backup == never; }));
    EXPECT_TRUE(any(
        [](const Info& info) { return info.data_type != hessiancln::BackupDataType::FileSystem; }));
    EXPECT_FALSE(any([](const Info& info) { return info.is_created_by_policy; }));
}

std::string reported(const World& world, const std::string& name) {
    for (const auto& row : world.about)
        if (row.name == name)
            return row.value;
    return "nothing";
}

TEST_F(WorldTest, CentralComesFromAPolicy) {
    const World world = make(Scenario::Central);
    EXPECT_EQ(reported(world, "Centrally Managed Backup Policy"), "Yes");
    EXPECT_TRUE(world.sets().front()->info.is_created_by_policy);
    EXPECT_EQ(reported(make(Scenario::Default), "Centrally Managed Backup Policy"), "No");
}

TEST_F(WorldTest, NotebookIsOfItsKind) {
    EXPECT_EQ(make(Scenario::Notebook).clientType, 14);
}

TEST_F(WorldTest, FirstRunIsNotConfigured) {
    const World world = make(Scenario::FirstRun);
    EXPECT_EQ(reported(world, "InitialClient"), "Yes");
    EXPECT_EQ(world.customer.country_code, 0);
    EXPECT_EQ(reported(make(Scenario::Empty), "InitialClient"), "No");
}

TEST_F(WorldTest, EmptyHoldsNothing) {
    const World world = make(Scenario::Empty);
    EXPECT_THAT(world.sets(), IsEmpty());
    EXPECT_THAT(world.running(), IsEmpty());
    EXPECT_THAT(world.activityLog(never, farAway), IsEmpty());
}

TEST_F(WorldTest, UnixHasItsPathsAndSystem) {
    const World world = make(Scenario::Unix);
    EXPECT_NE(world.system, hessiancln::ClientOSType::Windows);
    EXPECT_THAT(reported(world, "Operating System"), ::testing::HasSubstr("Linux"));
    EXPECT_EQ(world.sets().front()->items.front().folder, "/\\home");
}

TEST_F(WorldTest, LargeIsLarge) {
    const World world = make(Scenario::Large);
    EXPECT_THAT(world.sets(), SizeIs(2'000));
    EXPECT_THAT(world.activityLog(never, farAway), SizeIs(100'000));
}

TEST(FolderTree, MakesWhatIsMissingAbove) {
    FolderTree tree;
    tree.addFile("C:\\a\\b.txt", 7);
    EXPECT_EQ(tree.list("").at(0).type, FolderTree::Type::Drive);
    EXPECT_EQ(tree.list("C:").at(0).type, FolderTree::Type::Folder);
    EXPECT_EQ(tree.list("C:\\a\\").at(0).datasize, 7);
}

TEST(FolderTree, ClosesAFolderWithAllBelowIt) {
    FolderTree tree;
    tree.addFolder("C:\\a\\b");
    tree.deny("C:\\a", "No.");
    EXPECT_THAT(tree.list("C:"), SizeIs(1));
    EXPECT_THROW(tree.list("C:\\a"), Refusal);
    EXPECT_THROW(tree.list("C:\\a\\b"), Refusal);
}

TEST(FolderTree, FillsAFolderWithDifferentNamesInNoOrder) {
    FolderTree tree;
    tree.fill("D:\\Scans", 100'000);
    const auto items = tree.list("D:\\Scans");
    ASSERT_THAT(items, SizeIs(100'000));
    std::set<std::string> names;
    for (const auto& item : items)
        names.insert(lowerCase(item.name));
    EXPECT_THAT(names, SizeIs(100'000));
    EXPECT_FALSE(std::is_sorted(items.begin(), items.end(),
                                [](const auto& a, const auto& b) { return a.name < b.name; }));
    const auto folders =
        std::count_if(items.begin(), items.end(), [](const auto& item) { return !item.isfile; });
    EXPECT_EQ(folders, 10'000);
    EXPECT_EQ(tree.list("D:\\Scans").back().name, items.back().name);
    EXPECT_THAT(tree.list("D:\\Scans\\" + items.front().name), IsEmpty());
    EXPECT_THROW(tree.list("D:\\Scans\\" + items.at(1).name), Refusal);
}

TEST(Names, AreJoinedWithBackslashes) {
    EXPECT_THAT(namesOf("C:\\a\\b\\"), ::testing::ElementsAre("C:", "a", "b"));
    EXPECT_THAT(namesOf("/\\home"), ::testing::ElementsAre("/", "home"));
    EXPECT_THAT(namesOf(""), IsEmpty());
    EXPECT_EQ(lastName("a\\b\\c"), "c");
    EXPECT_EQ(nativePath("/\\home\\anna"), "/home/anna");
    EXPECT_EQ(nativePath("C:\\Users"), "C:\\Users");
}

TEST_F(WorldTest, SetsShareSchedulesAndRules) {
    World world = make(Scenario::Default);
    const auto& first = *world.sets().at(0);
    const auto& second = *world.sets().at(1);
    world.schedules.find(first.info.schedule_id)->name = "Late";
    world.retentionRules.find(first.info.retention_rule_id)->name = "Long";
    EXPECT_EQ(world.infoOf(second).schedule_name, "Late");
    EXPECT_EQ(world.infoOf(second).retention_rule_name, "Long");
    EXPECT_EQ(world.scheduleTypeOf(second), hessiancln::ScheduleDetailType::Weekly);
    EXPECT_EQ(world.scheduleTypeOf(*world.sets().at(3)), hessiancln::ScheduleDetailType::Monthly);
    EXPECT_EQ(static_cast<std::int32_t>(world.scheduleTypeOf({})), 4);
}

} // namespace
