// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/path_selection.h"

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

/// The selection as lines: "+C:\a -C:\a\b".
std::string selection(TestNode& top) {
    std::string lines;
    for (const PathItem& item : selectedPaths(top))
        lines += (lines.empty() ? "" : " ") + std::string(item.isExclusion ? "-" : "+") + item.path;
    return lines;
}

bool mark(TestNode& top, const std::string& path, bool isExclusion = false) {
    return markPath(top, {path, isExclusion}, [](CheckableNode&) {});
}

TEST(SelectedPathsTest, NothingIsSelected) {
    EXPECT_EQ(selection(*root(no, {folder("C:", no, {file("a")})})), "");
    EXPECT_EQ(selection(*root(no, {})), "");
}

TEST(SelectedPathsTest, AWhollyCheckedFolderIsOneLine) {
    const auto tree = root(yes, {folder("C:", yes, {folder("d", yes, {file("x", yes)})})});
    EXPECT_EQ(selection(*tree), "+C:");
}

TEST(SelectedPathsTest, WithinAPartlyCheckedFolderItsCheckedItemsAreLines) {
    const auto tree =
        root(partly,
             {folder("C:", partly,
                     {folder("d", partly, {file("x"), file("y", yes)}), file("e", yes), file("f")}),
              folder("D:", no), folder("E:", yes)});
    EXPECT_EQ(selection(*tree), "+C:\\d\\y +C:\\e +E:");
}

TEST(SelectedPathsTest, ExclusionsFollowTheFolderAroundThemAtAnyDepth) {
    const auto tree = root(
        yes, {folder("C:", yes,
                     {folder("d", yes, {folder("f", yes, {file("x", excluded), file("y", yes)})}),
                      folder("g", excluded, {file("z", excluded)})})});
    EXPECT_EQ(selection(*tree), "+C: -C:\\d\\f\\x -C:\\g");
}

TEST(SelectedPathsTest, NothingBelowAnExclusionIsALine) {
    const auto tree = root(
        yes, {folder("C:", yes, {folder("d", excluded, {file("x", yes), file("y", excluded)})})});
    EXPECT_EQ(selection(*tree), "+C: -C:\\d");
}

TEST(SelectedPathsTest, AnExclusionWithNothingSelectedAroundItIsNoLine) {
    const auto tree = root(partly, {folder("C:", partly, {file("a", excluded), file("b")})});
    EXPECT_EQ(selection(*tree), "");
}

TEST(SelectedPathsTest, AnExclusionIsFoundBelowAnUncheckedFolderOfASelectedOne) {
    const auto tree = root(yes, {folder("C:", yes, {folder("d", no, {file("x", excluded)})})});
    EXPECT_EQ(selection(*tree), "+C: -C:\\d\\x");
}

TEST(SelectedPathsTest, OnlyTheRootIsFetched) {
    const auto tree = tree::make(
        unopened("", partly, {unopened("C:", partly, {file("a", yes)}), unopened("D:", yes)}));
    EXPECT_EQ(selection(*tree), "+D:");
    EXPECT_EQ(tree->asked, 1);
    EXPECT_EQ(at(*tree, "C:").asked, 0);
    EXPECT_EQ(at(*tree, "D:").asked, 0);
}

TEST(SelectedPathsTest, TheStateOfTheRootDoesNotMatter) {
    EXPECT_EQ(selection(*root(no, {folder("C:", yes)})), "+C:");
    EXPECT_EQ(selection(*root(excluded, {folder("C:", yes)})), "+C:");
}

TEST(MarkPathTest, AFolderIsMarkedAndItsAncestorsAreRecomputed) {
    const auto tree =
        tree::make(unopened("", no, {unopened("C:", no, {unopened("d"), unopened("e")})}));
    EXPECT_TRUE(mark(*tree, "C:\\d"));
    EXPECT_EQ(states(*tree), "1 C:1 d2 e0");
}

TEST(MarkPathTest, AnExclusionLeavesItsAncestors) {
    const auto tree = root(yes, {folder("C:", yes, {file("a", yes)})});
    EXPECT_TRUE(mark(*tree, "C:\\a", true));
    EXPECT_EQ(states(*tree), "2 C:2 a3");
}

TEST(MarkPathTest, ExactlyTheFoldersOnThePathAreFetched) {
    const auto tree = tree::make(unopened(
        "", no,
        {unopened("C:", no, {unopened("d", no, {unopened("x")}), unopened("e")}), unopened("D:")}));
    EXPECT_TRUE(mark(*tree, "C:\\d\\x"));
    EXPECT_EQ(tree->asked, 1);
    EXPECT_EQ(at(*tree, "C:").asked, 1);
    EXPECT_EQ(at(*tree, "C:/d").asked, 1);
    EXPECT_EQ(at(*tree, "C:/d/x").asked, 0);
    EXPECT_EQ(at(*tree, "C:/e").asked, 0);
    EXPECT_EQ(at(*tree, "D:").asked, 0);
}

