// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QHash>

#include "api/user_email.h"

/// The addresses that codes are sent to, one row for each user, in the agent's order. Changes stay
/// here until somebody sends the whole list.
class TFAUsersModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { username, domain, email, columns };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes the agent's list. Raises what the calls raise; the rows are then as before.
    void refresh();

    const std::vector<hessiancln::user_email>& userEmails() const { return rows_; }

    /// A user who is in the list keeps the place and gets the new address; a new one comes last.
    void insert(const hessiancln::user_email& row);
    /// The same, one after the other.
    void insert(const std::vector<hessiancln::user_email>& rows);
    /// Writes a row anew. If it is now that of another user of the list, it goes, and that user
    /// gets the address.
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
    /// The first row of each user: a file may bring very many.
    QHash<QString, int> places_;
};
