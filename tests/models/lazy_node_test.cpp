// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/lazy_node.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/models/test_node.h"

namespace {

using namespace models;
using tree::file;
using tree::folder;
using tree::State;
using tree::unopened;

constexpr auto no = State::Unchecked;

/// A node whose fetch always fails.
class RefusingNode final : public LazyNode {
public:
    const std::string& name() const override { return name_; }
    bool isLeaf() const override { return false; }

private:
    Children askForChildren() override { throw std::runtime_error("no"); }

    std::string name_;
};

TEST(LazyNodeTest, AFolderIsAskedForItsChildrenOnce) {
    const auto node = tree::make(unopened("d", no, {file("a"), file("b")}));
    EXPECT_FALSE(node->isFetched());
    EXPECT_TRUE(node->children().empty());
    node->fetch();
    node->fetch();
    EXPECT_EQ(node->asked, 1);
    EXPECT_EQ(node->children().size(), 2u);
}

TEST(LazyNodeTest, AFileIsNeverAsked) {
    TestNode node("a", true);
    node.fetch();
    EXPECT_EQ(node.asked, 0);
    EXPECT_FALSE(node.mayHaveChildren());
}

TEST(LazyNodeTest, AFailedFetchIsNotRepeated) {
    RefusingNode node;
    EXPECT_THROW(node.fetch(), std::runtime_error);
    EXPECT_TRUE(node.isFetched());
    EXPECT_NO_THROW(node.fetch());
    EXPECT_TRUE(node.children().empty());
}

TEST(LazyNodeTest, AFolderMayHaveChildrenUntilItTurnsOutToHaveNone) {
    const auto empty = tree::make(unopened("d"));
    EXPECT_TRUE(empty->mayHaveChildren());
    empty->fetch();
    EXPECT_FALSE(empty->mayHaveChildren());
    const auto full = tree::make(folder("d", no, {file("a")}));
    EXPECT_TRUE(full->mayHaveChildren());
}

TEST(LazyNodeTest, NodesKnowTheirRowAndTheirParent) {
    const auto root = tree::root(no, {folder("C:", no, {file("a"), file("b")}), folder("D:", no)});
    EXPECT_EQ(root->row(), 0);
    EXPECT_EQ(root->parent(), nullptr);
    EXPECT_EQ(tree::at(*root, "D:").row(), 1);
    EXPECT_EQ(tree::at(*root, "C:/b").row(), 1);
    EXPECT_EQ(tree::at(*root, "C:/b").parent(), &tree::at(*root, "C:"));
}

TEST(LazyNodeTest, RowsGoOnBehindThoseThatAreThere) {
    const auto node = tree::make(folder("d", no, {file("a")}));
    LazyNode::Children more;
    more.push_back(tree::make(file("b")));
    node->adopt(std::move(more));
    EXPECT_EQ(tree::at(*node, "b").row(), 1);
}

TEST(LazyNodeTest, TheFullPathBeginsWithTheFirstName) {
    const auto root = tree::root(no, {folder("C:", no, {folder("Users", no, {file("a")})})});
    EXPECT_EQ(fullPath(*root), "");
    EXPECT_EQ(fullPath(tree::at(*root, "C:")), "C:");
    EXPECT_EQ(fullPath(tree::at(*root, "C:/Users/a")), "C:\\Users\\a");
}

TEST(LazyNodeTest, AnEmptyNameWithinAPathKeepsItsSeparator) {
    const auto root = tree::root(
        no, {folder("C:", no, {folder("", no, {file("a")})}), folder("", no, {file("b")})});
    EXPECT_EQ(fullPath(tree::at(*root, "C:")), "C:");
    EXPECT_EQ(fullPath(tree::at(*root, "C:/")), "C:\\");
    EXPECT_EQ(fullPath(tree::at(*root, "C://a")), "C:\\\\a");
    EXPECT_EQ(fullPath(tree::at(*root, "/b")), "b");
}

TEST(LazyNodeTest, TheUnixRootIsASlash) {
    const auto root = tree::root(no, {folder("/", no, {folder("home", no)})});
    EXPECT_EQ(fullPath(*root->children()[0]->children()[0]), "/\\home");
}

TEST(LazyNodeTest, AWalkVisitsParentsFirstAndStaysBelowItsTop) {
    const auto root = tree::root(
        no, {folder("C:", no, {folder("d", no, {file("x")}), file("e")}), folder("D:", no)});
    const auto visited = [&](TestNode& top, const std::string& closed) {
        std::string names;
        walk(top, [&](const TestNode& node) {
            names += node.name() + ' ';
            return node.name() != closed;
        });
        return names;
    };
    EXPECT_EQ(visited(*root, "none"), " C: d x e D: ");
    EXPECT_EQ(visited(*root, "d"), " C: d e D: ");
    EXPECT_EQ(visited(*root, ""), " ");
    EXPECT_EQ(visited(tree::at(*root, "C:"), "none"), "C: d x e ");
    EXPECT_EQ(visited(tree::at(*root, "C:/e"), "none"), "e ");
}

TEST(LazyNodeTest, ATreeMayBeAsDeepAsAPathIsLong) {
    TestNode root("");
    LazyNode* deepest = &root;
    constexpr int depth = 200000;
    for (int i = 0; i < depth; ++i) {
        LazyNode::Children one;
        one.push_back(std::make_unique<TestNode>("a"));
        deepest->adopt(std::move(one));
        deepest = deepest->children().front().get();
    }
    EXPECT_EQ(fullPath(*deepest).size(), 2u * depth - 1);
    int visited = 0;
    walk(root, [&](const TestNode&) { return ++visited > 0; });
    EXPECT_EQ(visited, depth + 1);
}

} // namespace
