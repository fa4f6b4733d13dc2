// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's slots that act on activities, and those of its icon in the tray.
#include "app/activity_commands.h"
#include "app/activity_news.h"
#include "app/activity_tables.h"
#include "app/insight_windows.h"
#include "app/simple_gui_main_window.h"
#include "app/tray_presence.h"
#include "ui/later.h"
#include "ui/locale_text.h"
#include "ui_simple_gui_main_window.h"

void SimpleGUIMainWindow::OnRunningActivitySelectionChanged(const QItemSelection&,
                                                            const QItemSelection&) {
    ui_->buttonStop->setEnabled(activities_->anyRunningSelected());
}

void SimpleGUIMainWindow::stopSelectedActivities() {
    for (const std::int32_t id : activities_->selectedRunning())
        showStatus(tr("Sent a stop request to activity with id %1")
                       .arg(ui::numberText(app::stopActivity(id))));
}

void SimpleGUIMainWindow::OnStopActivity() {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this] { stopSelectedActivities(); });
}

void SimpleGUIMainWindow::ShowEventLog() {
    news_->showEventsOf(activities_->selectedLogEntry());
}

void SimpleGUIMainWindow::activityChangeDetected(
    const QList<hessiancln::running_activity_info>& appeared,
    const QList<hessiancln::running_activity_info>& disappeared) {
    tray_->announce(appeared, disappeared);
    insight_->watchEnds(disappeared);
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
    // The desktop reports the click even during a call.
    ui::later(*this, [this] { news_->follow(tray_->lastNews()); });
}
