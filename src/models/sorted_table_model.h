// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractTableModel>

class QTableView;

namespace models {

/// A table that knows by which of its columns it is sorted.
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

/// Keeps the arrow in the header of `view` where `model` is sorted, also when somebody clicks on
/// a column that the model doesn't sort by. The view shows the model, sorting is switched on.
void keepSortArrow(QTableView& view, const SortedTableModel& model);

} // namespace models
