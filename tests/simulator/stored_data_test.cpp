// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/stored_data.h"

#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::StoredData;
using simulator::StoredFilter;
using simulator::StoredNode;
using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

std::vector<std::int32_t> times(const std::vector<simulator::StoredGeneration>& generations) {
    std::vector<std::int32_t> list;
    for (const auto& one : generations)
        list.push_back(one.backup_time);
    return list;
}

std::vector<simulator::StoredGeneration> backedUpAt(std::initializer_list<std::int32_t> list) {
    std::vector<simulator::StoredGeneration> generations;
    for (const std::int32_t time : list)
        generations.push_back({time - 1, time, 100, 50});
    return generations;
}

TEST(StoredFilterTest, BothEndsOfTheSpanAreIncluded) {
    StoredNode file;
    file.isFile = true;
    file.generations = backedUpAt({10, 20, 30});
    EXPECT_THAT(times(StoredFilter{}.generationsOf(file)), ElementsAre(10, 20, 30));
    EXPECT_THAT(times(StoredFilter{20, 30}.generationsOf(file)), ElementsAre(20, 30));
    EXPECT_THAT(times(StoredFilter{0, 29}.generationsOf(file)), ElementsAre(10, 20));
    EXPECT_FALSE((StoredFilter{31, 0}.shows(file)));
}

TEST(StoredFilterTest, TheLastGenerationsAreKept) {
    StoredNode file;
    file.isFile = true;
    file.generations = backedUpAt({10, 20, 30});
    StoredFilter filter;
    filter.keepLast = 2;
    EXPECT_THAT(times(filter.generationsOf(file)), ElementsAre(10));
    filter.keepLast = 3;
    EXPECT_FALSE(filter.shows(file));
}

TEST(StoredFilterTest, FilesThatAreGone) {
    StoredNode here, gone;
    here.isFile = gone.isFile = true;
    here.generations = gone.generations = backedUpAt({10});
    gone.removed = 50;
    StoredFilter since, before;
    since.removedSince = before.removedBefore = 50;
    EXPECT_TRUE(since.shows(gone));
    EXPECT_FALSE(since.shows(here));
    EXPECT_FALSE(before.shows(gone));
    EXPECT_TRUE(before.shows(here));
    since.removedSince = 51;
    before.removedBefore = 49;
    EXPECT_FALSE(since.shows(gone));
    EXPECT_TRUE(before.shows(gone));
}

TEST(StoredFilterTest, AFolderIsShownForWhatItHolds) {
    StoredData data;
    data.addFile("C:\\a\\b.txt", backedUpAt({10}));
    data.addFolder("C:\\c");
    const StoredNode& drive = *data.root().children.front();
    EXPECT_TRUE(StoredFilter{}.shows(*drive.children[0]));
    EXPECT_FALSE(StoredFilter{}.shows(*drive.children[1]));
    EXPECT_FALSE((StoredFilter{11, 0}.shows(drive)));
    drive.children[1]->denied = "Keep out.";
    EXPECT_TRUE(StoredFilter{}.shows(*drive.children[1]));
}

TEST(StoredDataTest, WhatIsErasedTakesItsEmptyFoldersAlong) {
    StoredData data;
    data.addFile("C:\\a\\b.txt", backedUpAt({10, 20}));
    data.addFile("D:\\x.txt", backedUpAt({10}));
    const auto drive = data.root().children.front();
    StoredFilter older;
    older.to = 10;
    const auto amount = amountOf({drive}, older);
    EXPECT_EQ(amount.files, 1);
    EXPECT_EQ(amount.bytes, 100);
    erase(data, {drive}, older);
    EXPECT_THAT(times(drive->children[0]->children[0]->generations), ElementsAre(20));
    erase(data, {drive}, {});
    ASSERT_EQ(data.root().children.size(), 1U);
    EXPECT_EQ(data.root().children[0]->name, "D:");
}