TEST(MarkPathTest, TheCaseOfADriveLetterDoesNotMatter) {
    const auto tree = root(no, {folder("C:", no, {file("Straße"), file("ÄRGER")})});
    EXPECT_TRUE(mark(*tree, "c:\\ärger"));
    EXPECT_EQ(at(*tree, "C:/ÄRGER").checkState(), yes);
    EXPECT_FALSE(mark(*tree, "c:\\strasse"));
}

TEST(MarkPathTest, APathThatNamesNothingChangesNothing) {
    const auto tree = root(partly, {folder("C:", partly, {file("a", yes), file("b")})});
    for (const char* path : {"C:\\c", "D:", "D:\\a", "C:\\a\\x", "\\C:", "C:\\\\a", "C", "C:x"})
        EXPECT_FALSE(mark(*tree, path)) << path;
    EXPECT_EQ(states(*tree), "1 C:1 a2 b0");
}

TEST(MarkPathTest, ABackslashAtTheEndIsOfNoConsequence) {
    const auto tree = root(no, {folder("C:", no, {unopened("d")})});
    EXPECT_TRUE(mark(*tree, "C:\\d\\"));
    EXPECT_EQ(states(*tree), "2 C:2 d2");
    EXPECT_EQ(at(*tree, "C:/d").asked, 0);
}

TEST(MarkPathTest, TheEmptyPathIsTheRootItself) {
    const auto tree = tree::make(unopened("", no, {file("a")}));
    EXPECT_TRUE(mark(*tree, ""));
    EXPECT_EQ(tree->checkState(), yes);
    EXPECT_TRUE(mark(*tree, "", true));
    EXPECT_EQ(tree->checkState(), excluded);
    EXPECT_EQ(tree->asked, 0);
}

TEST(MarkPathTest, NodesBelowStayAsTheyAre) {
    const auto tree = root(no, {folder("C:", no, {file("a"), file("b", yes)})});
    EXPECT_TRUE(mark(*tree, "C:"));
    EXPECT_EQ(states(*tree), "2 C:2 a0 b2");
}

TEST(MarkPathTest, TheAncestorsAreAnnouncedButNotTheNode) {
    const auto tree = root(no, {folder("C:", no, {folder("d", no, {file("x"), file("y")})})});
    std::string reported;
    markPath(*tree, {"C:\\d\\x", false},
             [&](const CheckableNode& node) { reported += node.name() + ' '; });
    EXPECT_EQ(reported, "d C:  ");
    reported.clear();
    markPath(*tree, {"C:\\d\\y", true},
             [&](const CheckableNode& node) { reported += node.name() + ' '; });
    EXPECT_EQ(reported, "");
}

TEST(MarkPathTest, TheFirstOfTwoNamesThatDifferInCaseIsMarked) {
    const auto tree = root(no, {folder("/", no, {file("notes"), file("Notes")})});
    EXPECT_TRUE(mark(*tree, "/\\NOTES"));
    EXPECT_EQ(states(*tree), "1 /1 notes2 Notes0");
}

TEST(MarkPathTest, ThePathGoesOnThroughTheSecondOfThemIfItEndsInTheFirst) {
    const auto tree = root(
        no, {folder("/", no, {folder("src", no, {file("a")}), folder("Src", no, {file("b")})})});
    EXPECT_TRUE(mark(*tree, "/\\src\\b"));
    EXPECT_EQ(states(*tree), "1 /1 src0 a0 Src2 b2");
}

TEST(MarkPathTest, APathOfSeparatorsAloneEndsSoon) {
    const auto tree = root(no, {folder("C:", no)});
    EXPECT_FALSE(mark(*tree, std::string(100000, '\\')));
}

TEST(MarkPathTest, APathMayBeAsDeepAsItIsLong) {
    constexpr int depth = 100000;
    TestNode top("");
    LazyNode* deepest = &top;
    for (int i = 0; i < depth; ++i) {
        deepest->fetch();
        LazyNode::Children one;
        one.push_back(std::make_unique<TestNode>(""));
        deepest->adopt(std::move(one));
        deepest = deepest->children().front().get();
    }
    EXPECT_TRUE(mark(top, std::string(depth, '\\')));
    EXPECT_EQ(static_cast<TestNode&>(*deepest).checkState(), yes);
    EXPECT_EQ(top.checkState(), yes);
    EXPECT_FALSE(mark(top, std::string(depth, '\\') + "x"));
}

TEST(MarkPathTest, WhatWasCollectedIsPlayedBack) {
    const auto plan = [](State c, State d, State x, State e) {
        return root(partly,
                    {folder("C:", c, {folder("d", d, {file("x", x), file("y", d)}), file("e", e)}),
                     folder("D:", no)});
    };
    const auto old = plan(yes, yes, excluded, yes);
    const auto fresh = tree::make(
        unopened("", no,
                 {unopened("C:", no, {unopened("d", no, {file("x"), file("y")}), file("e")}),
                  unopened("D:")}));
    for (const PathItem& item : selectedPaths(*old))
        EXPECT_TRUE(mark(*fresh, item.path, item.isExclusion));
    EXPECT_EQ(selection(*fresh), selection(*old));
}

} // namespace
