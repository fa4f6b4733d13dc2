// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_tables.h"

#include <algorithm>

#include <QDateTimeEdit>
#include <QTableView>

#include "app/activity_progress_item_delegate.h"
#include "app/log_span.h"
#include "session/wire_time.h"
#include "ui/table_columns.h"

namespace app {

namespace {

/// In top to bottom order.
std::vector<int> selectedRows(const QTableView& table) {
    std::vector<int> rows;
    for (const QModelIndex& index : table.selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace

ActivityTables::ActivityTables(const Widgets& widgets, Today today)
    : widgets_(widgets)
    , today_(std::move(today)) {
    showSpan();
    setUpLog();
    setUpRunning();
}

void ActivityTables::showSpan() {
    span_ = yesterdayAndToday(today_());
    widgets_.from.setDateTime(span_.from);
    widgets_.to.setDateTime(span_.to);
    // Read back, because the fields may not show seconds.
    span_ = {widgets_.from.dateTime(), widgets_.to.dateTime()};
}

void ActivityTables::followTheDay() {
    if (widgets_.from.dateTime() == span_.from && widgets_.to.dateTime() == span_.to &&
        span_.to.date() != today_())
        showSpan();
}

void ActivityTables::setUpLog() {
    ui::setUpTable(widgets_.log, log_);
    widgets_.log.sortByColumn(ActivityLogModel::start, Qt::DescendingOrder);
}

void ActivityTables::setUpRunning() {
    QTableView& table = widgets_.running;
    ui::setUpTable(table, running_);
    table.sortByColumn(RunningActivitiesModel::startTime, Qt::DescendingOrder);
    models::keepSortArrow(table, running_);
    table.setItemDelegateForColumn(RunningActivitiesModel::progress,
                                   new CActivityProgressItemDelegate(running_, &table));
}

void ActivityTables::refresh() {
    followTheDay();
    log_.refresh(session::wireTime(widgets_.from.dateTime()),
                 session::wireTime(widgets_.to.dateTime()));
    logKnown_ = true;
    running_.refresh();
}

void ActivityTables::clear() {
    log_.clear();
    logKnown_ = false;
    running_.clear();
    // A note in the empty log depends on whether it is known.
    widgets_.log.viewport()->update();
}

bool ActivityTables::anyRunningSelected() const {
    return widgets_.running.selectionModel()->hasSelection();
}

std::vector<std::int32_t> ActivityTables::selectedRunning() const {
    std::vector<std::int32_t> ids;
    for (const int row : selectedRows(widgets_.running))
        ids.push_back(running_.at(row).activity_id);
    return ids;
}

std::optional<hessiancln::activity_log_info> ActivityTables::selectedLogEntry() const {
    const std::vector<int> rows = selectedRows(widgets_.log);
    if (rows.empty())
        return std::nullopt;
    return log_.at(rows.front());
}

} // namespace app