/// The views of the set "Documents", which has two drives of stored data.
class Views : public AgentTest {
protected:
    void SetUp() override {
        start({});
        agent_->withWorld([](World& world) {
            auto& set = *world.set(1);
            set.info.online_file_count = 3;
            set.info.online_data_size = 400;
            set.stored = std::make_shared<StoredData>();
            set.stored->addFile("C:\\docs\\a.txt", backedUpAt({10, 20}));
            set.stored->addFile("C:\\b.txt", backedUpAt({10}));
            set.stored->addFolder("Group").isGroup = true;
            set.stored->addFile("Group\\Team\\c.txt", backedUpAt({20}));
        });
        logIn();
        set_ = setUrl(1);
    }

    std::string deleteView() {
        const auto no = raw::int32(0);
        return getFrom(set_, "prepare_delete", no + no + no + no + no);
    }
    std::string restoreView() {
        const auto no = raw::int32(0);
        return getFrom(set_, "prepare_restore", no + no + no);
    }
    static std::string item(std::int64_t id, std::string_view name, std::int32_t type, bool isFile,
                            bool selectable = true) {
        return raw::record("SelectableItem",
                           raw::member("id", raw::int64(id)) +
                               raw::member("name", raw::text(name)) +
                               raw::member("data_type", raw::int32(type)) +
                               raw::member("is_file", raw::boolean(isFile)) +
                               raw::member("is_selectable", raw::boolean(selectable)));
    }
    std::string subItems(const std::string& view, std::int64_t id) {
        return callOn(view, "getSubItems", raw::int64(id));
    }
    int files() {
        int count = 0;
        agent_->withWorld([&](World& world) { count = world.set(1)->info.online_file_count; });
        return count;
    }

    std::string set_;
};

TEST_F(Views, GiveIdsInTheOrderOfTheirListsAndGroupsNone) {
    const std::string view = deleteView();
    EXPECT_EQ(subItems(view, -1),
              raw::reply(raw::list({item(1, "C:", 0, false), item(0, "Group", 0, false, false)})));
    EXPECT_EQ(subItems(view, 1),
              raw::reply(raw::list({item(2, "docs", 1, false), item(3, "b.txt", 3, true)})));
    EXPECT_EQ(subItems(view, 0), raw::reply(raw::list({item(4, "Team", 1, false)})));
    // The same entry keeps its id.
    EXPECT_THAT(subItems(view, -1), HasSubstr(item(1, "C:", 0, false)));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Views, TellAllGenerationsOfAFileWithinTheFilter) {
    const auto no = raw::int32(0);
    const std::string view = getFrom(set_, "prepare_restore", raw::int32(15) + no + no);
    subItems(view, -1);
    EXPECT_EQ(subItems(view, 1), raw::reply(raw::list({item(2, "docs", 1, false)})));
    EXPECT_EQ(subItems(view, 2), raw::reply(raw::list({item(3, "a.txt", 3, true)})));
    const std::string generations = callOn(view, "getItemGenerations", raw::int64(3));
    EXPECT_THAT(generations, HasSubstr(raw::member("backup_time", raw::int32(20))));
    EXPECT_THAT(generations, HasSubstr(raw::member("backup_time", raw::int32(10))));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Views, RefuseWhatTheyHaveNot) {
    const std::string view = deleteView();
    agent_->withWorld(
        [](World& world) { world.set(1)->stored->addFolder("C:\\docs").denied = "Keep out."; });
    subItems(view, -1);
    subItems(view, 1);
    EXPECT_EQ(refusalOf(subItems(view, 2)), "Keep out.");
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Views, TakeNoGroupAndNoEmptyChoice) {
    const std::string view = deleteView();
    subItems(view, -1);
    callOn(view, "prepareDelete", raw::list({}));
    callOn(view, "prepareDelete", raw::list({raw::int64(0)}));
    EXPECT_THAT(agent_->violations(),
                ElementsAre(HasSubstr("nothing is chosen"), HasSubstr("0 can't be chosen")));
}

