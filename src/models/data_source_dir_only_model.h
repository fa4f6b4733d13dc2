// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSortFilterProxyModel>

class CDataSourceModel;

/// A computer's tree without its files.
class CDataSourceDirOnlyModel : public QSortFilterProxyModel {
    Q_OBJECT
public:
    /// `source` must outlive this model.
    explicit CDataSourceDirOnlyModel(CDataSourceModel& source, QObject* parent = nullptr);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const CDataSourceModel& source_;
};
