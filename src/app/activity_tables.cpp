// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_tables.h"

#include <algorithm>
#include <array>

#include <QDateTimeEdit>
#include <QHeaderView>
#include <QTableView>

#include "app/activity_progress_item_delegate.h"
#include "app/log_span.h"
#include "app/wire_time.h"
#include "ui/fitting_text_delegate.h"

namespace app {

namespace {

constexpr std::array logWidths{150, 280, 60, 80, 140, 140, 120, 60, 100};
constexpr std::array runningWidths{130, 140, 120, 320, 450};

template <class Widths>
void setUpTable(QTableView& table, SortedTableModel& model, const Widths& widths, int sortColumn) {
    table.setModel(&model);
    for (std::size_t column = 0; column < widths.size(); ++column)
        table.setColumnWidth(static_cast<int>(column), widths[column]);
    table.setItemDelegate(new ui::FittingTextDelegate(&table));
    // In the middle of its column, the header of a wide one would be out of sight.
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.sortByColumn(sortColumn, Qt::DescendingOrder);
}

/// From top to bottom.
std::vector<int> selectedRows(const QTableView& table) {
    std::vector<int> rows;
    for (const QModelIndex& index : table.selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace

ActivityTables::ActivityTables(const Widgets& widgets)
    : widgets_(widgets) {
    setUpSpan();
    setUpLog();
    setUpRunning();
}

void ActivityTables::setUpSpan() {
    const LogSpan span = yesterdayAndToday(QDate::currentDate());
    widgets_.from.setDateTime(span.from);
    widgets_.to.setDateTime(span.to);
}

void ActivityTables::setUpLog() {
    setUpTable(widgets_.log, log_, logWidths, ActivityLogModel::start);
}

void ActivityTables::setUpRunning() {
    QTableView& table = widgets_.running;
    setUpTable(table, running_, runningWidths, RunningActivitiesModel::startTime);
    keepSortArrow(table, running_);
    table.setItemDelegateForColumn(RunningActivitiesModel::progress,
                                   new CActivityProgressItemDelegate(running_, &table));
}

void ActivityTables::refresh() {
    log_.refresh(wireTime(widgets_.from.dateTime()), wireTime(widgets_.to.dateTime()));
    running_.refresh();
}

void ActivityTables::clear() {
    log_.clear();
    running_.clear();
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
