// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QListView>
#include <QStringList>
#include <QTreeView>

namespace support {

/// The tree row at a slash-separated path of names. A leading slash is itself the name of the first
/// row, the root of a Unix computer. Without such a row the test ends.
QModelIndex rowAt(const QTreeView& tree, const char* path);

/// The texts of a list, from top to bottom.
QStringList namesIn(const QListView& list);

} // namespace support
