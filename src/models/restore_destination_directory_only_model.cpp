// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/restore_destination_directory_only_model.h"

#include "models/restore_destination_model.h"

CRestoreDestinationDirectoryOnlyModel::CRestoreDestinationDirectoryOnlyModel(
    CRestoreDestinationModel& source, QObject* parent)
    : QSortFilterProxyModel(parent)
    , source_(source) {
    setSourceModel(&source);
}

bool CRestoreDestinationDirectoryOnlyModel::filterAcceptsRow(int row,
                                                             const QModelIndex& parent) const {
    return source_.isDirectory(source_.index(row, 0, parent));
}
