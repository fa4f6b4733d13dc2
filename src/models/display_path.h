// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QModelIndex>
#include <QStringList>

/// Finds rows of a tree by their displayed texts.
namespace models {

/// The texts from the top level down to the row; empty for an invalid index.
QStringList displayPath(const QModelIndex& index);

/// Follows the first row with the same text on each level. Invalid if a level has no such row, or
/// if there are no texts.
QModelIndex indexAtPath(const QAbstractItemModel& model, const QStringList& path,
                        Qt::CaseSensitivity sensitivity);

/// Likewise, but only among rows that can have children: a set may hold a file with the same name
/// as a folder beside it, stored at different times.
QModelIndex folderAtPath(const QAbstractItemModel& model, const QStringList& path,
                         Qt::CaseSensitivity sensitivity);

} // namespace models
