// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariant>

class QAbstractItemModel;
class QTableView;

/// The columns of a table. A model describes each of them once, in a list that is held against its
/// enumeration:
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
    int width = 0;                ///< at first, in pixels; 0 leaves it to the view
    Qt::Alignment alignment = {}; ///< none leaves it to the view
};

inline constexpr Qt::Alignment rightInCell = Qt::AlignRight | Qt::AlignVCenter;
inline constexpr Qt::Alignment leftInCell = Qt::AlignLeft | Qt::AlignVCenter;

/// Whether the columns are numbered from 0 on. In an array of the enumeration's size one that is
/// missing isn't.
template <class Columns>
constexpr bool areInOrder(const Columns& columns) {
    int number = 0;
    for (const TableColumn& column : columns)
        if (column.number != number++)
            return false;
    return true;
}

/// The role under which a model's header gives the width of a column.
inline constexpr int columnWidthRole = Qt::UserRole;
/// The role under which it gives the title in English.
inline constexpr int columnEnglishTitleRole = Qt::UserRole + 1;

/// What the header of `model` says about a column.
QVariant headerOf(const QAbstractItemModel& model, const TableColumn& column, int role);
/// What `Qt::TextAlignmentRole` means for the cells of a column.
QVariant alignmentOf(const TableColumn& column);

/// Shows a model as all tables of the program are shown: each column as wide as the header says
/// or as its title wants, titles at the left, and texts that are too wide by `FittingTextDelegate`.
void setUpTable(QTableView& table, QAbstractItemModel& model);

} // namespace ui
