// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QAbstractListModel>

#include "api/backup_set_records.h"

namespace app {

/// The rows under the cards: a backup set each. They show nothing; to a screen reader, which
/// doesn't see the cards, each gives its set's name, computer and state in words.
class BackupSetRows : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Rows come and go at the end.
    void setSets(std::vector<hessiancln::backup_set_info> sets);
    const hessiancln::backup_set_info& set(int row) const;

private:
    QString spokenText(const hessiancln::backup_set_info& set) const;

    std::vector<hessiancln::backup_set_info> sets_;
};

} // namespace app
