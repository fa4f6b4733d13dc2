// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/checkable_node.h"

#include <gtest/gtest.h>

#include "tests/models/test_node.h"

namespace {

using namespace models;
using tree::at;
using tree::file;
using tree::folder;
using tree::root;
using tree::State;
using tree::states;
using tree::unopened;

constexpr auto no = State::Unchecked;
constexpr auto partly = State::Partly;
constexpr auto yes = State::Checked;
constexpr auto excluded = State::Excluded;

/// Records, in order, the names of the nodes that a change is reported for.
class Notified {
public:
    CheckListener listener() {
        return [this](const CheckableNode& node) { names_ += node.name() + ' '; };
    }
    const std::string& names() const { return names_; }

private:
    std::string names_;
};

void check(TestNode& node, bool value) {
    setChecked(node, value, [](CheckableNode&) {});
}

TEST(CheckableNodeTest, ACheckGoesDownToAllThatIsLoaded) {
    const auto tree =
        root(no, {folder("C:", no, {folder("d", no, {file("x"), unopened("u")}), file("e")})});
    check(at(*tree, "C:"), true);
    EXPECT_EQ(states(*tree), "2 C:2 d2 x2 u2 e2");
    EXPECT_EQ(at(*tree, "C:/d/u").asked, 0);
}

TEST(CheckableNodeTest, ACheckFetchesNothing) {
    const auto tree = root(no, {unopened("C:", no, {file("a")})});
    check(at(*tree, "C:"), true);
    check(at(*tree, "C:"), false);
    EXPECT_EQ(at(*tree, "C:").asked, 0);
}

TEST(CheckableNodeTest, OneOfTwoChildrenChecksTheFolderPartly) {
    const auto tree = root(no, {folder("C:", no, {file("a"), file("b")}), folder("D:", no)});
    check(at(*tree, "C:/a"), true);
    EXPECT_EQ(states(*tree), "1 C:1 a2 b0 D:0");
    check(at(*tree, "C:/b"), true);
    EXPECT_EQ(states(*tree), "1 C:2 a2 b2 D:0");
}

TEST(CheckableNodeTest, UncheckingAChildOfACheckedFolderExcludesIt) {
    const auto tree =
        root(yes, {folder("C:", yes, {folder("d", yes, {file("x", yes)}), file("e", yes)})});
    check(at(*tree, "C:/d"), false);
    EXPECT_EQ(states(*tree), "2 C:2 d3 x3 e2");
}

TEST(CheckableNodeTest, AnExclusionDoesNotNotifyTheNodesAbove) {
    const auto tree = root(yes, {folder("C:", yes, {file("a", yes)})});
    Notified notified;
    setChecked(at(*tree, "C:/a"), false, notified.listener());
    EXPECT_EQ(notified.names(), "a ");
    EXPECT_EQ(states(*tree), "2 C:2 a3");
}

TEST(CheckableNodeTest, UncheckingAChildOfAPartlyCheckedFolderUnchecksIt) {
    const auto tree =
        root(partly, {folder("C:", partly, {file("a", yes), file("b", yes), file("c")})});
    check(at(*tree, "C:/a"), false);
    EXPECT_EQ(states(*tree), "1 C:1 a0 b2 c0");
}

TEST(CheckableNodeTest, UncheckingADriveNeverExcludesIt) {
    const auto tree = root(yes, {folder("C:", yes, {file("a", yes)})});
    check(at(*tree, "C:"), false);
    EXPECT_EQ(states(*tree), "0 C:0 a0");
}

TEST(CheckableNodeTest, ADriveOfACheckedComputerIsUncheckedToo) {
    const auto tree = root(yes, {folder("C:", yes), folder("D:", yes)});
    check(at(*tree, "C:"), false);
    EXPECT_EQ(states(*tree), "1 C:0 D:2");
}

TEST(CheckableNodeTest, UncheckingBelowAnExcludedFolderExcludes) {
    const auto tree = root(yes, {folder("C:", yes, {folder("d", excluded, {file("x", yes)})})});
    check(at(*tree, "C:/d/x"), false);
    EXPECT_EQ(states(*tree), "2 C:2 d3 x3");
}

TEST(CheckableNodeTest, CheckingAnExcludedItemAgainRecomputesItsParents) {
    const auto tree =
        root(partly, {folder("C:", partly, {folder("d", yes, {file("x", excluded)}), file("e")})});
    at(*tree, "C:/d").setCheckState(partly); // so that there is something to correct
    check(at(*tree, "C:/d/x"), true);
    EXPECT_EQ(states(*tree), "1 C:1 d2 x2 e0");
}

TEST(CheckableNodeTest, UncheckingTheLastCheckedChildUnchecksThePartlyCheckedFolder) {
    const auto tree = root(partly, {folder("C:", partly, {file("a", yes), file("b")})});
    check(at(*tree, "C:/a"), false);
    EXPECT_EQ(states(*tree), "0 C:0 a0 b0");
}

TEST(CheckableNodeTest, EachNodeIsNotifiedOnceParentsFirstThenTheAncestorsThatChange) {
    const auto tree = root(
        partly,
        {folder("C:", partly, {folder("d", no, {file("x"), file("y", yes)}), file("e", yes)})});
    Notified notified;
    setChecked(at(*tree, "C:/d"), true, notified.listener());
    EXPECT_EQ(notified.names(), "d x y C:  "); // the root has no name
    Notified again;
    setChecked(at(*tree, "C:/d"), true, again.listener());
    EXPECT_EQ(again.names(), "d x y ");
}

TEST(CheckableNodeTest, TheChildrenOfSomethingTakenOutFollowIt) {
    const auto tree =
        root(yes, {folder("C:", yes, {folder("d", yes, {folder("f", yes, {file("x", yes)})})})});
    check(at(*tree, "C:/d"), false);
    EXPECT_EQ(states(*tree), "2 C:2 d3 f3 x3");
    check(at(*tree, "C:"), false);
    EXPECT_EQ(states(*tree), "0 C:0 d0 f0 x0");
}

/// The state of a node after its recomputation, and the reported nodes.
struct Recomputed {
    State state;
    std::string notified;
    bool operator==(const Recomputed&) const = default;
};

Recomputed recomputed(const tree::Plan& plan) {
    const auto node = tree::make(plan);
    Notified notified;
    recompute(*node, notified.listener());
    return {node->checkState(), notified.names()};
}

TEST(RecomputeTest, AFileOrAnUnopenedFolderKeepsAWholeState) {
    EXPECT_EQ(recomputed(file("a", no)), (Recomputed{no, ""}));
    EXPECT_EQ(recomputed(file("a", yes)), (Recomputed{yes, ""}));
    EXPECT_EQ(recomputed(unopened("d", no)), (Recomputed{no, ""}));
    EXPECT_EQ(recomputed(unopened("d", yes)), (Recomputed{yes, ""}));
}

TEST(RecomputeTest, AnExcludedFileOrUnopenedFolderCountsAsSelected) {
    EXPECT_EQ(recomputed(file("a", excluded)), (Recomputed{yes, "a "}));
    EXPECT_EQ(recomputed(unopened("d", excluded)), (Recomputed{yes, "d "}));
}

TEST(RecomputeTest, APartialMarkOfAnUnopenedFolderSaysNothing) {
    EXPECT_EQ(recomputed(unopened("d", partly)), (Recomputed{no, "d "}));
    EXPECT_EQ(recomputed(file("a", partly)), (Recomputed{no, "a "}));
}

TEST(RecomputeTest, AnEmptyFolderIsUnchecked) {
    EXPECT_EQ(recomputed(folder("d", yes)), (Recomputed{no, "d "}));
    EXPECT_EQ(recomputed(folder("d", excluded)), (Recomputed{no, "d "}));
    EXPECT_EQ(recomputed(folder("d", no)), (Recomputed{no, ""}));
}

TEST(RecomputeTest, AFolderTakesItsStateFromItsChildren) {
    const auto of = [](std::vector<tree::Plan> children) {
        return recomputed(folder("d", no, std::move(children))).state;
    };
    EXPECT_EQ(of({file("a"), file("b")}), no);
    EXPECT_EQ(of({file("a", yes), file("b", yes)}), yes);
    EXPECT_EQ(of({file("a", yes), file("b")}), partly);
    EXPECT_EQ(of({file("a"), file("b", yes)}), partly);
    EXPECT_EQ(of({folder("a", partly), file("b", yes)}), partly);
    EXPECT_EQ(of({folder("a", partly)}), partly);
    EXPECT_EQ(of({file("a", excluded), file("b", yes)}), yes);
    EXPECT_EQ(of({file("a", excluded)}), yes);
    EXPECT_EQ(of({file("a", excluded), file("b")}), partly);
}

TEST(RecomputeTest, OnlyAChangeNotifies) {
    EXPECT_EQ(recomputed(folder("d", partly, {file("a", yes), file("b")})),
              (Recomputed{partly, ""}));
    EXPECT_EQ(recomputed(folder("d", yes, {file("a", yes), file("b")})),
              (Recomputed{partly, "d "}));
}

TEST(RecomputeTest, AncestorsAreRecomputedUpToTheRoot) {
    const auto tree = root(no, {folder("C:", no, {folder("d", no, {file("x", yes)})})});
    Notified notified;
    recomputeAncestors(at(*tree, "C:/d/x"), notified.listener());
    EXPECT_EQ(notified.names(), "d C:  ");
    EXPECT_EQ(states(*tree), "2 C:2 d2 x2");
}

/// A tree of a kind without exclusions.
class PlainNode final : public CheckableNode {
public:
    const std::string& name() const override { return name_; }
    bool isLeaf() const override { return false; }

private:
    Children askForChildren() override {
        Children children;
        for (int i = 0; i < 2; ++i) {
            children.push_back(std::make_unique<PlainNode>());
            static_cast<PlainNode&>(*children.back()).setCheckState(checkState());
        }
        return children;
    }
    std::string name_;
};

TEST(CheckableNodeTest, WithoutExclusionsAnItemTakenOutUnchecksPartly) {
    PlainNode tree;
    setChecked(tree, true, [](CheckableNode&) {});
    tree.fetch();
    tree.children()[0]->fetch();
    auto& item = static_cast<CheckableNode&>(*tree.children()[0]->children()[1]);
    setChecked(item, false, [](CheckableNode&) {});
    EXPECT_EQ(states(tree), "1 1 2 0 2");
}

TEST(CheckableNodeTest, ADeepTreeTakesNoStack) {
    TestNode top("");
    LazyNode* deepest = &top;
    for (int i = 0; i < 200000; ++i) {
        LazyNode::Children one;
        one.push_back(std::make_unique<TestNode>("a"));
        deepest->fetch();
        deepest->adopt(std::move(one));
        deepest = deepest->children().front().get();
    }
    check(static_cast<TestNode&>(*deepest), true);
    EXPECT_EQ(top.checkState(), yes);
    check(top, false);
    EXPECT_EQ(static_cast<TestNode&>(*deepest).checkState(), no);
}

} // namespace
