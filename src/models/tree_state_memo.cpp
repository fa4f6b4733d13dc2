// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/tree_state_memo.h"

#include <optional>

#include <QHash>
#include <QItemSelection>
#include <QTreeView>

TreeStateMemo::TreeStateMemo(QTreeView& view, int column)
    : view_(view)
    , column_(column) {
    if (view.model())
        top_ = save({});
}

std::size_t TreeStateMemo::save(const QModelIndex& parent) {
    const QAbstractItemModel& model = *view_.model();
    std::size_t count = 0;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, column_, parent);
        const bool expanded = view_.isExpanded(index);
        const bool selected = view_.selectionModel()->isSelected(index);
        if (!expanded && !selected)
            continue;
        ++count;
        const std::size_t place = records_.size();
        records_.push_back({index.data().toString(), 0, expanded, selected});
        if (expanded)
            records_[place].below = save(index);
    }
    return count;
}

/// One walk over the records. A missing level, passed as an empty parent, is walked too, because
/// the records after it must be reached.
class TreeStateMemo::Restoration {
public:
    explicit Restoration(const TreeStateMemo& memo)
        : memo_(memo)
        , view_(memo.view_) {}

    QItemSelection selection() const { return selection_; }

    void level(const std::optional<QModelIndex>& parent, std::size_t count) {
        // Accessing the rows fetches them, so it is skipped if there is nothing to find.
        const Rows rows = parent && count > 0 ? rowsOf(*parent) : Rows();
        for (std::size_t i = 0; i < count; ++i) {
            const Record& record = memo_.records_[next_++];
            const auto found = rows.find(record.text);
            if (found == rows.end()) {
                level({}, record.below);
                continue;
            }
            if (record.expanded)
                view_.expand(*found);
            if (record.selected)
                selection_.select(*found, *found);
            level(*found, record.below);
        }
    }

private:
    using Rows = QHash<QString, QModelIndex>;

    Rows rowsOf(const QModelIndex& parent) const {
        const QAbstractItemModel& model = *view_.model();
        const int count = model.rowCount(parent);
        Rows rows;
        rows.reserve(count);
        for (int row = 0; row < count; ++row) {
            const QModelIndex index = model.index(row, memo_.column_, parent);
            rows.insert(index.data().toString(), index);
        }
        return rows;
    }

    const TreeStateMemo& memo_;
    QTreeView& view_;
    std::size_t next_ = 0;
    QItemSelection selection_;
};

void TreeStateMemo::restore() const {
    if (!view_.model() || records_.empty())
        return;
    QItemSelectionModel& selected = *view_.selectionModel();
    selected.clearSelection();
    Restoration restoration(*this);
    restoration.level(QModelIndex(), top_);
    const QItemSelection selection = restoration.selection();
    selected.select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    // Where keyboard navigation continues.
    if (!selection.isEmpty())
        selected.setCurrentIndex(selection.first().topLeft(), QItemSelectionModel::NoUpdate);
}
