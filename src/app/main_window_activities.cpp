// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's slots that act on activities, and those of its icon in the tray.
#include <QApplication>
#include <QDateTime>

#include "app/activity_commands.h"
#include "app/activity_tables.h"
#include "app/event_log_viewer.h"
#include "app/insight_windows.h"
#include "app/log_span.h"
#include "app/simple_gui_main_window.h"
#include "app/status_link.h"
#include "app/tray_presence.h"
#include "session/connection.h"
#include "ui/later.h"
#include "ui/locale_text.h"
#include "ui_simple_gui_main_window.h"

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

} // namespace

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
    // The desktop reports the click even during a call.
    ui::later(*this, [this] { showLastNews(); });
}

void SimpleGUIMainWindow::showLastNews() {
    // Over a dialog there is no room for another one.
    if (!tray_->lastNews() || QApplication::activeModalWidget() || !session::connectedToAgent())
        return;
    showMainWindow();
    showEventsOf(tray_->lastNews());
}
