// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's slots that act on sets and activities, and those of its icon in the tray.
#include <algorithm>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QMenu>

#include "app/activity_commands.h"
#include "app/activity_tables.h"
#include "app/backup_set_list.h"
#include "app/event_log_viewer.h"
#include "app/insight_windows.h"
#include "app/log_span.h"
#include "app/open_backup_set.h"
#include "app/simple_gui_main_window.h"
#include "app/status_link.h"
#include "app/tray_presence.h"
#include "insight/restore_summary_box.h"
#include "session/connection.h"
#include "session/process_values.h"
#include "session/text.h"
#include "ui/error_box.h"
#include "ui/locale_text.h"
#include "ui_simple_gui_main_window.h"
#include "wizards/delete_flow.h"
#include "wizards/items_flow.h"
#include "wizards/new_set_flow.h"
#include "wizards/restore_flow.h"
#include "wizards/retention_flow.h"
#include "wizards/schedule_flow.h"

namespace {

void filter(EventLogViewer& viewer, const std::optional<hessiancln::activity_log_info>& activity) {
    if (activity) {
        viewer.showFor(QDateTime::fromSecsSinceEpoch(activity->start_time),
                       QDateTime::fromSecsSinceEpoch(activity->end_time), activity->id);
    } else {
        const app::LogSpan span = app::yesterdayAndToday(QDate::currentDate());
        viewer.showFor(span.from, span.to, 0);
    }
}

/// The key that leads to a deletion isn't disabled with the command.
bool mayDelete(const hessiancln::backup_set_info& set) {
    return !session::g_isCentrallyManaged || !set.is_created_by_policy;
}

} // namespace

BackupSetViewItem* SimpleGUIMainWindow::selectedSetItem() const {
    return sets_->selectedCard();
}

void SimpleGUIMainWindow::selectSetOnceListed(std::int32_t setId) {
    sets_->selectOnceListed(setId);
}

void SimpleGUIMainWindow::commandSelectedSet(const QString& errorTitle, ui::Cursor cursor,
                                             const SetCommand& command) {
    const BackupSetViewItem* card = selectedSetItem();
    if (!card) {
        ui::showError(this, tr("Error"), tr("No backup set selected."));
        return;
    }
    // A copy: the card may go while a wizard is open.
    const hessiancln::backup_set_info set = card->record();
    ui::remoteAction(*this, errorTitle, cursor, [&] { command(set); });
}

void SimpleGUIMainWindow::start(StartOnSet* begin, const hessiancln::backup_set_info& set,
                                const QString& status) {
    // Kept for as long as the activity is spoken of.
    const auto activity = begin(set.id);
    RefreshActivityLogs();
    showStarted(set, status);
}

void SimpleGUIMainWindow::follow(const hessiancln::backup_set_info& set, const QString& status) {
    refreshAll();
    // Where the refresh met a failure, that is the news.
    if (session::connectedToAgent() && refreshFailure_.isEmpty())
        showStarted(set, status);
}

void SimpleGUIMainWindow::showStarted(const hessiancln::backup_set_info& set,
                                      const QString& status) {
    showStatus(status.arg(ui::timeText(QDateTime::currentSecsSinceEpoch(), QLocale::LongFormat),
                          session::fromWire(set.name)));
}

void SimpleGUIMainWindow::editSelectedSet(EditSet* edit) {
    commandSelectedSet(tr("Error"), ui::Cursor::arrow, [this, edit](const auto& set) {
        if (edit(*this, app::openBackupSet(set.id)))
            showSetDetails();
    });
}

void SimpleGUIMainWindow::OnNewBackupSet() {
    ui::remoteAction(*this, tr("New Backup Set Error"), ui::Cursor::arrow, [this] {
        if (const auto set = wizards::createBackupSet(*this)) {
            selectSetOnceListed(set->id);
            showStatus(
                tr("%1: Backup set '%2' created")
                    .arg(ui::timeText(QDateTime::currentSecsSinceEpoch(), QLocale::LongFormat),
                         set->name));
        }
    });
}

void SimpleGUIMainWindow::OnBackupNow() {
    commandSelectedSet(tr("Error"), ui::Cursor::wait, [this](const auto& set) {
        start(app::startBackup, set, tr("%1: On-demand backup started for '%2'"));
    });
}

void SimpleGUIMainWindow::OnSync() {
    commandSelectedSet(tr("Error"), ui::Cursor::arrow, [this](const auto& set) {
        start(app::startSync, set, tr("%1: On-demand Synchronization started for '%2'"));
    });
}

void SimpleGUIMainWindow::OnRestore() {
    commandSelectedSet(tr("Error"), ui::Cursor::arrow, [this](const auto& set) {
        if (const auto activity = wizards::restoreFromSet(*this, app::openBackupSet(set.id),
                                                          insight::addRestoreSummary))
            follow(set, tr("%1: Restore started for '%2'"));
    });
}

