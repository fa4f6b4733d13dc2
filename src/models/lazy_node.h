// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace models {

/// A node of a tree whose children are asked for when somebody first looks at them. It owns its
/// children and knows its place among them. A tree may be as deep as a path is long, so nothing
/// here, nor in what walks over nodes, takes stack for each level.
class LazyNode {
public:
    using Children = std::vector<std::unique_ptr<LazyNode>>;

    LazyNode() = default;
    virtual ~LazyNode();
    LazyNode(const LazyNode&) = delete;
    LazyNode& operator=(const LazyNode&) = delete;

    /// UTF-8, one component of a path; empty for a root.
    virtual const std::string& name() const = 0;
    /// It never has children, and nobody is asked for them.
    virtual bool isLeaf() const = 0;

    /// Null for a root.
    LazyNode* parent() const { return parent_; }
    /// Its place among its parent's children; 0 for a root.
    int row() const { return row_; }
    const Children& children() const { return children_; }
    bool isFetched() const { return fetched_; }
    /// Whether a view shows that it can be opened.
    bool mayHaveChildren() const { return !isLeaf() && (!fetched_ || !children_.empty()); }

    /// At the first call asks for the children, and gives them without taking them in; afterwards
    /// and for a leaf, none. Raises what `askForChildren` raises, which is then not asked again.
    Children load();
    /// Takes in children behind those that are there.
    void adopt(Children children);
    void fetch() { adopt(load()); }

private:
    /// The children in the order in which they are shown.
    virtual Children askForChildren() = 0;

    LazyNode* parent_ = nullptr;
    Children children_;
    int row_ = 0;
    bool fetched_ = false;
};

/// The names from the top down to the node, joined by backslashes. No backslash stands at the
/// start, so that a root without a name adds nothing.
std::string fullPath(const LazyNode& node);

/// The node that follows in a walk over `top` and what is loaded below it, parents first; null at
/// the end. `below` says whether the walk goes below `node`.
LazyNode* nextInWalk(const LazyNode& top, LazyNode& node, bool below);

/// Visits `top` and what is loaded below it, parents first. `visit` returns whether to go below
/// the node that it was given. All nodes of the tree are of the class `Node`.
template <class Node, class Visit>
void walk(Node& top, Visit visit) {
    for (LazyNode* node = &top; node;) {
        const bool below = visit(static_cast<Node&>(*node));
        node = nextInWalk(top, *node, below);
    }
}

} // namespace models
