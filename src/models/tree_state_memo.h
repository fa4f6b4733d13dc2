// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

#include <QString>

class QModelIndex;
class QTreeView;

/// Remembers which rows of a tree are expanded and which are selected, by their displayed texts, so
/// that another model can be shown in the same state.
///
///     const TreeStateMemo memo(tree, 0);
///     tree.setModel(&another);
///     memo.restore();
class TreeStateMemo {
public:
    /// Stores the state of `view`, which must outlive this. Identifies rows by their texts in
    /// `column`.
    TreeStateMemo(QTreeView& view, int column);

    /// Expands and selects the remembered rows; anything else is deselected. Missing rows are
    /// skipped. Does nothing without a memory or without a model.
    void restore() const;

private:
    /// An expanded or selected row. The records below it follow.
    struct Record {
        QString text;
        std::size_t below = 0; ///< records directly below it
        bool expanded = false;
        bool selected = false;
    };
    class Restoration;

    std::size_t save(const QModelIndex& parent);

    QTreeView& view_;
    int column_;
    std::size_t top_ = 0; ///< records of the top level
    std::vector<Record> records_;
};
