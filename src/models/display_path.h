// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QModelIndex>
#include <QStringList>

/// Rows of a tree by the texts that they show.
namespace models {

/// The texts from the top level down to the row; none for an invalid index.
QStringList displayPath(const QModelIndex& index);

/// The first row on each level whose text is the same. Invalid if a level has none, or without
/// texts.
QModelIndex indexAtPath(const QAbstractItemModel& model, const QStringList& path,
                        Qt::CaseSensitivity sensitivity);

/// The same among rows that may have rows below them: what was stored may hold a file that is
/// called like a folder beside it, each from its own time.
QModelIndex folderAtPath(const QAbstractItemModel& model, const QStringList& path,
                         Qt::CaseSensitivity sensitivity);

} // namespace models
