// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/backedup_data_file_filter_model.h"

#include "models/backed_up_data_model.h"

CBackedupDataFileFilterModel::CBackedupDataFileFilterModel(CBackedUpDataModel& source)
    : QSortFilterProxyModel(&source)
    , source_(source) {
    setSourceModel(&source);
}

void CBackedupDataFileFilterModel::setSourceRoot(const QModelIndex& folder) {
    root_ = folder;
    invalidate();
}

void CBackedupDataFileFilterModel::setFilterWildcard(const QString& pattern) {
    filter_ = models::FileNameFilter(pattern);
    invalidate();
}

bool CBackedupDataFileFilterModel::filterAcceptsRow(int row, const QModelIndex& parent) const {
    if (!root_.isValid() || !parent.isValid() || root_ != parent)
        return true;
    const QModelIndex child = source_.index(row, 0, parent);
    return !source_.canHaveChildren(child) &&
           filter_.matches(child.data(Qt::DisplayRole).toString());
}
