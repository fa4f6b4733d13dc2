// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/backed_up_data_model.h"

#include <exception>
#include <memory>
#include <utility>

#include <QPixmap>

#include "api/backup_set_data_view.h"
#include "models/backed_up_node.h"
#include "models/backed_up_selection.h"
#include "models/item_pixmap.h"
#include "session/text.h"
#include "ui/error_box.h"
#include "ui/later.h"

using models::CheckableNode;
using models::CheckState;

CBackedUpDataModel::CBackedUpDataModel(boost::shared_ptr<hessiancln::BackupSetDataView> view,
                                       QObject* parent)
    : LazyTreeModel(std::make_unique<BackedUpNode>(std::move(view)), parent) {}

QVariant CBackedUpDataModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const BackedUpNode& node = nodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return session::fromWire(node.name());
    case Qt::DecorationRole:
        return models::itemPixmap(node.item().data_type);
    case Qt::CheckStateRole:
        return static_cast<int>(node.checkState());
    default:
        return {};
    }
}

bool CBackedUpDataModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !index.isValid())
        return false;
    models::setChecked(nodeOf(index), value.toBool(), listener());
    return true;
}

Qt::ItemFlags CBackedUpDataModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return {};
    return Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled |
           Qt::ItemIsAutoTristate;
}

void CBackedUpDataModel::fetchTopLevel() {
    LazyTreeModel::load(nodeOf({}));
}

void CBackedUpDataModel::rethrowFailure() const {
    if (failure_)
        std::rethrow_exception(failure_);
}

bool CBackedUpDataModel::hasSelection() const {
    return nodeOf({}).checkState() != CheckState::Unchecked;
}

bool CBackedUpDataModel::allSelected() const {
    return nodeOf({}).checkState() == CheckState::Checked;
}

std::vector<std::int64_t> CBackedUpDataModel::selectedIds() const {
    return models::selectedIds(nodeOf({}));
}

BackedUpNode& CBackedUpDataModel::nodeOf(const QModelIndex& index) const {
    return static_cast<BackedUpNode&>(nodeAt(index));
}

bool CBackedUpDataModel::canHaveChildren(const QModelIndex& index) const {
    return !nodeOf(index).isLeaf();
}

void CBackedUpDataModel::checkStateChanged(BackedUpNode& node) {
    // The hidden root has no index.
    if (const QModelIndex index = indexOf(node); index.isValid())
        emit dataChanged(index, index);
    emit itemSelectionChanged();
}

void CBackedUpDataModel::load(models::LazyNode& node) const {
    try {
        LazyTreeModel::load(node);
    } catch (const std::exception& error) {
        failure_ = std::current_exception();
        announceFetched(node);
        auto* model = const_cast<CBackedUpDataModel*>(this);
        const auto report = [model, text = ui::errorText(error)] { emit model->fetchFailed(text); };
        ui::later(*model, report);
    }
}

std::function<void(CheckableNode&)> CBackedUpDataModel::listener() {
    IBackupDataViewSupport* support = this;
    return [support](CheckableNode& node) {
        support->checkStateChanged(static_cast<BackedUpNode&>(node));
    };
}
