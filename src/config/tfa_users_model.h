// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QHash>

#include "api/user_email.h"

/// The addresses that codes are sent to, one row per user, in the agent's order. Changes stay local
/// until the whole list is sent.
class TFAUsersModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { username, domain, email, columns };

    using QAbstractTableModel::QAbstractTableModel;

    /// Reads the agent's list. Throws what the calls throw, leaving the rows unchanged.
    void refresh();

    const std::vector<hessiancln::user_email>& userEmails() const { return rows_; }

    /// An existing user keeps the position and gets the new address; a new one is appended.
    void insert(const hessiancln::user_email& row);
    /// Likewise for each row in turn.
    void insert(const std::vector<hessiancln::user_email>& rows);
    /// Replaces a row. If it now belongs to another user in the list, the row is removed and that
    /// user gets the address.
    void replace(int index, const hessiancln::user_email& row);
    void remove(int index);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    void setRow(int index, const hessiancln::user_email& row);
    void setEmail(int index, const std::string& address);
    void findPlaces();

    std::vector<hessiancln::user_email> rows_;
    /// The first row of each user, because an import may have many rows.
    QHash<QString, int> places_;
};
