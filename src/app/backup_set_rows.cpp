// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/backup_set_rows.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include "session/text.h"

namespace app {

namespace {

auto whatIsSpoken(const hessiancln::backup_set_info& set) {
    return std::tie(set.name, set.computer, set.in_sync, set.has_items, set.is_created_by_policy);
}

} // namespace

int BackupSetRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(sets_.size());
}

QVariant BackupSetRows::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::AccessibleTextRole)
        return {};
    return spokenText(set(index.row()));
}

void BackupSetRows::setSets(std::vector<hessiancln::backup_set_info> sets) {
    const int before = rowCount();
    const int after = static_cast<int>(sets.size());
    if (after < before) {
        beginRemoveRows({}, after, before - 1);
        sets_.resize(sets.size());
        endRemoveRows();
    } else if (after > before) {
        beginInsertRows({}, before, after - 1);
        sets_.insert(sets_.end(), std::make_move_iterator(sets.begin() + before),
                     std::make_move_iterator(sets.end()));
        endInsertRows();
    }
    for (int row = 0; row < std::min(before, after); ++row) {
        auto& shown = sets_[static_cast<std::size_t>(row)];
        auto& fresh = sets[static_cast<std::size_t>(row)];
        const bool changes = whatIsSpoken(shown) != whatIsSpoken(fresh);
        shown = std::move(fresh);
        if (changes)
            emit dataChanged(index(row), index(row), {Qt::AccessibleTextRole});
    }
}

const hessiancln::backup_set_info& BackupSetRows::set(int row) const {
    return sets_.at(static_cast<std::size_t>(row));
}

QString BackupSetRows::spokenText(const hessiancln::backup_set_info& set) const {
    QStringList parts{session::fromWire(set.name),
                      tr("Backup of: %1").arg(session::fromWire(set.computer))};
    if (!set.in_sync)
        parts << tr("Not in sync");
    else if (!set.has_items)
        parts << tr("Recovered, needs editing");
    else
        parts << tr("In sync");
    if (set.is_created_by_policy)
        parts << tr("Created by a policy");
    return parts.join(QStringLiteral(", "));
}

} // namespace app
