// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QModelIndex>
#include <QString>

#include "api/client_configuration_records.h"

/// Paths of folders on the agent's computer. A tree of folders joins names with backslashes, also
/// where the agent runs on Unix; there the root is a folder named "/".
namespace wizards {

/// The path of a folder in a tree, as the agent's system writes it.
QString folderOfTreePath(const QString& treePath, hessiancln::ClientOSType system);

/// The reverse. Part by part, it is what a tree names the folder and those above it.
QString treePathOfFolder(const QString& folder, hessiancln::ClientOSType system);

/// Whether names of folders differ that differ in case only.
Qt::CaseSensitivity caseSensitivityOf(hessiancln::ClientOSType system);

/// What a set stores for a folder that somebody typed or picked: it ends in one backslash,
/// whatever the agent's system.
QString localStoragePath(const QString& folder);

/// The node that a tree path leads to, or the last one on the way there that exists; invalid if
/// not even the first does. Loads what it passes through.
QModelIndex deepestIndex(const QAbstractItemModel& tree, const QString& treePath,
                         Qt::CaseSensitivity sensitivity);

} // namespace wizards
