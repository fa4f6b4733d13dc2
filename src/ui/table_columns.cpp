// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/table_columns.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QTableView>

#include "ui/fitting_text_delegate.h"

namespace ui {

QVariant headerOf(const QAbstractItemModel& model, const TableColumn& column, int role) {
    if (role == Qt::DisplayRole)
        return QCoreApplication::translate(model.metaObject()->className(), column.title);
    if (role == columnWidthRole && column.width > 0)
        return column.width;
    return {};
}

QVariant alignmentOf(const TableColumn& column) {
    return column.alignment ? QVariant(static_cast<int>(column.alignment)) : QVariant();
}

void setUpTable(QTableView& table, QAbstractItemModel& model) {
    table.setModel(&model);
    for (int column = 0; column < model.columnCount(); ++column)
        if (const QVariant width = model.headerData(column, Qt::Horizontal, columnWidthRole);
            width.isValid())
            table.setColumnWidth(column, width.toInt());
    table.setItemDelegate(new FittingTextDelegate(&table));
    // In the middle of its column, the header of a wide one would be out of sight.
    table.horizontalHeader()->setDefaultAlignment(leftInCell);
}

} // namespace ui
