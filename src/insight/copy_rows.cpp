// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/copy_rows.h"

#include <algorithm>

#include <QClipboard>
#include <QGuiApplication>
#include <QShortcut>
#include <QTableView>

#include "insight/table_export.h"

namespace insight {

namespace {

/// In top to bottom order.
QVector<int> selectedRows(const QTableView& table) {
    QVector<int> rows;
    for (const QModelIndex& index : table.selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void copy(const QTableView& table) {
    const QVector<int> rows = selectedRows(table);
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setMimeData(clipboardData(textTable(*table.model(), rows)));
}

} // namespace

void copyRows(QTableView& table) {
    auto* shortcut =
        new QShortcut(QKeySequence::Copy, &table, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &table, [&table] { copy(table); });
}

} // namespace insight
