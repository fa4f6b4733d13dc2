// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/data_source_model.h"

#include <memory>
#include <utility>

#include <QPixmap>

#include "api/data_source_browser.h"
#include "models/data_source_item.h"
#include "models/item_pixmap.h"
#include "models/path_selection.h"
#include "session/text.h"

using models::CheckableNode;
using models::CheckState;

CDataSourceModel::CDataSourceModel(std::string computer,
                                   boost::shared_ptr<hessiancln::DataSourceBrowser> browser,
                                   QObject* parent)
    : LazyTreeModel(
          std::make_unique<CDataSourceItem>(std::make_shared<const models::BrowsedComputer>(
              models::BrowsedComputer{std::move(computer), std::move(browser)})),
          parent) {}

QVariant CDataSourceModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const CDataSourceItem& item = itemAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return session::fromWire(item.name());
    case Qt::DecorationRole:
        return models::itemPixmap(item.info().type, item.noAccess());
    case Qt::CheckStateRole:
        if (item.checkableParent()->checkState() == CheckState::Excluded)
            return {};
        return static_cast<int>(item.checkState());
    default:
        return {};
    }
}

bool CDataSourceModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !index.isValid())
        return false;
    models::setChecked(itemAt(index), value.toBool(), listener());
    return true;
}

Qt::ItemFlags CDataSourceModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return {};
    return Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled |
           Qt::ItemIsAutoTristate;
}

std::vector<models::PathItem> CDataSourceModel::getSelection() const {
    return models::selectedPaths(itemAt({}));
}

bool CDataSourceModel::markItem(const models::PathItem& item) {
    return models::markPath(itemAt({}), item, listener());
}

bool CDataSourceModel::hasSelection() const {
    return itemAt({}).checkState() != CheckState::Unchecked;
}

bool CDataSourceModel::isDirectory(const QModelIndex& index) const {
    return !itemAt(index).isLeaf();
}

void CDataSourceModel::checkStateChanged(CDataSourceItem& item) {
    // The hidden root has no index.
    if (const QModelIndex index = indexOf(item); index.isValid())
        emit dataChanged(index, index);
    emit itemSelectionChanged();
}

std::function<void(CheckableNode&)> CDataSourceModel::listener() {
    IDataBrowserSupport* support = this;
    return [support](CheckableNode& node) {
        support->checkStateChanged(static_cast<CDataSourceItem&>(node));
    };
}

CDataSourceItem& CDataSourceModel::itemAt(const QModelIndex& index) const {
    return static_cast<CDataSourceItem&>(nodeAt(index));
}
