// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSortFilterProxyModel>

class CBackedUpDataModel;

/// The content of a backup set without the files.
class CBackedupDataDirOnlyModel : public QSortFilterProxyModel {
    Q_OBJECT
public:
    /// `source` owns this model.
    explicit CBackedupDataDirOnlyModel(CBackedUpDataModel& source);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const CBackedUpDataModel& source_;
};
