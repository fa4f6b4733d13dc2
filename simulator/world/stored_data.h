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

/// Something in the storage of a set.
struct StoredNode {
    using Pointer = std::shared_ptr<StoredNode>;

    std::string name;
    hessiancln::SelectableItemType type{};
    bool isFile = false;
    bool isGroup = false;     ///< stands for what it holds, and can't be chosen itself
    std::string denied;       ///< why nobody can look into it
    std::int32_t removed = 0; ///< when the file went from its computer; 0 if it is still there
    std::vector<StoredGeneration> generations{}; ///< of a file, oldest first
    std::vector<Pointer> children{};

    /// The child of that name, which is made if there is none. The name may hold any character.
    StoredNode& child(std::string_view childName, hessiancln::SelectableItemType childType);
};

/// Which part of the storage a view shows. Times are seconds since 1970 UTC, both ends included; 0
/// means no limit.
struct StoredFilter {
    std::int32_t from = 0;
    std::int32_t to = 0;
    std::int32_t removedSince = 0;  ///< only files that are gone since then
    std::int32_t removedBefore = 0; ///< no files that were gone by then
    std::int32_t keepLast = 0;      ///< that many of the newest generations are left out

    std::vector<StoredGeneration> generationsOf(const StoredNode& file) const;
    /// A folder is shown if it holds something that is, or if nobody knows.
    bool shows(const StoredNode& node) const;

    friend bool operator==(const StoredFilter&, const StoredFilter&) = default;
};

/// All that a set holds in storage. Paths are names joined by backslashes; they begin with a share.
class StoredData {
public:
    StoredNode& root() { return root_; }

    /// What is missing above it comes with it.
    StoredNode& addFolder(std::string_view path);
    StoredNode& addFile(std::string_view path, std::vector<StoredGeneration> generations);

private:
    StoredNode root_;
};

struct StoredAmount {
    std::int32_t files = 0;
    std::int64_t bytes = 0;
    std::int64_t storedBytes = 0;
    std::int32_t closedFolders = 0;    ///< that nobody can look into
    std::int32_t leastGenerations = 0; ///< of a file; 0 if there is none
    std::int32_t mostGenerations = 0;
};

/// What a view shows of these and of all below them.
StoredAmount amountOf(const std::vector<StoredNode::Pointer>& nodes, const StoredFilter& filter);

/// Where something stands: the share, and the folders between. Groups aren't told.
struct StoredPlace {
    StoredNode::Pointer node;
    std::string share;
    std::vector<std::string> folders; ///< below the share and above the node
    bool inAnother = false;           ///< one of the others holds it
};

/// Where these stand, in the order of the storage. What has gone is left out.
std::vector<StoredPlace> placesOf(const StoredNode& root,
                                  const std::vector<StoredNode::Pointer>& nodes);

/// Takes it out of the storage, and with it what is empty then. Folders that can't be read go with
/// what holds them, unless a filter picks what goes.
void erase(StoredData& data, const std::vector<StoredNode::Pointer>& nodes,
           const StoredFilter& filter);

/// What a set of these folders would hold that was backed up now and then in the last two years:
/// files with many generations, some that are gone, one folder that can't be read, and a group.
std::shared_ptr<StoredData> inventStorage(const std::vector<std::string>& folders,
                                          const std::vector<std::int32_t>& backups);

/// A backup at that time: the files that are still there have another generation if they had
/// several. A storage that holds nothing gets the files of these folders.
void addBackup(StoredData& data, const std::vector<std::string>& folders, std::int32_t time);

/// The times of such backups, oldest first.
std::vector<std::int32_t> backupsOfTwoYears(std::int32_t now);

} // namespace simulator