void SimpleGUIMainWindow::restoreFile(std::int32_t setId, const QStringList& path,
                                      std::optional<std::int32_t> upTo) {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [&] {
        const auto sets = sets_->records();
        const auto listed = std::ranges::find(sets, setId, &hessiancln::backup_set_info::id);
        // A copy: the list changes while the wizard is open.
        const auto set = listed == sets.end() ? hessiancln::backup_set_info() : *listed;
        if (const auto activity = wizards::restoreFromSet(*this, app::openBackupSet(setId),
                                                          insight::addRestoreSummary,
                                                          wizards::RestoreFile{path, upTo}))
            follow(set, tr("%1: Restore started for '%2'"));
    });
}

void SimpleGUIMainWindow::commandSet(std::int32_t setId, void (SimpleGUIMainWindow::*command)()) {
    if (sets_->selectSet(setId))
        (this->*command)();
}

void SimpleGUIMainWindow::OnDelete() {
    commandSelectedSet(tr("Error"), ui::Cursor::arrow, [this](const auto& set) {
        if (!mayDelete(set))
            return;
        if (const auto activity = wizards::deleteFromSet(*this, app::openBackupSet(set.id)))
            follow(set, tr("%1: Deletion started for '%2'"));
    });
}

void SimpleGUIMainWindow::on_btnItems_clicked() {
    commandSelectedSet(
        tr("Editing Backup Set Items Error"), ui::Cursor::arrow, [this](const auto& set) {
            const wizards::SetFeatures features = wizards::readSetFeatures();
            wizards::editItems(*this, features, app::openBackupSet(set.id), set.has_items);
        });
}

void SimpleGUIMainWindow::on_btnRetention_clicked() {
    editSelectedSet(wizards::editRetention);
}

void SimpleGUIMainWindow::on_btnSchedule_clicked() {
    const BackupSetViewItem* card = selectedSetItem();
    const std::int32_t set = card ? card->record().id : -1;
    editSelectedSet(wizards::editSchedule);
    insight_->scheduleChanged(set);
}

void SimpleGUIMainWindow::OnBackupSetSelectionChanged(const QItemSelection&,
                                                      const QItemSelection&) {
    showSetDetails();
    updateEnabling();
}

void SimpleGUIMainWindow::backupSetContextMenu(BackupSetViewItem*, QContextMenuEvent* event) {
    // Not run in a loop of its own: a heartbeat may take away the card that asked for it.
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(ui_->actionBackup_Now);
    menu->addAction(ui_->actionRestore);
    menu->addAction(ui_->actionDeleteFromOnline);
    menu->addSeparator();
    menu->addAction(ui_->actionSynchronize);
    menu->popup(event->globalPos());
}

void SimpleGUIMainWindow::OnRunningActivitySelectionChanged(const QItemSelection&,
                                                            const QItemSelection&) {
    ui_->buttonStop->setEnabled(activities_->anyRunningSelected());
}

void SimpleGUIMainWindow::OnStopActivity() {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this] {
        for (const std::int32_t id : activities_->selectedRunning())
            showStatus(tr("Sent a stop request to activity with id %1")
                           .arg(ui::numberText(app::stopActivity(id))));
    });
}

void SimpleGUIMainWindow::ShowEventLog() {
    showEventsOf(activities_->selectedLogEntry());
}

void SimpleGUIMainWindow::showEventsOf(
    const std::optional<hessiancln::activity_log_info>& activity) {
    EventLogViewer viewer(this);
    viewer.setNamesByActivity(
        insight_->namesByActivity(activities_->log().records(), activities_->running().records()));
    filter(viewer, activity);
    viewer.exec();
}

void SimpleGUIMainWindow::activityChangeDetected(
    const QList<hessiancln::running_activity_info>& appeared,
    const QList<hessiancln::running_activity_info>& disappeared) {
    tray_->announce(appeared, disappeared);
    insight_->watchEnds(disappeared);
}

void SimpleGUIMainWindow::announceEnd(const hessiancln::activity_log_info& ended,
                                      const QString& text) {
    if (ended.type == hessiancln::ActivityType::Restore) {
        showStatus(text);
        statusLink_->offer(text, [this, ended] { showEventsOf(ended); });
    }
    tray_->announceEnd(ended, text);
}

void SimpleGUIMainWindow::showMainWindow() {
    tray_->showWindow();
}

void SimpleGUIMainWindow::hideMainWindow() {
    tray_->hideWindow();
}

void SimpleGUIMainWindow::sysTrayActivated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Trigger)
        showMainWindow();
}

void SimpleGUIMainWindow::sysTrayMessageClicked() {
    tray_->endReminder();
    // Over a dialog there is no room for another one.
    if (tray_->lastNews() && session::connectedToAgent() && !QApplication::activeModalWidget()) {
        showMainWindow();
        showEventsOf(tray_->lastNews());
    }
}
