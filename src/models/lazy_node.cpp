// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/lazy_node.h"

#include <iterator>
#include <utility>

namespace models {

LazyNode::~LazyNode() {
    // Destroyed level by level: recursive destruction would need stack for each level.
    Children doomed = std::move(children_);
    while (!doomed.empty()) {
        const auto node = std::move(doomed.back());
        doomed.pop_back();
        std::move(node->children_.begin(), node->children_.end(), std::back_inserter(doomed));
        node->children_.clear();
    }
}

LazyNode::Children LazyNode::load() {
    if (std::exchange(fetched_, true) || isLeaf())
        return {};
    return askForChildren();
}

void LazyNode::adopt(Children children) {
    children_.reserve(children_.size() + children.size());
    for (auto& child : children) {
        child->parent_ = this;
        child->row_ = static_cast<int>(children_.size());
        children_.push_back(std::move(child));
    }
}

std::string fullPath(const LazyNode& node) {
    std::vector<const LazyNode*> line;
    for (const LazyNode* ancestor = &node; ancestor; ancestor = ancestor->parent())
        line.push_back(ancestor);
    std::string path;
    for (auto ancestor = line.rbegin(); ancestor != line.rend(); ++ancestor) {
        if (!path.empty())
            path += '\\';
        path += (*ancestor)->name();
    }
    return path;
}

LazyNode* nextInWalk(const LazyNode& top, LazyNode& node, bool below) {
    if (below && !node.children().empty())
        return node.children().front().get();
    for (LazyNode* done = &node; done != &top; done = done->parent()) {
        const auto& siblings = done->parent()->children();
        const auto next = static_cast<std::size_t>(done->row()) + 1;
        if (next < siblings.size())
            return siblings[next].get();
    }
    return nullptr;
}

} // namespace models
