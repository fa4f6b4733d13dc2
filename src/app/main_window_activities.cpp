// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's commands that start, stop and look into activities.
#include <algorithm>
#include <vector>

#include <QDateTime>

#include "api/client_connection.h"
#include "app/backup_set_view_item.h"
#include "app/event_log_viewer.h"
#include "app/log_span.h"
#include "app/open_backup_set.h"
#include "app/simple_gui_main_window.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/locale_text.h"
#include "ui/remote_action.h"
#include "ui_simple_gui_main_window.h"

namespace {

/// From top to bottom.
std::vector<int> selectedRows(const QTableView& table) {
    std::vector<int> rows;
    for (const QModelIndex& index : table.selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

QString timeNow() {
    return ui::timeText(QDateTime::currentSecsSinceEpoch(), QLocale::LongFormat);
}

/// The result is kept for as long as the activity is spoken of.
boost::shared_ptr<hessiancln::GenericActivity> startBackup(std::int32_t setId) {
    const auto set = app::openBackupSet(setId);
    const auto items = set->items();
    const auto parameters = session::required(set->createDefaultBackupParameters());
    parameters->setDoRetentionAfter(true);
    parameters->setPreScanSource(true);
    return set->start_backup(items, parameters);
}

} // namespace

void SimpleGUIMainWindow::OnBackupNow() {
    const BackupSetViewItem* card = requireSetItem();
    if (!card)
        return;
    const auto set = card->record();
    ui::remoteAction(*this, tr("Error"), ui::Cursor::wait, [&] {
        const auto activity = startBackup(set.id);
        RefreshActivityLogs();
        showStatus(tr("%1: On-demand backup started for '%2'")
                       .arg(timeNow(), session::fromWire(set.name)));
    });
}

void SimpleGUIMainWindow::OnSync() {
    const BackupSetViewItem* card = requireSetItem();
    if (!card)
        return;
    const auto set = card->record();
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [&] {
        const auto activity = app::openBackupSet(set.id)->start_sync(false);
        RefreshActivityLogs();
        showStatus(tr("%1: On-demand Synchronization started for '%2'")
                       .arg(timeNow(), session::fromWire(set.name)));
    });
}

void SimpleGUIMainWindow::OnStopActivity() {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this] {
        for (const int row : selectedRows(*ui_->tableCurrentActivities)) {
            const auto activity =
                session::required(session::getConnection()->activity(running_.at(row).activity_id));
            activity->Stop();
            showStatus(tr("Sent a stop request to activity with id %1")
                           .arg(ui::numberText(activity->getID())));
        }
    });
}

void SimpleGUIMainWindow::OnRunningActivitySelectionChanged(const QItemSelection&,
                                                            const QItemSelection&) {
    ui_->buttonStop->setEnabled(ui_->tableCurrentActivities->selectionModel()->hasSelection());
}

void SimpleGUIMainWindow::ShowEventLog() {
    EventLogViewer viewer(this);
    const std::vector<int> rows = selectedRows(*ui_->tableActivityLog);
    if (!rows.empty()) {
        const auto activity = activityLog_.at(rows.front());
        viewer.showFor(QDateTime::fromSecsSinceEpoch(activity.start_time),
                       QDateTime::fromSecsSinceEpoch(activity.end_time), activity.id);
    } else {
        const app::LogSpan span = app::yesterdayAndToday(QDate::currentDate());
        viewer.showFor(span.from, span.to, 0);
    }
    viewer.exec();
}
