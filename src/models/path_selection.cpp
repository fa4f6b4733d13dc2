// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/path_selection.h"

#include <cstddef>
#include <string_view>

#include "models/name_order.h"

namespace models {

namespace {

void addExclusions(CheckableNode& selected, std::vector<PathItem>& items) {
    walk(selected, [&](CheckableNode& node) {
        if (node.checkState() != CheckState::Excluded)
            return true;
        items.push_back({fullPath(node), true});
        return false;
    });
}

/// A folder along a path, and the progress of the search in it.
struct Step {
    const LazyNode* folder;
    std::string_view head; ///< the name to find in the folder
    std::string_view rest; ///< the rest of the path
    std::size_t next = 0;  ///< the child to try next
};

Step stepInto(LazyNode& folder, std::string_view path) {
    folder.fetch();
    const std::size_t end = path.find('\\');
    if (end == std::string_view::npos)
        return {&folder, path, {}};
    return {&folder, path.substr(0, end), path.substr(end + 1)};
}

/// Names that differ only in case may exist side by side, so the first match isn't always on the
/// path.
CheckableNode* findPath(CheckableNode& root, std::string_view path) {
    if (path.empty())
        return &root;
    std::vector<Step> steps{stepInto(root, path)};
    while (!steps.empty()) {
        Step& step = steps.back();
        if (step.next == step.folder->children().size()) {
            steps.pop_back();
            continue;
        }
        LazyNode& child = *step.folder->children()[step.next++];
        if (!sameName(child.name(), step.head))
            continue;
        if (step.rest.empty())
            return static_cast<CheckableNode*>(&child);
        steps.push_back(stepInto(child, step.rest));
    }
    return nullptr;
}

} // namespace

std::vector<PathItem> selectedPaths(CheckableNode& root) {
    root.fetch();
    std::vector<PathItem> items;
    walk(root, [&](CheckableNode& node) {
        if (&node == &root)
            return true;
        if (node.checkState() == CheckState::Checked) {
            items.push_back({fullPath(node), false});
            addExclusions(node, items);
        }
        return node.checkState() == CheckState::Partly;
    });
    return items;
}

bool markPath(CheckableNode& root, const PathItem& item, const CheckListener& changed) {
    CheckableNode* node = findPath(root, item.path);
    if (!node)
        return false;
    node->setCheckState(item.isExclusion ? CheckState::Excluded : CheckState::Checked);
    if (!item.isExclusion)
        recomputeAncestors(*node, changed);
    return true;
}

} // namespace models