TEST_F(Views, ADeletionEndsInTheLogAndChangesTheFigures) {
    const std::string view = deleteView();
    subItems(view, -1);
    subItems(view, 1);
    const std::string ready = getFrom(view, "prepareDelete", raw::list({raw::int64(2)}));
    EXPECT_THAT(callOn(ready, "start"), HasSubstr("GenericActivity"));
    EXPECT_EQ(files(), 3);
    pass(3'600'000);
    call("running_activities");
    EXPECT_EQ(files(), 2);
    agent_->withWorld([](World& world) {
        const auto last = world.lastActivity(1, hessiancln::ActivityType::Delete);
        EXPECT_EQ(last.file_count, 1);
        EXPECT_EQ(last.data_size, 200);
        EXPECT_EQ(world.set(1)->info.online_data_size, 200);
    });
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Views, ASetOfWhichAllIsDeletedHoldsNothing) {
    const std::string view = deleteView();
    subItems(view, -1);
    subItems(view, 0);
    const std::string ready =
        getFrom(view, "prepareDelete", raw::list({raw::int64(1), raw::int64(2)}));
    callOn(ready, "start");
    pass(3'600'000);
    call("running_activities");
    EXPECT_EQ(files(), 0);
    EXPECT_EQ(subItems(deleteView(), -1), raw::reply(raw::list({})));
}

TEST_F(Views, OnlyFilesWithoutAnyGenerationLeftAreNoLongerCounted) {
    const auto no = raw::int32(0);
    const std::string view = getFrom(set_, "prepare_delete", no + raw::int32(10) + no + no + no);
    subItems(view, -1);
    callOn(getFrom(view, "prepareDelete", raw::list({raw::int64(1)})), "start");
    pass(3'600'000);
    call("running_activities");
    EXPECT_EQ(files(), 2);
    agent_->withWorld([](World& world) {
        const auto& set = *world.set(1);
        EXPECT_EQ(set.info.online_data_size, 200);
        EXPECT_EQ(set.leastGenerations, 1);
        EXPECT_EQ(set.mostGenerations, 1);
    });
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Views, AStoppedDeletionDeletesNothing) {
    const std::string view = deleteView();
    subItems(view, -1);
    const std::string ready = getFrom(view, "prepareDelete", raw::list({raw::int64(1)}));
    callOn(getFrom(ready, "start"), "Stop");
    EXPECT_EQ(files(), 3);
}

TEST_F(Views, ADeletionStartsOnce) {
    const std::string view = deleteView();
    subItems(view, -1);
    const std::string ready = getFrom(view, "prepareDelete", raw::list({raw::int64(1)}));
    callOn(ready, "start");
    callOn(ready, "start");
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("it has started already")));
}

TEST_F(Views, ADeletionNeedsTheCodeThatProtectsIt) {
    agent_->withWorld([](World& world) { world.twoFactor = true; });
    const std::string view = deleteView();
    subItems(view, -1);
    const std::string ready = getFrom(view, "prepareDelete", raw::list({raw::int64(1)}));
    EXPECT_EQ(refusalOf(callOn(ready, "start")), "A deletion needs an authentication code.");
    EXPECT_EQ(refusalOf(call("removeBackupSet", as("BackupSet", set_))),
              "A deletion needs an authentication code.");
    const std::string codes = get("getTFAManager");
    callOn(codes, "requestCode", raw::int32(2));
    callOn(codes, "validateCode", raw::text("314159") + raw::int32(2));
    EXPECT_THAT(callOn(ready, "start"), HasSubstr("GenericActivity"));
    // A code is valid for one deletion.
    EXPECT_EQ(refusalOf(call("removeBackupSet", as("BackupSet", set_))),
              "A deletion needs an authentication code.");
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Views, ASetThatHasGoneStartsNothing) {
    const std::string view = deleteView();
    subItems(view, -1);
    const std::string ready = getFrom(view, "prepareDelete", raw::list({raw::int64(1)}));
    agent_->withWorld([](World& world) { world.removeSet(1); });
    EXPECT_EQ(refusalOf(callOn(ready, "start")), "The backup set 'Documents' has gone.");
    EXPECT_EQ(refusalOf(call("removeBackupSet", as("BackupSet", set_))),
              "There is no such backup set to remove.");
}

