// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "api/backup_set_records.h"

/// The file system sets of the agent by name and computer, in the agent's order.
class BackupSetsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { nameColumn, computerColumn, columnCount_ };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes the sets that this program works with from `sets`. Rows that stay keep their place,
    /// so that a view keeps its scroll position.
    void setSets(std::vector<hessiancln::backup_set_info> sets);
    const hessiancln::backup_set_info& setAt(int row) const;
    /// The row of a set, or -1.
    int rowOf(std::int32_t id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void resizeTo(std::size_t rows);

    std::vector<hessiancln::backup_set_info> sets_;
};
