// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

#include <QIcon>

#include "models/record_order.h"
#include "models/sorted_table_model.h"
#include "models/table_cell.h"
#include "ui/table_columns.h"

namespace models {

/// A column and its presentation of a record.
template <class R>
struct RecordColumn : ui::TableColumn {
    QString (*text)(const R&) = nullptr;
    SortKey<R> key{};
    QIcon (*icon)(const R&) = nullptr;
    Cell (*cell)(const R&) = nullptr; ///< for models with search or export
};

/// Which records are shown: their indices in the list, ascending. A list of the same version has
/// the same records in the same order.
template <class R>
using RecordFilter =
    std::function<std::vector<std::uint32_t>(const std::vector<R>&, std::uint64_t version)>;

/// A read-only table over a list of records, optionally filtered. A refill only adds or removes
/// rows at the end, so that a view keeps its selection, by row number, and its scroll position.
/// Texts are created when they are shown.
template <class R>
class RecordTableModel : public SortedTableModel {
public:
    /// `columns` must outlive the model.
    explicit RecordTableModel(std::span<const RecordColumn<R>> columns, QObject* parent = nullptr)
        : SortedTableModel(parent)
        , columns_(columns) {}

    /// Replaces the list and sorts it as before.
    void setRecords(std::vector<R> records);
    virtual void clear() { setRecords({}); }

    /// Shows the records that pass `filter`, now and after each change of the list; an empty filter
    /// shows all. Views are reset, without a selection.
    void setFilter(RecordFilter<R> filter);

    /// The record in a row.
    R at(int row) const { return records_.at(recordOf(row)); }
    /// Its index among all records.
    std::size_t recordOf(int row) const {
        const auto place = static_cast<std::size_t>(row);
        return filter_ ? shown_.at(place) : place;
    }
    /// The row of the record with this index; -1 if it is filtered out.
    int rowOf(std::size_t record) const;
    /// All records, shown or not.
    const std::vector<R>& records() const { return records_; }
    /// The version of the list that a filter gets with it.
    std::uint64_t version() const { return version_; }
    std::span<const RecordColumn<R>> recordColumns() const { return columns_; }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(filter_ ? shown_.size() : records_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(columns_.size());
    }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Does nothing for a column without a key.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    /// Data for every column of a row, unless the column has its own.
    virtual QVariant rowData(const R&, int) const { return {}; }

private:
    void signalAllChanged();
    std::vector<std::uint32_t> shownOf(const std::vector<R>& records) const {
        return filter_ ? filter_(records, version_) : std::vector<std::uint32_t>();
    }

    std::span<const RecordColumn<R>> columns_;
    std::vector<R> records_;
    RecordFilter<R> filter_;
    std::vector<std::uint32_t> shown_; ///< used if there is a filter
    std::uint64_t version_ = 0;        ///< version of the list
};

template <class R>
void RecordTableModel<R>::setRecords(std::vector<R> records) {
    // Before the views access them, so that they never see the order of arrival.
    if (sortColumn_ >= 0)
        sortRecords(records, columns_[static_cast<std::size_t>(sortColumn_)].key, sortOrder_);
    ++version_;
    std::vector<std::uint32_t> shown = shownOf(records);
    const int before = rowCount();
    const int after = static_cast<int>(filter_ ? shown.size() : records.size());
    if (after > before)
        beginInsertRows({}, before, after - 1);
    else if (after < before)
        beginRemoveRows({}, after, before - 1);
    records_ = std::move(records);
    shown_ = std::move(shown);
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
    ++version_;
    shown_ = shownOf(records_);
    sortColumn_ = column;
    sortOrder_ = order;
    signalAllChanged();
}

template <class R>
void RecordTableModel<R>::setFilter(RecordFilter<R> filter) {
    beginResetModel();
    filter_ = std::move(filter);
    shown_ = shownOf(records_);
    endResetModel();
}

template <class R>
int RecordTableModel<R>::rowOf(std::size_t record) const {
    if (!filter_)
        return record < records_.size() ? static_cast<int>(record) : -1;
    const auto found = std::lower_bound(shown_.begin(), shown_.end(), record);
    return found != shown_.end() && *found == record ? static_cast<int>(found - shown_.begin())
                                                     : -1;
}

template <class R>
QVariant RecordTableModel<R>::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const R& record = records_[recordOf(index.row())];
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
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

} // namespace models
