// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/simple_gui_main_window.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>

#include <boost/date_time/posix_time/posix_time_types.hpp>

#include "app/login_check.h"
#include "session/connection.h"
#include "session/integrated_logon.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/error_box.h"
#include "ui_simple_gui_main_window.h"

namespace {

constexpr int kWidth = 1000;
constexpr int kSetsWidth = 650;
constexpr int kDetailsWidth = 350;
constexpr int kSetNameWidth = 330;
constexpr int kSecondsPerHeartbeat = 5;

/// Wants all the width that there is, and needs none. In a row of tool bars the last one gets what
/// the others don't want; with this in the first bar, the last one stands at the right end.
class Filler : public QWidget {
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {QWIDGETSIZE_MAX / 2, 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

SimpleGUIMainWindow::SimpleGUIMainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui::SimpleGUIMainWindow>())
    , heartbeatEventType_(QEvent::registerEventType()) {
    ui_->setupUi(this);
    ui_->pageProperties->resize(ui_->pageProperties->layout()->sizeHint());
    setUpBranding();
    setUpToolBars();
    setUpDateRange();
    setUpBackupSetsView();
    setUpGeometry();
    updateEnabling();
    watcher_ = boost::thread(&SimpleGUIMainWindow::activityWatcherLoop, this);
}

SimpleGUIMainWindow::~SimpleGUIMainWindow() {
    stopWatcher_ = true;
    watcher_.interrupt();
    watcher_.join();
}

void SimpleGUIMainWindow::setUpBranding() {
    ui::g_branding.load();
    setWindowIcon(ui::g_branding.applicationIcon());
    ui_->actionLogo->setIcon(ui::g_branding.logoIcon());
    ui_->actionLogo->setToolTip(ui::g_branding.description());
}

void SimpleGUIMainWindow::setUpToolBars() {
    ui_->toolBar->addWidget(new Filler(ui_->toolBar));
    ui_->toolBarLogo->setMinimumWidth(ui_->toolBarLogo->sizeHint().width());
}

void SimpleGUIMainWindow::setUpDateRange() {
    const QDate today = QDate::currentDate();
    ui_->dateTimeFrom->setDateTime(QDateTime(today.addDays(-1), QTime(0, 0)));
    ui_->dateTimeTo->setDateTime(QDateTime(today, QTime(23, 59, 59, 999)));
}

void SimpleGUIMainWindow::setUpBackupSetsView() {
    ui_->backupSetsView->setModel(&backupSets_);
    ui_->backupSetsView->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui_->backupSetsView->setColumnWidth(BackupSetsModel::nameColumn, kSetNameWidth);
    connect(ui_->backupSetsView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SimpleGUIMainWindow::OnBackupSetSelectionChanged);
}

void SimpleGUIMainWindow::setUpGeometry() {
    resize(kWidth, height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    ui_->splitterSetView->setSizes({kSetsWidth, kDetailsWidth});
    ui_->splitterSetView->setStretchFactor(0, 1);
    ui_->splitterSetView->setStretchFactor(1, 0);
}

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

bool SimpleGUIMainWindow::event(QEvent* event) {
    if (event->type() == heartbeatEventType_) {
        refreshAll();
        return true;
    }
    return QMainWindow::event(event);
}

void SimpleGUIMainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        // The form knows neither the title of a session nor the branding.
        const QString title = windowTitle();
        ui_->retranslateUi(this);
        setWindowTitle(title);
        ui_->actionLogo->setToolTip(ui::g_branding.description());
    }
    QMainWindow::changeEvent(event);
}

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
    return true;
}

void SimpleGUIMainWindow::showSession(const QString& server, const QString& user) {
    showStatus(tr("Logged in to '%1' as '%2'").arg(server, user));
    setWindowTitle(tr("Ostrand Backup - %1@%2").arg(user, server));
}

void SimpleGUIMainWindow::showStatus(const QString& text) {
    ui_->statusbar->showMessage(text);
}

void SimpleGUIMainWindow::OnConnect() {
    doLogin(false);
}

void SimpleGUIMainWindow::OnDisconnect() {
    session::disconnectFromAgent();
    setWindowTitle(tr("Ostrand Backup"));
    showStatus(tr("Current connection terminated"));
    updateEnabling();
}

void SimpleGUIMainWindow::OnQuit() {
    QCoreApplication::quit();
}

void SimpleGUIMainWindow::showMainWindow() {
    if (isMaximized())
        showMaximized();
    else
        showNormal();
    activateWindow();
}
