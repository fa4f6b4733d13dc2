// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractTableModel>

#include "insight/file_search.h"
#include "insight/row_index.h"

/// The files found so far by a search.
class FoundFilesModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { name, folder, set, size, modified, backedUp, generations, columns };

    using QAbstractTableModel::QAbstractTableModel;

    /// Switches to another search, which must outlive its rows; null shows none.
    void showSearch(insight::FileSearch* search, insight::SetNames names);
    /// Adds the files found since the last update.
    void update();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    const insight::FoundFile& at(int row) const;

private:
    QString text(const insight::FoundFile& file, int column) const;

    insight::FileSearch* search_ = nullptr;
    insight::SetNames names_;
    int rows_ = 0; ///< number known to views
};
