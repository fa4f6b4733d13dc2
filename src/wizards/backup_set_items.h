// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QString>

#include "api/backup_set.h"
#include "models/path_selection.h"
#include "wizards/file_type_expressions.h"

/// The items of a backup set: what they say, and how they are made. All of this raises what the
/// agent's calls raise.
namespace wizards {

/// What a set holds, read from its items.
struct StoredItems {
    std::set<std::string> inclusions; ///< paths, without backslashes at their ends
    int exclusions = 0;               ///< paths that the set leaves out
    QString kinds;                    ///< for `readKinds`
    std::optional<QString> customExtensions;
    std::optional<QString> excludedExtensions;
};

/// Calls `mark` for each path that the set holds or leaves out, in the set's order. Items of a type
/// that this program doesn't know are skipped.
StoredItems readItems(hessiancln::BackupSet& set,
                      const std::function<void(const models::PathItem&)>& mark);

/// Has the agent make an item for each path, and then the filters for each root of the paths, which
/// is what stands before the first backslash. No set has the items yet.
hessiancln::BackupSet::Items createItems(hessiancln::DataSourceBrowser& browser,
                                         const std::string& computer,
                                         const std::vector<models::PathItem>& paths,
                                         const std::vector<FileTypeExpression>& filters);

} // namespace wizards
