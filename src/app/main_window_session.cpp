// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window's session: how it begins, what the window reads in it, and how it ends.
#include <utility>

#include <QCoreApplication>
#include <QDateTime>

#include "api/client_connection.h"
#include "app/activity_commands.h"
#include "app/activity_tables.h"
#include "app/agent_policy.h"
#include "app/backup_set_list.h"
#include "app/connection_display.h"
#include "app/initial_configuration.h"
#include "app/insight_windows.h"
#include "app/login_check.h"
#include "app/set_details_panel.h"
#include "app/simple_gui_main_window.h"
#include "app/tray_presence.h"
#include "config/init_clnt_cfg_dlg.h"
#include "session/connection.h"
#include "session/integrated_logon.h"
#include "session/text.h"
#include "ui/error_box.h"
#include "ui/file_dialog.h"
#include "ui/locale_text.h"
#include "ui_simple_gui_main_window.h"

bool SimpleGUIMainWindow::doLogin(bool automatic) {
    QString server;
    QString user;
    if (automatic) {
        showStatus(tr("Logging to Tarn-Client..."));
        try {
            session::connectToAgent("127.0.0.1:4411", "", "", 0);
        } catch (const std::exception& error) {
            showStatus(ui::errorText(error));
            return false;
        }
        server = QStringLiteral("127.0.0.1");
        user = session::fromWire(session::currentWindowsUser());
    } else {
        comeOut();
        LoginCheck dialog(this);
        dialog.setWindowIcon(windowIcon());
        if (dialog.exec() != 0)
            return false;
        server = dialog.host();
        user = dialog.user();
    }
    showSession(server, user);
    updateEnabling();
    refreshAll();
    checkInitialConfiguration();
    offerNewBackupSet();
    return true;
}

void SimpleGUIMainWindow::showSession(const QString& server, const QString& user) {
    showStatus(tr("Logged in to '%1' as '%2'").arg(server, user));
    setWindowTitle(tr("Ostrand Backup - %1@%2").arg(user, server));
    if (session::connectedToAgent())
        connection_->begin(server, user);
}

void SimpleGUIMainWindow::showStatus(const QString& text) {
    status_ = text;
    ui_->statusbar->showMessage(text);
    // The next step may be a blocking call.
    ui_->statusbar->repaint();
}

void SimpleGUIMainWindow::showStarted(const QString& text) {
    if (session::connectedToAgent())
        showStatus(text);
}

void SimpleGUIMainWindow::OnConnect() {
    doLogin(false);
}

void SimpleGUIMainWindow::OnDisconnect() {
    session::disconnectFromAgent();
    showNoSession();
}

void SimpleGUIMainWindow::showNoSession() {
    connection_->end();
    tray_->forgetNews();
    setWindowTitle(tr("Ostrand Backup"));
    showStatus(tr("Current connection terminated"));
    updateEnabling();
}

void SimpleGUIMainWindow::OnQuit() {
    ui::rejectFileDialogs();
    QCoreApplication::quit();
}

void SimpleGUIMainWindow::checkInitialConfiguration() {
    if (!session::connectedToAgent())
        return;
    QString cause;
    const bool known =
        ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow, [this, &cause] {
            try {
                if (app::asksForInitialConfiguration(*session::getConnection()))
                    openInitialConfiguration();
            } catch (const std::exception& error) {
                cause = ui::errorText(error);
                throw;
            }
        });
    if (known)
        return;
    connection_->end(cause);
    OnDisconnect();
}

void SimpleGUIMainWindow::comeOut() {
    if (!isVisible())
        showMainWindow();
}

void SimpleGUIMainWindow::openInitialConfiguration() {
    comeOut();
    const int result = InitClntCfgDlg(true, this).exec();
    if (result == InitClntCfgDlg::cancelled)
        OnDisconnect();
    else if (result == InitClntCfgDlg::registered)
        startDailyAdmin();
}

void SimpleGUIMainWindow::offerNewBackupSet() {
    if (!session::connectedToAgent() || !sets_->isKnownToBeEmpty() || session::g_isCentrallyManaged)
        return;
    comeOut();
    OnNewBackupSet();
}

void SimpleGUIMainWindow::startDailyAdmin() {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::arrow, [this] {
        const auto activity = app::startDailyAdmin();
        RefreshActivityLogs();
        showStarted(
            tr("%1: Daily admin started.")
                .arg(ui::timeText(QDateTime::currentSecsSinceEpoch(), QLocale::LongFormat)));
    });
}

void SimpleGUIMainWindow::refreshAll() {
    if (!session::connectedToAgent()) {
        activities_->clear();
        sets_->clear();
        insight_->clear();
        return;
    }
    const QString before = std::exchange(refreshFailure_, {});
    try {
        RefreshTarnClientInfo();
        RefreshActivityLogs();
        refreshBackupSets();
        // Clear a failure that is over.
        if (!before.isEmpty() && status_ == before)
            showStatus({});
    } catch (const std::exception& error) {
        refreshFailure_ = ui::errorText(error);
        showStatus(refreshFailure_);
        activities_->clear();
    }
}

void SimpleGUIMainWindow::RefreshTarnClientInfo() {
    refresh(app::readAgentPolicy);
}

void SimpleGUIMainWindow::RefreshActivityLogs() {
    refresh([this] {
        activities_->refresh();
        insight_->takeActivities(activities_->log().records(), activities_->running().records());
    });
}

void SimpleGUIMainWindow::refresh(const std::function<void()>& read) {
    if (!session::connectedToAgent())
        return;
    try {
        read();
        updateEnabling();
    } catch (const std::exception& error) {
        showStatus(ui::errorText(error));
        activities_->clear();
        connection_->end(ui::errorText(error));
        OnDisconnect();
    }
}

void SimpleGUIMainWindow::refreshBackupSets() {
    if (!sets_->rebuild())
        return;
    connection_->listed(sets_->count());
    insight_->takeSets(sets_->records());
    // Last, when all rows are final: an error box lets the next heartbeat run.
    showSetDetails();
    updateEnabling();
}

void SimpleGUIMainWindow::showSetDetails() {
    const BackupSetViewItem* card = selectedSetItem();
    // While rows are removed at the end of a session, the view may briefly select another one.
    if (card && session::connectedToAgent())
        details_->show(card->record().id);
    else
        details_->clear();
}
