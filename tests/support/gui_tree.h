// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QListView>
#include <QStringList>
#include <QTreeView>

namespace support {

/// The row of a tree at the end of names that are joined by slashes. One at the beginning is itself
/// the name of the first row, the root of a Unix computer. Without such a row the test ends.
QModelIndex rowAt(const QTreeView& tree, const char* path);

/// What a list shows, from above.
QStringList namesIn(const QListView& list);

} // namespace support
