// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "models/checkable_node.h"

/// Converts a selection in a tree with check boxes to a list of paths, and back.
namespace models {

/// One line of a selection: a path in UTF-8, its parts joined by backslashes, that a backup set
/// includes with everything below it, or excludes.
struct PathItem {
    std::string path;
    bool isExclusion = false;

    bool operator==(const PathItem&) const = default;
};

/// The path of each topmost fully checked node, followed by the exclusions below it. Fetches the
/// root if necessary, and nothing else.
std::vector<PathItem> selectedPaths(CheckableNode& root);

/// Marks the node at the path, ignoring case, and fetches the folders on the path. Returns whether
/// there is such a node. `changed` is called for ancestors that change, not for the node itself.
/// Nodes below it are left unchanged.
bool markPath(CheckableNode& root, const PathItem& item, const CheckListener& changed);

} // namespace models
