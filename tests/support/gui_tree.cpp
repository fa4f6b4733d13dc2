// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_tree.h"

namespace support {

namespace {

QStringList namesOf(const QString& path) {
    QStringList names = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (path.startsWith(QLatin1Char('/')))
        names.prepend(QStringLiteral("/"));
    return names;
}

QModelIndex childNamed(const QAbstractItemModel& model, const QModelIndex& parent,
                       const QString& name) {
    for (int row = 0; row < model.rowCount(parent); ++row)
        if (const QModelIndex child = model.index(row, 0, parent); child.data().toString() == name)
            return child;
    return {};
}

} // namespace

QModelIndex rowAt(const QTreeView& tree, const char* path) {
    QModelIndex index;
    for (const QString& name : namesOf(QString::fromUtf8(path))) {
        index = childNamed(*tree.model(), index, name);
        if (!index.isValid())
            qFatal("There is no %s", path);
    }
    return index;
}

QStringList namesIn(const QListView& list) {
    QStringList names;
    for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row)
        names << list.model()->index(row, 0, list.rootIndex()).data().toString();
    return names;
}

} // namespace support
