// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractTableModel>

class QTableView;

namespace models {

/// A table that knows its sort column.
class SortedTableModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// -1 until the first `sort`.
    int sortColumn() const { return sortColumn_; }
    Qt::SortOrder sortOrder() const { return sortOrder_; }

protected:
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

/// Keeps the sort arrow in the header of `view` on the sort column of `model`, even if the user
/// clicks a column that can't be sorted. The view must show the model, with sorting enabled.
void keepSortArrow(QTableView& view, const SortedTableModel& model);

} // namespace models
