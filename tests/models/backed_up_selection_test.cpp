// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/backed_up_selection.h"

#include <functional>

#include <boost/make_shared.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "models/backed_up_node.h"
#include "tests/support/viewing_agent.h"
#include "transport/invoke_exception.h"

namespace {

using namespace models;
using support::storedDrive;
using support::storedFile;
using support::storedFolder;
using support::ViewingAgent;
using testing::ElementsAre;
using testing::IsEmpty;

class BackedUpSelectionTest : public testing::Test {
protected:
    BackedUpSelectionTest() {
        agent_->items[-1] = {storedDrive(1, "C:"), storedDrive(2, "D:")};
        agent_->items[1] = {storedFolder(10, "users"), storedFile(11, "notes")};
        agent_->items[10] = {storedFile(100, "a"), storedFile(101, "b"), storedFile(102, "c")};
        agent_->items[2] = {storedFile(20, "x")};
    }

    /// The node at a slash-separated path of names; fetches each level on the way.
    BackedUpNode& at(const std::string& path) {
        LazyNode* node = &root_;
        for (std::size_t begin = 0; begin <= path.size();) {
            const std::size_t end = std::min(path.find('/', begin), path.size());
            node->fetch();
            const auto& children = node->children();
            const auto found =
                std::find_if(children.begin(), children.end(), [&](const auto& child) {
                    return child->name() == path.substr(begin, end - begin);
                });
            if (found == children.end())
                throw std::out_of_range(path);
            node = found->get();
            begin = end + 1;
        }
        return static_cast<BackedUpNode&>(*node);
    }
    void check(const std::string& path, bool value = true) {
        setChecked(at(path), value, [](CheckableNode&) {});
    }

    boost::shared_ptr<ViewingAgent> agent_ = boost::make_shared<ViewingAgent>();
    BackedUpNode root_{ViewingAgent::view(agent_)};
};

TEST_F(BackedUpSelectionTest, NothingIsSelectedAtFirst) {
    EXPECT_THAT(selectedIds(root_), IsEmpty());
    EXPECT_EQ(agent_->takeCalls(), "-1");
}

TEST_F(BackedUpSelectionTest, ARootIsNoItem) {
    EXPECT_EQ(root_.item().id, -1);
    EXPECT_EQ(root_.name(), "<ROOT>");
    EXPECT_EQ(root_.item().data_type, hessiancln::SelectableItemType{14});
    EXPECT_FALSE(root_.isLeaf());
}

TEST_F(BackedUpSelectionTest, AFolderThatWasNeverOpenedGoesByItsOwnId) {
    check("C:");
    agent_->takeCalls();
    EXPECT_THAT(selectedIds(root_), ElementsAre(1));
    EXPECT_EQ(agent_->takeCalls(), "");
}

TEST_F(BackedUpSelectionTest, AnUncheckedFileSendsItsSiblingsInPlaceOfTheFolder) {
    check("C:");
    check("C:/users/b", false);
    EXPECT_EQ(at("C:/users").checkState(), CheckState::Partly);
    EXPECT_EQ(at("C:").checkState(), CheckState::Partly);
    EXPECT_EQ(root_.checkState(), CheckState::Partly);
    // In tree order: "notes" comes before "users".
    EXPECT_THAT(selectedIds(root_), ElementsAre(11, 100, 102));
}

TEST_F(BackedUpSelectionTest, AWhollyCheckedFolderGoesOnlyByItsOwnId) {
    check("C:/users/a");
    check("C:/users/b");
    check("C:/users/c");
    EXPECT_THAT(selectedIds(root_), ElementsAre(10));
    check("C:/notes");
    EXPECT_THAT(selectedIds(root_), ElementsAre(1));
}

TEST_F(BackedUpSelectionTest, NothingBelowAnUncheckedItemIsLookedAt) {
    check("D:/x");
    agent_->takeCalls();
    EXPECT_THAT(selectedIds(root_), ElementsAre(2));
    EXPECT_EQ(agent_->takeCalls(), "");
}

TEST_F(BackedUpSelectionTest, ASingleTopLevelEntrySelectsAllThoughTheRootHasNoId) {
    agent_->items[-1] = {storedDrive(1, "C:")};
    check("C:");
    EXPECT_EQ(root_.checkState(), CheckState::Checked);
    EXPECT_THAT(selectedIds(root_), ElementsAre(1));
}

TEST_F(BackedUpSelectionTest, ACheckedGroupWithTheIdZeroGivesTheIdsOfItsChildren) {
    agent_->items[-1] = {storedFolder(0, "group"), storedDrive(1, "C:")};
    agent_->items[0] = {storedFolder(7, "p"), storedFile(8, "q")};
    check("group");
    agent_->takeCalls();
    EXPECT_THAT(selectedIds(root_), ElementsAre(7, 8));
    EXPECT_EQ(agent_->takeCalls(), "0");
}

TEST_F(BackedUpSelectionTest, AnUncheckedGroupIsFetchedAndGivesNothing) {
    agent_->items[-1] = {storedFolder(-5, "group"), storedDrive(1, "C:")};
    agent_->items[-5] = {storedFolder(7, "p")};
    check("C:");
    agent_->takeCalls();
    EXPECT_THAT(selectedIds(root_), ElementsAre(1));
    EXPECT_EQ(agent_->takeCalls(), "-5");
}

TEST_F(BackedUpSelectionTest, AGroupInAGroupIsLookedInto) {
    agent_->items[-1] = {storedFolder(0, "outer")};
    agent_->items[0] = {storedFolder(-2, "inner"), storedFile(3, "z")};
    agent_->items[-2] = {storedFile(4, "deep")};
    check("outer");
    check("outer/z", false);
    EXPECT_THAT(selectedIds(root_), ElementsAre(4));
}

TEST_F(BackedUpSelectionTest, AFailureReachesTheOneWhoCollects) {
    agent_->items[-1] = {storedFolder(0, "group")};
    check("group");
    EXPECT_THROW(selectedIds(root_), hessiancln::invoke_exception);
}

TEST_F(BackedUpSelectionTest, AFolderThatFailedStaysEmpty) {
    agent_->items.erase(10);
    EXPECT_THROW(at("C:/users/a"), hessiancln::invoke_exception);
    agent_->takeCalls();
    BackedUpNode& users = at("C:/users");
    users.fetch();
    EXPECT_TRUE(users.isFetched());
    EXPECT_TRUE(users.children().empty());
    EXPECT_EQ(agent_->takeCalls(), "");
}

TEST_F(BackedUpSelectionTest, AFetchedFolderWithoutChildrenLosesAMarkWhenItIsRecomputed) {
    agent_->items[10] = {};
    check("C:/users");
    at("C:/users").fetch();
    recompute(at("C:/users"), [](CheckableNode&) {});
    EXPECT_EQ(at("C:/users").checkState(), CheckState::Unchecked);
}

TEST_F(BackedUpSelectionTest, ALeafIsNeverFetched) {
    at("C:/notes").fetch();
    agent_->takeCalls();
    check("C:/notes");
    at("C:/notes").fetch();
    EXPECT_EQ(agent_->takeCalls(), "");
}

} // namespace
