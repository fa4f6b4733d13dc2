// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/lazy_tree_model.h"

#include <utility>

#include "transport/call_passage.h"
#include "ui/later.h"

namespace models {

namespace {

/// The root of an empty tree.
class NoRows : public LazyNode {
public:
    const std::string& name() const override { return name_; }
    bool isLeaf() const override { return true; }

private:
    Children askForChildren() override { return {}; }

    std::string name_;
};

} // namespace

LazyTreeModel::LazyTreeModel(std::unique_ptr<LazyNode> root, QObject* parent)
    : QAbstractItemModel(parent)
    , root_(std::move(root)) {}

LazyTreeModel::~LazyTreeModel() {
    // Destroying the nodes releases objects on the agent. While such a call is pending, views must
    // not find half-destroyed nodes.
    beginResetModel();
    const auto doomed = std::exchange(root_, std::make_unique<NoRows>());
    endResetModel();
}

QVariant LazyTreeModel::data(const QModelIndex&, int) const {
    return {};
}

QModelIndex LazyTreeModel::index(int row, int column, const QModelIndex& parent) const {
    LazyNode& node = nodeAt(parent);
    fetch(node);
    const auto place = static_cast<std::size_t>(row);
    if (column != 0 || row < 0 || place >= node.children().size())
        return {};
    return createIndex(row, column, node.children()[place].get());
}

QModelIndex LazyTreeModel::parent(const QModelIndex& index) const {
    const LazyNode* above = nodeAt(index).parent();
    return above ? indexOf(*above) : QModelIndex();
}

int LazyTreeModel::rowCount(const QModelIndex& parent) const {
    LazyNode& node = nodeAt(parent);
    fetch(node);
    return static_cast<int>(node.children().size());
}

int LazyTreeModel::columnCount(const QModelIndex&) const {
    return 1;
}

bool LazyTreeModel::hasChildren(const QModelIndex& parent) const {
    return nodeAt(parent).mayHaveChildren();
}

void LazyTreeModel::fetchMore(const QModelIndex& parent) {
    fetch(nodeAt(parent));
}

bool LazyTreeModel::canFetchMore(const QModelIndex& parent) const {
    const LazyNode& node = nodeAt(parent);
    return !node.isLeaf() && !node.isFetched();
}

std::string LazyTreeModel::fullPath(const QModelIndex& index) const {
    return models::fullPath(nodeAt(index));
}

LazyNode& LazyTreeModel::nodeAt(const QModelIndex& index) const {
    return index.isValid() ? *static_cast<LazyNode*>(index.internalPointer()) : *root_;
}

QModelIndex LazyTreeModel::indexOf(const LazyNode& node) const {
    return node.parent() ? createIndex(node.row(), 0, const_cast<LazyNode*>(&node)) : QModelIndex();
}

void LazyTreeModel::fetch(LazyNode& node) const {
    if (node.isFetched())
        return;
    if (hessiancln::CallPassage::underWay()) {
        offerAgainLater();
        return;
    }
    load(node);
}

void LazyTreeModel::load(LazyNode& node) const {
    node.fetch();
    announceFetched(node);
}

void LazyTreeModel::offerAgainLater() const {
    if (std::exchange(offersAgain_, true))
        return;
    auto* model = const_cast<LazyTreeModel*>(this);
    ui::later(*model, [model] {
        model->offersAgain_ = false;
        emit model->layoutAboutToBeChanged();
        emit model->layoutChanged();
    });
}

void LazyTreeModel::announceFetched(LazyNode& node) const {
    if (node.isLeaf() || !node.parent())
        return;
    auto* model = const_cast<LazyTreeModel*>(this);
    const auto announce = [model, &node] {
        const QModelIndex index = model->indexOf(node);
        emit model->dataChanged(index, index);
    };
    ui::later(*model, announce);
}

} // namespace models
