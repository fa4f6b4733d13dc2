// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/table_columns.h"

#include <algorithm>

#include <QCoreApplication>
#include <QHeaderView>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTableView>

#include "ui/fitting_text_delegate.h"

namespace ui {

namespace {

/// Column widths are chosen for English titles; this makes room for longer translations.
int withRoomForTitle(const QHeaderView& header, int column, int width) {
    const QAbstractItemModel& model = *header.model();
    const QString title = model.headerData(column, Qt::Horizontal).toString();
    if (title == model.headerData(column, Qt::Horizontal, columnEnglishTitleRole).toString())
        return width;
    const int margins = 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
    return std::max(width, header.fontMetrics().horizontalAdvance(title) + margins);
}

} // namespace

QVariant headerOf(const QAbstractItemModel& model, const TableColumn& column, int role) {
    if (role == Qt::DisplayRole)
        return QCoreApplication::translate(model.metaObject()->className(), column.title);
    if (role == columnWidthRole && column.width > 0)
        return column.width;
    if (role == columnEnglishTitleRole)
        return QString::fromUtf8(column.title);
    return {};
}

QVariant alignmentOf(const TableColumn& column) {
    return column.alignment ? QVariant(static_cast<int>(column.alignment)) : QVariant();
}

void makeRoom(QTableView& table, int column, const QStringList& texts, bool hasPicture) {
    QStyleOptionViewItem cell;
    cell.initFrom(&table);
    cell.widget = &table;
    cell.font = table.font();
    cell.features = QStyleOptionViewItem::HasDisplay;
    if (hasPicture) {
        const int edge = table.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &table);
        cell.features |= QStyleOptionViewItem::HasDecoration;
        cell.decorationPosition = QStyleOptionViewItem::Left;
        cell.decorationSize = {edge, edge};
    }
    int width = table.columnWidth(column);
    for (const QString& text : texts) {
        cell.text = text;
        const QSize size =
            table.style()->sizeFromContents(QStyle::CT_ItemViewItem, &cell, {}, &table);
        // The line between two columns takes a pixel.
        width = std::max(width, size.width() + 1);
    }
    table.setColumnWidth(column, width);
}

void setUpTable(QTableView& table, QAbstractItemModel& model) {
    table.setModel(&model);
    for (int column = 0; column < model.columnCount(); ++column)
        if (const QVariant width = model.headerData(column, Qt::Horizontal, columnWidthRole);
            width.isValid())
            table.setColumnWidth(
                column, withRoomForTitle(*table.horizontalHeader(), column, width.toInt()));
    table.setItemDelegate(new FittingTextDelegate(&table));
    // Centred, the header of a wide column would be out of sight.
    table.horizontalHeader()->setDefaultAlignment(leftInCell);
}

} // namespace ui
