// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "item_model.h"

#include <QCoreApplication>

#include "app/activity_log_model.h"
#include "memory.h"
#include "session/text.h"
#include "ui/activity_type_text.h"

namespace bench {
namespace {

constexpr int columnCount = 9;

QStandardItem* numberItem(qint64 number) {
    auto item = std::make_unique<QStandardItem>();
    item->setData(number, Qt::DisplayRole);
    return item.release();
}

/// A row for an item model, which takes ownership.
QList<QStandardItem*> itemsOf(const hessiancln::activity_log_info& row) {
    return {std::make_unique<QStandardItem>(ui::activityTypeIcon(row.type),
                                            ui::activityTypeLabel(row.type))
                .release(),
            std::make_unique<QStandardItem>(session::fromWire(row.description)).release(),
            numberItem(row.errors),
            numberItem(row.warnings),
            numberItem(row.start_time),
            numberItem(row.end_time),
            numberItem(row.end_time - row.start_time),
            numberItem(row.file_count),
            numberItem(row.data_size)};
}

std::unique_ptr<QStandardItemModel> modelOf(const Rows& fetched) {
    auto model = std::make_unique<QStandardItemModel>(0, columnCount);
    for (const auto& row : fetched)
        model->appendRow(itemsOf(row));
    return model;
}

} // namespace

std::unique_ptr<QTableView> shownView(QAbstractItemModel& model) {
    auto view = std::make_unique<QTableView>();
    view->setModel(&model);
    view->setSortingEnabled(true);
    view->sortByColumn(ActivityLogModel::start, Qt::DescendingOrder);
    view->resize(1000, 300);
    view->show();
    QCoreApplication::processEvents();
    return view;
}

ItemModel::ItemModel()
    : model_(modelOf({})) {
    sorted_.setSourceModel(model_.get());
    view_ = shownView(sorted_);
}

void ItemModel::refresh(const Rows& fetched) {
    auto fresh = modelOf(fetched);
    sorted_.setSourceModel(fresh.get());
    model_ = std::move(fresh);
}

double ItemModel::clear() {
    view_->setModel(nullptr);
    const double full = heapInUse();
    sorted_.setSourceModel(nullptr);
    model_.reset();
    return full - heapInUse();
}

} // namespace bench
