// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace models {

/// A tree node whose children are fetched on first access. It owns its children and knows its
/// position among its siblings. A tree can be as deep as paths are long, so nothing here, nor any
/// code that walks over nodes, may recurse.
class LazyNode {
public:
    using Children = std::vector<std::unique_ptr<LazyNode>>;

    LazyNode() = default;
    virtual ~LazyNode();
    LazyNode(const LazyNode&) = delete;
    LazyNode& operator=(const LazyNode&) = delete;

    /// UTF-8, one component of a path; empty for a root.
    virtual const std::string& name() const = 0;
    /// Whether it never has children, which are then not requested.
    virtual bool isLeaf() const = 0;

    /// Null for a root.
    LazyNode* parent() const { return parent_; }
    /// Position among its parent's children; 0 for a root.
    int row() const { return row_; }
    const Children& children() const { return children_; }
    bool isFetched() const { return fetched_; }
    /// Whether a view shows it as expandable.
    bool mayHaveChildren() const { return !isLeaf() && (!fetched_ || !children_.empty()); }

    /// The first call requests the children and returns them without adding them; later calls, and
    /// calls for a leaf, return nothing. Throws what `askForChildren` throws; the request isn't
    /// retried.
    Children load();
    /// Appends children after the existing ones.
    void adopt(Children children);
    void fetch() { adopt(load()); }

private:
    /// The children in display order.
    virtual Children askForChildren() = 0;

    LazyNode* parent_ = nullptr;
    Children children_;
    int row_ = 0;
    bool fetched_ = false;
};

/// The names from the top down to the node, joined by backslashes. There is no leading backslash,
/// so a root without a name adds nothing.
std::string fullPath(const LazyNode& node);

/// The next node in a walk over `top` and everything loaded below it, parents first; null at the
/// end. `below` says whether the walk descends into `node`.
LazyNode* nextInWalk(const LazyNode& top, LazyNode& node, bool below);

/// Visits `top` and everything loaded below it, parents first. `visit` returns whether to descend
/// into its node. All nodes of the tree must be of class `Node`.
template <class Node, class Visit>
void walk(Node& top, Visit visit) {
    for (LazyNode* node = &top; node;) {
        const bool below = visit(static_cast<Node&>(*node));
        node = nextInWalk(top, *node, below);
    }
}

} // namespace models
