// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The main window while nobody looks at it: the heartbeat, the icon in the tray and its balloons.
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>

#include <boost/date_time/posix_time/posix_time_types.hpp>
#include <boost/thread/thread.hpp>

#include "app/activity_balloon.h"
#include "app/open_backup_set.h"
#include "app/simple_gui_main_window.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui_simple_gui_main_window.h"

namespace {

constexpr int kSecondsPerHeartbeat = 5;

QString productName() {
    return QStringLiteral("Tarn-Mobile User");
}

std::optional<QString> nameOfSet(std::int32_t setId) {
    try {
        return session::fromWire(app::openBackupSet(setId)->getName());
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace

void SimpleGUIMainWindow::activityWatcherLoop() {
    int seconds = 0;
    while (!stopWatcher_) {
        if (++seconds == kSecondsPerHeartbeat) {
            QCoreApplication::postEvent(this,
                                        new QEvent(static_cast<QEvent::Type>(heartbeatEventType_)));
            seconds = 0;
        }
        boost::this_thread::sleep(boost::posix_time::seconds(1));
    }
}

void SimpleGUIMainWindow::setUpTray() {
    // A dialog over the hidden window is the last one that is seen, and its end is none.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // At a log-out Qt would close the window, which only hides, and take that for a no to the end
    // of the user's session.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    actionShow_->setObjectName(QStringLiteral("actionShow"));
    actionHide_->setObjectName(QStringLiteral("actionHide"));
    trayMenu_->setObjectName(QStringLiteral("menuTray"));
    trayMenu_->addAction(actionShow_);
    trayMenu_->addAction(actionHide_);
    trayMenu_->addSeparator();
    trayMenu_->addAction(ui_->actionQuit);
    tray_->setContextMenu(trayMenu_);
    tray_->setIcon(ui::g_branding.applicationIcon());
    setTrayTexts();
    tray_->show();
    actionShow_->setEnabled(false);
    connect(actionShow_, &QAction::triggered, this, &SimpleGUIMainWindow::showMainWindow);
    connect(actionHide_, &QAction::triggered, this, &SimpleGUIMainWindow::hideMainWindow);
    connect(tray_.get(), &QSystemTrayIcon::activated, this, &SimpleGUIMainWindow::sysTrayActivated);
    connect(tray_.get(), &QSystemTrayIcon::messageClicked, this,
            &SimpleGUIMainWindow::sysTrayMessageClicked);
}

void SimpleGUIMainWindow::setTrayTexts() {
    actionShow_->setText(tr("Show"));
    actionHide_->setText(tr("Hide"));
    tray_->setToolTip(tr("%1").arg(productName()));
}

void SimpleGUIMainWindow::activityChangeDetected(
    const QList<hessiancln::running_activity_info>& appeared,
    const QList<hessiancln::running_activity_info>& disappeared) {
    if (isVisible() && isActiveWindow())
        return;
    tray_->showBalloon(tr("Ostrand Backup Activity"),
                       app::activityBalloonText(appeared, disappeared, nameOfSet));
}

void SimpleGUIMainWindow::showMainWindow() {
    actionShow_->setEnabled(false);
    actionHide_->setEnabled(true);
    if (isMaximized())
        showMaximized();
    else
        showNormal();
    activateWindow();
}

void SimpleGUIMainWindow::hideMainWindow() {
    if (!tray_->isAvailable())
        return;
    hide();
    actionShow_->setEnabled(true);
    actionHide_->setEnabled(false);
}

void SimpleGUIMainWindow::sysTrayActivated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Trigger)
        showMainWindow();
}

void SimpleGUIMainWindow::sysTrayMessageClicked() {
    showTrayReminder_ = false;
}

void SimpleGUIMainWindow::closeEvent(QCloseEvent* event) {
    hideMainWindow();
    event->ignore();
    if (showTrayReminder_)
        tray_->showBalloon(tr("%1 is still running!").arg(productName()),
                           tr("You can click the icon to show the window.\n\nClick here to not "
                              "show this reminder again."));
}
