// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include <QIcon>

#include "app/record_order.h"
#include "app/sorted_table_model.h"
#include "ui/table_columns.h"

namespace app {

/// A column, and how a record is shown in it.
template <class R>
struct RecordColumn : ui::TableColumn {
    QString (*text)(const R&) = nullptr;
    SortKey<R> key{};
    QIcon (*icon)(const R&) = nullptr;
};

/// A read-only table over a list of records. A refill keeps the rows that stay, so that a view
/// keeps its selection by row and its place. Texts are made when they are shown.
template <class R>
class RecordTableModel : public SortedTableModel {
public:
    /// `columns` has to outlive the model.
    explicit RecordTableModel(std::span<const RecordColumn<R>> columns, QObject* parent = nullptr)
        : SortedTableModel(parent)
        , columns_(columns) {}

    /// Replaces the list, and sorts it as it was sorted before.
    void setRecords(std::vector<R> records);
    virtual void clear() { setRecords({}); }

    R at(int row) const { return records_.at(static_cast<std::size_t>(row)); }
    const std::vector<R>& records() const { return records_; }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(records_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(columns_.size());
    }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Does nothing for a column that has no key.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    /// What a role means for every column of a row, where the column itself doesn't say.
    virtual QVariant rowData(const R&, int) const { return {}; }

private:
    void signalAllChanged();

    std::span<const RecordColumn<R>> columns_;
    std::vector<R> records_;
};

template <class R>
void RecordTableModel<R>::setRecords(std::vector<R> records) {
    // Before the views look, so that they never see the order of arrival.
    if (sortColumn_ >= 0)
        sortRecords(records, columns_[static_cast<std::size_t>(sortColumn_)].key, sortOrder_);
    const int before = rowCount();
    const int after = static_cast<int>(records.size());
    if (after > before)
        beginInsertRows({}, before, after - 1);
    else if (after < before)
        beginRemoveRows({}, after, before - 1);
    records_ = std::move(records);
    if (after > before)
        endInsertRows();
    else if (after < before)
        endRemoveRows();
    signalAllChanged();
}

template <class R>
void RecordTableModel<R>::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columnCount())
        return;
    const SortKey<R>& key = columns_[static_cast<std::size_t>(column)].key;
    if (std::holds_alternative<std::monostate>(key))
        return;
    sortRecords(records_, key, order);
    sortColumn_ = column;
    sortOrder_ = order;
    signalAllChanged();
}

template <class R>
QVariant RecordTableModel<R>::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const R& record = records_[static_cast<std::size_t>(index.row())];
    const RecordColumn<R>& column = columns_[static_cast<std::size_t>(index.column())];
    if (role == Qt::DisplayRole)
        return column.text(record);
    if (role == Qt::DecorationRole && column.icon)
        return column.icon(record);
    if (role == Qt::TextAlignmentRole && column.alignment)
        return ui::alignmentOf(column);
    return rowData(record, role);
}

template <class R>
QVariant RecordTableModel<R>::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    return ui::headerOf(*this, columns_[static_cast<std::size_t>(section)], role);
}

template <class R>
void RecordTableModel<R>::signalAllChanged() {
    if (!records_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

} // namespace app
