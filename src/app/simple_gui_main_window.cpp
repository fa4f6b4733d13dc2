// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/simple_gui_main_window.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "app/activity_news.h"
#include "app/activity_tables.h"
#include "app/backup_set_list.h"
#include "app/connection_display.h"
#include "app/enable_state.h"
#include "app/insight_windows.h"
#include "app/set_details_panel.h"
#include "app/tray_presence.h"
#include "session/process_values.h"
#include "ui/branding_resources.h"
#include "ui/date_fields.h"
#include "ui/screen_fit.h"
#include "ui_simple_gui_main_window.h"

SimpleGUIMainWindow::SimpleGUIMainWindow(QWidget* parent, std::unique_ptr<app::TrayIcon> tray,
                                         app::Heartbeat::Sleep sleep)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui::SimpleGUIMainWindow>())
    , heartbeat_(*this, std::move(sleep)) {
    ui_->setupUi(this);
    ui::fitDateFields(*this);
    ui_->pageProperties->resize(ui_->pageProperties->layout()->sizeHint());
    ui::letContentScroll(*ui_->pageProperties);
    setUpBranding();
    setUpActivities();
    setUpBackupSets();
    setUpInsight();
    setUpConnection();
    setUpGeometry();
    updateEnabling();
    heartbeat_.start();
    ui_->backupSetsView->installEventFilter(this);
    setUpTray(std::move(tray));
}

SimpleGUIMainWindow::~SimpleGUIMainWindow() {
    heartbeat_.stop();
    sets_->abandonEditing();
    // Releases objects that are still being read. During these calls, the window must be complete.
    insight_->clear();
}

app::EnableInputs SimpleGUIMainWindow::enableInputs() const {
    app::EnableInputs in;
    in.connected = session::connectedToAgent();
    in.activitySelected = activities_->anyRunningSelected();
    in.centrallyManaged = session::g_isCentrallyManaged;
    in.twoFactorEnabled = session::g_is2FAEnabled;
    in.setHasBackedUpData = details_->hasBackedUpData();
    if (const BackupSetViewItem* card = selectedSetItem()) {
        const hessiancln::backup_set_info& set = card->record();
        in.setSelected = true;
        in.setInSync = set.in_sync;
        in.setHasItems = set.has_items;
        in.setCreatedByPolicy = set.is_created_by_policy;
        in.activityRunsOnSet = activities_->running().hasActivityOnSet(set.id);
    }
    return in;
}

void SimpleGUIMainWindow::updateEnabling() {
    const app::EnableInputs in = enableInputs();
    const app::EnableState on = app::enableState(in);
    ui_->menu_Backup_Set->setEnabled(on.menuBackupSet);
    ui_->menu_Configuration->setEnabled(on.menuConfiguration);
    ui_->actionAdmin->setEnabled(on.actionAdmin);
    ui_->actionLogout->setEnabled(on.actionLogout);
    ui_->buttonEventLog->setEnabled(on.buttonEventLog);
    ui_->dateTimeFrom->setEnabled(on.dateTimeFrom);
    ui_->dateTimeTo->setEnabled(on.dateTimeTo);
    ui_->actionLogin->setEnabled(on.actionLogin);
    ui_->actionNew_Backup_Set->setEnabled(on.actionNewBackupSet);
    ui_->actionBackup_Now->setEnabled(on.actionBackupNow);
    ui_->actionRestore->setEnabled(on.actionRestore);
    ui_->actionDeleteFromOnline->setEnabled(on.actionDeleteFromOnline);
    ui_->actionSynchronize->setEnabled(on.actionSynchronize);
    ui_->buttonStop->setEnabled(on.buttonStop);
    ui_->pageProperties->setEnabled(on.pageProperties);
    ui_->btnItems->setEnabled(on.btnItems);
    ui_->btnSchedule->setEnabled(on.btnSchedule);
    ui_->btnRetention->setEnabled(on.btnRetention);
    ui_->actionTFASettings->setEnabled(on.actionTFASettings);
    ui_->actionFind_File->setEnabled(in.connected);

    if (!in.connected)
        refreshAll();
}

bool SimpleGUIMainWindow::event(QEvent* event) {
    if (event->type() == heartbeatEventType()) {
        tray_->keepReachable();
        refreshAll();
        return true;
    }
    const bool handled = QMainWindow::event(event);
    // Leaving a menu clears the status bar.
    if (event->type() == QEvent::StatusTip && static_cast<QStatusTipEvent*>(event)->tip().isEmpty())
        ui_->statusbar->showMessage(status_);
    return handled;
}

bool SimpleGUIMainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->backupSetsView && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        OnDelete();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void SimpleGUIMainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        // The form contains neither the title of a session nor the branding.
        const QString title = windowTitle();
        ui_->retranslateUi(this);
        setWindowTitle(title);
        ui_->actionLogo->setToolTip(ui::g_branding.description());
        tray_->setTexts();
        insight_->setTexts();
    }
    QMainWindow::changeEvent(event);
}

void SimpleGUIMainWindow::closeEvent(QCloseEvent* event) {
    hideMainWindow();
    event->ignore();
    tray_->remind();
}
