// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/sorted_table_model.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableView>

namespace models {

void keepSortArrow(QTableView& view, const SortedTableModel& model) {
    QHeaderView* header = view.horizontalHeader();
    const auto restore = [header, &model](int column) {
        if (column == model.sortColumn())
            return;
        const QSignalBlocker quiet(header);
        header->setSortIndicator(model.sortColumn(), model.sortOrder());
    };
    // The view connected its own sorting first, so the model has already decided.
    QObject::connect(header, &QHeaderView::sortIndicatorChanged, &model, restore);
}

} // namespace models
