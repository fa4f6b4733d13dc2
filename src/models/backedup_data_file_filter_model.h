// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPersistentModelIndex>
#include <QSortFilterProxyModel>

#include "models/file_name_filter.h"

class CBackedUpDataModel;

/// The files of one folder of a backup set, with all ancestors of the folder, so that a view can
/// show the folder's rows.
class CBackedupDataFileFilterModel : public QSortFilterProxyModel {
    Q_OBJECT
public:
    /// `source` owns this model.
    explicit CBackedupDataFileFilterModel(CBackedUpDataModel& source);

    /// The folder, an index of the source model. Rows outside the folder all pass.
    void setSourceRoot(const QModelIndex& folder);
    /// Shows only files whose names match; see `models::FileNameFilter`. Replaces the operation of
    /// the base class, which removes rows one by one: in a folder of 100,000 files that takes a
    /// second per key.
    void setFilterWildcard(const QString& pattern);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const CBackedUpDataModel& source_;
    QPersistentModelIndex root_;
    models::FileNameFilter filter_;
};
