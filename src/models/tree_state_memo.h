// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

#include <QString>

class QModelIndex;
class QTreeView;

/// Which rows of a tree are expanded and which are selected, by the texts that they show, so that
/// another model can be shown in the same way.
///
///     const TreeStateMemo memo(tree, 0);
///     tree.setModel(&another);
///     memo.restore();
class TreeStateMemo {
public:
    /// Remembers what `view`, which outlives this, shows now. Rows go by their texts in `column`.
    TreeStateMemo(QTreeView& view, int column);

    /// Expands and selects what was so; whatever else was selected is not. Rows that are gone are
    /// passed over. Without a memory, or without a model, nothing changes.
    void restore() const;

private:
    /// A row that is expanded or selected. What is remembered below it follows.
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
