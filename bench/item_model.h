// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>

#include "activity_rows.h"

namespace bench {

/// A view of a log that shows `model` on the screen, sorted by the start, latest first.
std::unique_ptr<QTableView> shownView(QAbstractItemModel& model);

/// The reference for what shows the activity log: Qt's own model of items, sorted by a proxy, under
/// a view. Values are kept as numbers, not as texts, which favours the reference.
class ItemModel {
public:
    ItemModel();

    /// Fills a new model with `fetched` and shows it in place of the old one. The window isn't
    /// painted yet.
    void refresh(const Rows& fetched);

    /// Lets go of all rows; gives the bytes that they took.
    double clear();

private:
    std::unique_ptr<QStandardItemModel> model_;
    QSortFilterProxyModel sorted_;
    std::unique_ptr<QTableView> view_;
};

} // namespace bench
