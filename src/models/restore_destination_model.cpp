// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/restore_destination_model.h"

#include <memory>
#include <utility>

#include <QPixmap>

#include "api/data_source_browser.h"
#include "models/item_pixmap.h"
#include "models/restore_destination_node.h"
#include "session/text.h"

CRestoreDestinationModel::CRestoreDestinationModel(
    std::string computer, boost::shared_ptr<hessiancln::DataSourceBrowser> browser, QObject* parent)
    : LazyTreeModel(
          std::make_unique<RestoreDestinationNode>(std::make_shared<const models::BrowsedComputer>(
              models::BrowsedComputer{std::move(computer), std::move(browser)})),
          parent) {}

QVariant CRestoreDestinationModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const auto& node = static_cast<const RestoreDestinationNode&>(nodeAt(index));
    switch (role) {
    case Qt::DisplayRole:
        return session::fromWire(node.name());
    case Qt::DecorationRole:
        return models::itemPixmap(node.info().type, node.noAccess());
    default:
        return {};
    }
}

bool CRestoreDestinationModel::isDirectory(const QModelIndex& index) const {
    return !nodeAt(index).isLeaf();
}
