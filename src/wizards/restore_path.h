// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QModelIndex>
#include <QString>

#include "api/client_configuration_records.h"

/// Paths of the directory that data is restored to.
namespace wizards {

/// How the name of the directory that a restore makes for itself tells its time.
QString timeInDirectoryName(const QDateTime& time);

/// The directory of that name in another one. Every system takes the slashes.
QString directoryIn(const QString& directory, const QString& name);

/// The node that a typed path leads to in a tree of directories, or the last one on the way there
/// that exists; invalid if not even the first does. Only backslashes part names here, whatever the
/// agent's system. Loads what it passes through; nothing for an empty path.
QModelIndex closestDirectory(const QAbstractItemModel& tree, const QString& path,
                             hessiancln::ClientOSType system);

} // namespace wizards
