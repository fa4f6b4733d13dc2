// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QVariant>

class QAbstractItemModel;
class QTableView;

/// The columns of a table. A model describes each column once, in a list that is checked against
/// its enumeration:
///
///     constexpr std::array<ui::TableColumn, Model::columns> columnTable{{
///         {Model::name, QT_TRANSLATE_NOOP("Model", "Name"), 160},
///         ...
///     }};
///     static_assert(ui::areInOrder(columnTable));
namespace ui {

struct TableColumn {
    int number = -1;              ///< in the enumeration
    const char* title = nullptr;  ///< English; translated in the context of the model's class
    int width = 0;                ///< initial width in pixels; 0 leaves it to the view
    Qt::Alignment alignment = {}; ///< empty leaves it to the view
};

inline constexpr Qt::Alignment rightInCell = Qt::AlignRight | Qt::AlignVCenter;
inline constexpr Qt::Alignment leftInCell = Qt::AlignLeft | Qt::AlignVCenter;

/// Whether the columns are numbered consecutively from 0. A missing column in an array of the
/// enumeration's size breaks the order.
template <class Columns>
constexpr bool areInOrder(const Columns& columns) {
    int number = 0;
    for (const TableColumn& column : columns)
        if (column.number != number++)
            return false;
    return true;
}

/// The role under which a model's header returns the width of a column.
inline constexpr int columnWidthRole = Qt::UserRole;
/// The role under which it returns the title in English.
inline constexpr int columnEnglishTitleRole = Qt::UserRole + 1;

/// Header data of `model` for a column.
QVariant headerOf(const QAbstractItemModel& model, const TableColumn& column, int role);
/// The value of `Qt::TextAlignmentRole` for the cells of a column.
QVariant alignmentOf(const TableColumn& column);

/// Sets up a table in the program's common style: each column as wide as the header or its title
/// requires, titles on the left, and text that is too wide drawn by `FittingTextDelegate`.
void setUpTable(QTableView& table, QAbstractItemModel& model);
/// Widens a column, if necessary, so that a cell with any of the texts shows it in full, beside a
/// picture if `hasPicture`.
void makeRoom(QTableView& table, int column, const QStringList& texts, bool hasPicture = false);

} // namespace ui
