// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/data_view_records.h"

namespace simulator {

/// A stored version of a file. Times are seconds since 1970 UTC.
using StoredGeneration = hessiancln::file_generations;

/// A node in the storage of a set.
struct StoredNode {
    using Pointer = std::shared_ptr<StoredNode>;

    std::string name;
    hessiancln::SelectableItemType type{};
    bool isFile = false;
    bool isGroup = false;     ///< represents its content, and can't be selected itself
    std::string denied;       ///< why it is inaccessible; empty if it isn't
    std::int32_t removed = 0; ///< when the file was removed from its computer; 0 if it still exists
    std::vector<StoredGeneration> generations{}; ///< of a file, oldest first
    std::vector<Pointer> children{};

    /// The child of that name, created if necessary. The name may contain any character.
    StoredNode& child(std::string_view childName, hessiancln::SelectableItemType childType);
};

/// Which part of the storage a view shows. Times are seconds since 1970 UTC, inclusive; 0 means no
/// limit.
struct StoredFilter {
    std::int32_t from = 0;
    std::int32_t to = 0;
    std::int32_t removedSince = 0;  ///< only files removed since then
    std::int32_t removedBefore = 0; ///< no files that had been removed by then
    std::int32_t keepLast = 0;      ///< excludes this many of the newest generations

    std::vector<StoredGeneration> generationsOf(const StoredNode& file) const;
    /// A folder is shown if it has visible content, or if it is inaccessible.
    bool shows(const StoredNode& node) const;

    friend bool operator==(const StoredFilter&, const StoredFilter&) = default;
};

/// The whole storage of a set. Paths are names joined by backslashes; they begin with a share.
class StoredData {
public:
    StoredNode& root() { return root_; }

    /// Creates missing ancestors.
    StoredNode& addFolder(std::string_view path);
    StoredNode& addFile(std::string_view path, std::vector<StoredGeneration> generations);

private:
    StoredNode root_;
};

struct StoredAmount {
    std::int32_t files = 0;
    std::int64_t bytes = 0;
    std::int64_t storedBytes = 0;
    std::int32_t closedFolders = 0;    ///< inaccessible folders
    std::int32_t leastGenerations = 0; ///< of any file; 0 without files
    std::int32_t mostGenerations = 0;
};

/// The amount that a view shows of these nodes and everything below them.
StoredAmount amountOf(const std::vector<StoredNode::Pointer>& nodes, const StoredFilter& filter);

/// The place of a node: the share, and the folders in between. Groups are omitted.
struct StoredPlace {
    StoredNode::Pointer node;
    std::string share;
    std::vector<std::string> folders; ///< below the share and above the node
    bool inAnother = false;           ///< contained in one of the others
};

/// The places of these nodes, in storage order. Removed nodes are omitted.
std::vector<StoredPlace> placesOf(const StoredNode& root,
                                  const std::vector<StoredNode::Pointer>& nodes);

/// Deletes nodes from the storage, and any that become empty. Unreadable folders are deleted with
/// their parents, unless a filter selects what to delete.
void erase(StoredData& data, const std::vector<StoredNode::Pointer>& nodes,
           const StoredFilter& filter);

/// Generates the content of a set with these folders, backed up now and then in the last two years:
/// files with many generations, some removed ones, an unreadable folder, and a group.
std::shared_ptr<StoredData> inventStorage(const std::vector<std::string>& folders,
                                          const std::vector<std::int32_t>& backups);

/// Adds a backup at that time: existing files get another generation if they had several. An empty
/// storage gets the files of these folders.
void addBackup(StoredData& data, const std::vector<std::string>& folders, std::int32_t time);

/// The times of those backups, oldest first.
std::vector<std::int32_t> backupsOfTwoYears(std::int32_t now);

} // namespace simulator
