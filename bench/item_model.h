// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>

#include "activity_rows.h"

namespace bench {

/// A visible view of a log that shows `model`, sorted by start time, latest first.
std::unique_ptr<QTableView> shownView(QAbstractItemModel& model);

/// The reference for the activity log: Qt's own item model, sorted by a proxy, under a view. Values
/// are stored as numbers rather than texts, which favours the reference.
class ItemModel {
public:
    ItemModel();

    /// Fills a new model with `fetched` and shows it instead of the old one. The window isn't
    /// repainted yet.
    void refresh(const Rows& fetched);

    /// Removes all rows; returns the number of bytes that they occupied.
    double clear();

private:
    std::unique_ptr<QStandardItemModel> model_;
    QSortFilterProxyModel sorted_;
    std::unique_ptr<QTableView> view_;
};

} // namespace bench
