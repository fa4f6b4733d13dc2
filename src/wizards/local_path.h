// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QModelIndex>
#include <QString>

#include "api/client_configuration_records.h"

/// Folder paths on the agent's computer. A tree of folders joins names with backslashes, even if
/// the agent runs on Unix; there the root is a folder named "/".
namespace wizards {

/// The path of a folder in a tree, in the notation of the agent's system.
QString folderOfTreePath(const QString& treePath, hessiancln::ClientOSType system);

/// The reverse. Each part is the name of the folder or of an ancestor in the tree.
QString treePathOfFolder(const QString& folder, hessiancln::ClientOSType system);

/// Whether folder names are case-sensitive.
Qt::CaseSensitivity caseSensitivityOf(hessiancln::ClientOSType system);

/// What a set stores for a folder that the user typed or selected: it ends in exactly one
/// backslash, on any agent system.
QString localStoragePath(const QString& folder);

/// The node at a tree path, or its deepest existing ancestor; invalid if not even the first part
/// exists. Loads the nodes on the way.
QModelIndex deepestIndex(const QAbstractItemModel& tree, const QString& treePath,
                         Qt::CaseSensitivity sensitivity);

} // namespace wizards
