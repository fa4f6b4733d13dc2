// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QModelIndex>
#include <QString>

#include "api/client_configuration_records.h"

/// Paths of restore destinations.
namespace wizards {

/// The format of the time in the name of the directory created by a restore.
QString timeInDirectoryName(const QDateTime& time);

/// The path of a subdirectory. All systems accept the slashes.
QString directoryIn(const QString& directory, const QString& name);

/// The node at a typed path in a tree of directories, or its deepest existing ancestor; invalid if
/// not even the first part exists. Only backslashes separate names here, on any agent system. Loads
/// the nodes on the way; returns an invalid index for an empty path.
QModelIndex closestDirectory(const QAbstractItemModel& tree, const QString& path,
                             hessiancln::ClientOSType system);

} // namespace wizards
