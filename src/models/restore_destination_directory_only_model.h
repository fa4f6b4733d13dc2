// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSortFilterProxyModel>

class CRestoreDestinationModel;

/// The tree of a restore destination without its files.
class CRestoreDestinationDirectoryOnlyModel : public QSortFilterProxyModel {
    Q_OBJECT
public:
    /// `source` must outlive this model.
    explicit CRestoreDestinationDirectoryOnlyModel(CRestoreDestinationModel& source,
                                                   QObject* parent = nullptr);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const CRestoreDestinationModel& source_;
};
