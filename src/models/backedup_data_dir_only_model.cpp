// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/backedup_data_dir_only_model.h"

#include "models/backed_up_data_model.h"

CBackedupDataDirOnlyModel::CBackedupDataDirOnlyModel(CBackedUpDataModel& source)
    : QSortFilterProxyModel(&source)
    , source_(source) {
    setSourceModel(&source);
}

bool CBackedupDataDirOnlyModel::filterAcceptsRow(int row, const QModelIndex& parent) const {
    return source_.canHaveChildren(source_.index(row, 0, parent));
}