TEST_F(Views, WhatWasDeletedMeanwhileCannotBeChosen) {
    const std::string early = deleteView();
    subItems(early, -1);
    callOn(getFrom(early, "prepareDelete", raw::list({raw::int64(1)})), "start");
    pass(3'600'000);
    call("running_activities");
    EXPECT_EQ(refusalOf(callOn(early, "prepareDelete", raw::list({raw::int64(1)}))),
              "Something that was chosen is no longer there.");
}

TEST_F(Views, TakeNothingTwiceAndNothingFromOtherViews) {
    agent_->withWorld([](World& world) { world.idsPerView = 1'000; });
    const std::string view = deleteView();
    EXPECT_THAT(subItems(view, -1), HasSubstr(item(1'001, "C:", 0, false)));
    subItems(view, 1'001);
    callOn(view, "prepareDelete", raw::list({raw::int64(1'001), raw::int64(1'001)}));
    callOn(view, "prepareDelete", raw::list({raw::int64(1'001), raw::int64(1'002)}));
    EXPECT_THAT(subItems(restoreView(), -1), HasSubstr(item(2'001, "C:", 0, false)));
    subItems(view, 2'001);
    EXPECT_THAT(agent_->violations(),
                ElementsAre(HasSubstr("the item 1001 is chosen twice"),
                            HasSubstr("'docs' lies in something that is chosen as well"),
                            HasSubstr("the view has no item with the id 2001")));
}

TEST_F(Views, TellTheGenerationsOfFilesOnlyAndInNoOrder) {
    const std::string view = restoreView();
    subItems(view, -1);
    subItems(view, 1);
    subItems(view, 2);
    callOn(view, "getItemGenerations", raw::int64(1));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("a folder is asked")));
    const std::string reply = callOn(view, "getItemGenerations", raw::int64(4));
    EXPECT_GT(reply.find(raw::member("backup_time", raw::int32(10))),
              reply.find(raw::member("backup_time", raw::int32(20))));
    agent_->withWorld([](World& world) {
        world.set(1)->stored->root().children[0]->children[0]->children[0]->denied = "Lost.";
    });
    EXPECT_EQ(refusalOf(callOn(view, "getItemGenerations", raw::int64(4))), "Lost.");
}

TEST_F(Views, RefuseTimesAndCountsBelowZero) {
    const auto no = raw::int32(0);
    callOn(set_, "prepare_restore", no + raw::int32(-1) + no);
    callOn(set_, "prepare_delete", no + no + no + raw::int32(-1) + no);
    EXPECT_THAT(agent_->violations(),
                ElementsAre(HasSubstr("at the time -1"), HasSubstr("counted back to -1")));
    EXPECT_EQ(refusalOf(callOn(set_, "prepare_delete", no + no + no + no + raw::int32(1))),
              "There is no way 1 to delete.");
}

TEST_F(Views, ABackupAddsAGenerationToWhatHasSeveral) {
    const std::string view = restoreView();
    agent_->withWorld([](World& world) {
        const auto set = world.set(1);
        world.start(world.backupOf(set, "anna"));
    });
    pass(3'600'000);
    call("running_activities");
    subItems(view, -1);
    subItems(view, 1);
    subItems(view, 2);
    agent_->withWorld([](World& world) {
        auto& drive = *world.set(1)->stored->root().children[0];
        EXPECT_EQ(drive.children[0]->children[0]->generations.size(), 3u);
        EXPECT_EQ(drive.children[1]->generations.size(), 1u);
    });
}

TEST_F(Views, AnInventedStorageReachesBackTwoYears) {
    const std::string view =
        getFrom(setUrl(4), "prepare_restore", raw::int32(0) + raw::int32(0) + raw::int32(0));
    EXPECT_THAT(subItems(view, -1), HasSubstr(raw::text("D:")));
    agent_->withWorld([](World& world) {
        const auto& sessions = world.set(4)->sessions;
        EXPECT_GT(sessions.back().end_time - sessions.front().end_time, 700 * 86'400);
    });
}

} // namespace
