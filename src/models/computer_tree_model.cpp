// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/computer_tree_model.h"

#include <memory>
#include <utility>

#include <QPixmap>

#include "api/data_source_browser.h"
#include "models/computer_tree_item.h"
#include "session/text.h"
#include "ui/shared_icon.h"

CComputerTreeModel::CComputerTreeModel(boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                                       QObject* parent)
    : LazyTreeModel(std::make_unique<CComputerTreeItem>(std::move(browser)), parent) {}

int CComputerTreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(nodeAt(parent).children().size());
}

bool CComputerTreeModel::canFetchMore(const QModelIndex& parent) const {
    return !nodeAt(parent).isFetched();
}

QVariant CComputerTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return session::fromWire(nodeAt(index).name());
    if (role == Qt::DecorationRole)
        return ui::sharedPixmap(isComputer(index) ? QStringLiteral(":icons/browse_computer.png")
                                                  : QStringLiteral(":icons/browse_network.png"));
    return {};
}

bool CComputerTreeModel::isComputer(const QModelIndex& index) const {
    return nodeAt(index).isLeaf();
}

void CComputerTreeModel::load(models::LazyNode& node) const {
    auto children = node.load();
    announceFetched(node);
    if (children.empty())
        return;
    // The container had no rows so far, so views must be notified, whatever triggered the fetch.
    auto& model = const_cast<CComputerTreeModel&>(*this);
    model.beginInsertRows(indexOf(node), 0, static_cast<int>(children.size()) - 1);
    node.adopt(std::move(children));
    model.endInsertRows();
}
