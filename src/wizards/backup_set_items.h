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

/// The items of a backup set: reading and creating them. All functions throw what the agent's calls
/// throw.
namespace wizards {

/// The content of a set, read from its items.
struct StoredItems {
    std::set<std::string> inclusions; ///< paths, without backslashes at their ends
    int exclusions = 0;               ///< paths that the set leaves out
    QString kinds;                    ///< for `readKinds`
    std::optional<QString> customExtensions;
    std::optional<QString> excludedExtensions;
};

/// Calls `mark` for each path that the set includes or excludes, in the set's order. Skips items of
/// unknown types.
StoredItems readItems(hessiancln::BackupSet& set,
                      const std::function<void(const models::PathItem&)>& mark);

/// Makes the agent create an item for each path, and then the filters for each root, which is the
/// part of a path before the first backslash. The items don't belong to a set yet.
hessiancln::BackupSet::Items createItems(hessiancln::DataSourceBrowser& browser,
                                         const std::string& computer,
                                         const std::vector<models::PathItem>& paths,
                                         const std::vector<FileTypeExpression>& filters);

} // namespace wizards
