// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "models/checkable_node.h"

/// A selection in a tree with check boxes as a list of paths, and back.
namespace models {

/// One line of a selection: a path, UTF-8, its parts joined by backslashes, that a backup set holds
/// with all below it, or that it leaves out.
struct PathItem {
    std::string path;
    bool isExclusion = false;

    bool operator==(const PathItem&) const = default;
};

/// For each topmost node that is wholly checked, its path, followed by the exclusions below it.
/// Fetches the root if need be, and nothing else.
std::vector<PathItem> selectedPaths(CheckableNode& root);

/// Marks the node that the path names, regardless of case, and fetches the folders on the path.
/// Returns whether there is such a node. `changed` is told of the nodes above that change, not of
/// the node itself. Nodes below it stay as they are.
bool markPath(CheckableNode& root, const PathItem& item, const CheckListener& changed);

} // namespace models
