// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/display_path.h"

namespace models {

namespace {

enum class Wanted { any, withRowsBelow };

QModelIndex childNamed(const QAbstractItemModel& model, const QModelIndex& parent,
                       const QString& text, Qt::CaseSensitivity sensitivity, Wanted wanted) {
    const int count = model.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex child = model.index(row, 0, parent);
        if (QString::compare(child.data().toString(), text, sensitivity) == 0 &&
            (wanted == Wanted::any || model.hasChildren(child)))
            return child;
    }
    return {};
}

QModelIndex descend(const QAbstractItemModel& model, const QStringList& path,
                    Qt::CaseSensitivity sensitivity, Wanted wanted) {
    QModelIndex index;
    for (const QString& text : path) {
        index = childNamed(model, index, text, sensitivity, wanted);
        if (!index.isValid())
            return {};
    }
    return index;
}

} // namespace

QStringList displayPath(const QModelIndex& index) {
    QStringList path;
    for (QModelIndex row = index; row.isValid(); row = row.parent())
        path.prepend(row.data().toString());
    return path;
}

QModelIndex indexAtPath(const QAbstractItemModel& model, const QStringList& path,
                        Qt::CaseSensitivity sensitivity) {
    return descend(model, path, sensitivity, Wanted::any);
}

QModelIndex folderAtPath(const QAbstractItemModel& model, const QStringList& path,
                         Qt::CaseSensitivity sensitivity) {
    return descend(model, path, sensitivity, Wanted::withRowsBelow);
}

} // namespace models
