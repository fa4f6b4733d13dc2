// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QAbstractItemModel>

#include "models/lazy_node.h"

namespace models {

/// A tree of one column over nodes that are fetched when somebody looks at them: also `rowCount`
/// and `index` fetch, so that nobody ever sees a folder without the rows that it is going to have.
class LazyTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    ~LazyTreeModel() override;

    /// Nothing: of a model that is on its way out, a view may still ask.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    void fetchMore(const QModelIndex& parent) override;
    bool canFetchMore(const QModelIndex& parent) const override;

    /// The names down to the node, UTF-8, joined by backslashes; empty for an invalid index.
    std::string fullPath(const QModelIndex& index) const;

protected:
    LazyTreeModel(std::unique_ptr<LazyNode> root, QObject* parent);

    /// The root for an invalid index.
    LazyNode& nodeAt(const QModelIndex& index) const;
    /// Invalid for the root.
    QModelIndex indexOf(const LazyNode& node) const;

    /// Has the node fetch its children, if it hasn't yet. While another call is waited for, it
    /// stays as it is, and views are asked to look again afterwards.
    virtual void fetch(LazyNode& node) const;

    /// Tells views that a node was fetched, and with that may have changed its look. Not at once,
    /// since it is views at work that have nodes fetched.
    void announceFetched(LazyNode& node) const;

private:
    void offerAgainLater() const;

    std::unique_ptr<LazyNode> root_;
    mutable bool offersAgain_ = false;
};

} // namespace models
