// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/backup_sets_model.h"

#include <algorithm>

#include <QIcon>

#include "session/text.h"

using hessiancln::backup_set_info;

void BackupSetsModel::setSets(std::vector<backup_set_info> sets) {
    std::erase_if(sets, [](const backup_set_info& set) {
        return set.data_type != hessiancln::BackupDataType::FileSystem;
    });
    resizeTo(sets.size());
    sets_ = std::move(sets);
    if (!sets_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount_ - 1));
}

void BackupSetsModel::resizeTo(std::size_t rows) {
    const int have = rowCount();
    const int want = static_cast<int>(rows);
    if (want < have) {
        beginRemoveRows({}, want, have - 1);
        sets_.resize(rows);
        endRemoveRows();
    } else if (want > have) {
        beginInsertRows({}, have, want - 1);
        sets_.resize(rows);
        endInsertRows();
    }
}

const backup_set_info& BackupSetsModel::setAt(int row) const {
    return sets_.at(static_cast<std::size_t>(row));
}

int BackupSetsModel::rowOf(std::int32_t id) const {
    const auto found = std::find_if(sets_.begin(), sets_.end(),
                                    [id](const backup_set_info& set) { return set.id == id; });
    return found == sets_.end() ? -1 : static_cast<int>(found - sets_.begin());
}

int BackupSetsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(sets_.size());
}

int BackupSetsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnCount_;
}

QVariant BackupSetsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const backup_set_info& set = setAt(index.row());
    if (role == Qt::DisplayRole)
        return session::fromWire(index.column() == nameColumn ? set.name : set.computer);
    if (role == Qt::DecorationRole && index.column() == nameColumn) {
        static const QIcon icon(QStringLiteral(":/icons/backup_set_icon.png"));
        return icon;
    }
    return {};
}

QVariant BackupSetsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return section == nameColumn ? tr("Name") : tr("Computer");
}
