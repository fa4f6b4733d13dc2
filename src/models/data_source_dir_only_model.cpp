// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/data_source_dir_only_model.h"

#include "models/data_source_model.h"

CDataSourceDirOnlyModel::CDataSourceDirOnlyModel(CDataSourceModel& source, QObject* parent)
    : QSortFilterProxyModel(parent)
    , source_(source) {
    setSourceModel(&source);
}

bool CDataSourceDirOnlyModel::filterAcceptsRow(int row, const QModelIndex& parent) const {
    return source_.isDirectory(source_.index(row, 0, parent));
}
