// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QAbstractItemModel>

#include "models/lazy_node.h"

namespace models {

/// A tree of one column over nodes that are fetched on first access: `rowCount` and `index` fetch
/// too, so that a folder is never visible without its rows.
class LazyTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    ~LazyTreeModel() override;

    /// Returns nothing: a view may still query a model that is being destroyed.
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

    /// Returns the root for an invalid index.
    LazyNode& nodeAt(const QModelIndex& index) const;
    /// Invalid for the root.
    QModelIndex indexOf(const LazyNode& node) const;

    /// Makes the node fetch its children if it hasn't yet. While another call is pending, the node
    /// is left as it is, and views are asked to look again afterwards.
    void fetch(LazyNode& node) const;
    /// Makes the node fetch its children, and announces it. Only `fetch` calls it, for a node that
    /// hasn't yet.
    virtual void load(LazyNode& node) const;

    /// Notifies views that a node was fetched, which may have changed its look. Deferred, because
    /// it is views at work that trigger fetches.
    void announceFetched(LazyNode& node) const;

private:
    void offerAgainLater() const;

    std::unique_ptr<LazyNode> root_;
    mutable bool offersAgain_ = false;
};

} // namespace models
