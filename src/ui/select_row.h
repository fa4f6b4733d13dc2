// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTableView>

namespace ui {

/// Selects a row alone and makes it the current one. `QTableView::selectRow` selects nothing in a
/// table that is laid out from right to left.
inline void selectRow(QTableView& table, int row) {
    table.selectionModel()->setCurrentIndex(table.model()->index(row, 0, table.rootIndex()),
                                            QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
}

} // namespace ui
