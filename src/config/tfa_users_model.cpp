// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/tfa_users_model.h"

#include <array>

#include "api/client_connection.h"
#include "config/user_email_rules.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/table_columns.h"

namespace {

using M = TFAUsersModel;

constexpr std::array<ui::TableColumn, M::columns> columnTable{{
    {M::username, QT_TRANSLATE_NOOP("TFAUsersModel", "Username"), 160},
    {M::domain, QT_TRANSLATE_NOOP("TFAUsersModel", "Domain"), 140},
    {M::email, QT_TRANSLATE_NOOP("TFAUsersModel", "Email")},
}};
static_assert(ui::areInOrder(columnTable));

} // namespace

void TFAUsersModel::refresh() {
    auto rows = session::required(session::getConnection()->getTFAManager())->getUserEmails();
    beginResetModel();
    rows_ = std::move(rows);
    findPlaces();
    endResetModel();
}

void TFAUsersModel::insert(const hessiancln::user_email& row) {
    insert(std::vector{row});
}

void TFAUsersModel::insert(const std::vector<hessiancln::user_email>& rows) {
    const int before = rowCount();
    std::vector<hessiancln::user_email> added;
    for (const hessiancln::user_email& row : rows) {
        const QString user = config::userKey(row);
        const auto place = places_.constFind(user);
        if (place == places_.constEnd()) {
            places_.insert(user, before + static_cast<int>(added.size()));
            added.push_back(row);
        } else if (*place < before) {
            setEmail(*place, row.email);
        } else {
            added[static_cast<std::size_t>(*place - before)].email = row.email;
        }
    }
    if (added.empty())
        return;
    beginInsertRows({}, before, before + static_cast<int>(added.size()) - 1);
    std::move(added.begin(), added.end(), std::back_inserter(rows_));
    endInsertRows();
}

void TFAUsersModel::replace(int index, const hessiancln::user_email& row) {
    const int place = places_.value(config::userKey(row), index);
    if (place != index) {
        setEmail(place, row.email);
        remove(index);
        return;
    }
    setRow(index, row);
    findPlaces();
}

void TFAUsersModel::remove(int index) {
    beginRemoveRows({}, index, index);
    rows_.erase(rows_.begin() + index);
    findPlaces();
    endRemoveRows();
}

int TFAUsersModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TFAUsersModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant TFAUsersModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole ||
        !checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const hessiancln::user_email& row = rows_[static_cast<std::size_t>(index.row())];
    switch (index.column()) {
    case username:
        return session::fromWire(row.username);
    case domain:
        return session::fromWire(row.domain);
    default:
        return session::fromWire(row.email);
    }
}

QVariant TFAUsersModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columns)
        return QAbstractTableModel::headerData(section, orientation, role);
    return ui::headerOf(*this, columnTable[static_cast<std::size_t>(section)], role);
}

void TFAUsersModel::setRow(int index, const hessiancln::user_email& row) {
    rows_[static_cast<std::size_t>(index)] = row;
    emit dataChanged(this->index(index, 0), this->index(index, columns - 1));
}

void TFAUsersModel::setEmail(int index, const std::string& address) {
    hessiancln::user_email row = rows_[static_cast<std::size_t>(index)];
    row.email = address;
    setRow(index, row);
}

void TFAUsersModel::findPlaces() {
    places_.clear();
    for (std::size_t row = rows_.size(); row > 0; --row)
        places_.insert(config::userKey(rows_[row - 1]), static_cast<int>(row - 1));
}
