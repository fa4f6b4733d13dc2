// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/simple_gui_main_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>

#include "app/activity_tables.h"
#include "app/backup_set_list.h"
#include "app/call_gate.h"
#include "app/connection_display.h"
#include "app/enable_state.h"
#include "app/insight_windows.h"
#include "app/set_details_panel.h"
#include "app/status_link.h"
#include "app/tray_presence.h"
#include "session/process_values.h"
#include "ui/branding_resources.h"
#include "ui/screen_fit.h"
#include "ui_simple_gui_main_window.h"

namespace {

constexpr int windowWidth = 1000;
constexpr int setsWidth = 650;
constexpr int detailsWidth = 350;

/// Wants all the width that there is, and needs none. In a row of tool bars the last one gets what
/// the others don't want; with this in the first bar, the last one stands at the right end.
class Filler : public QWidget {
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {QWIDGETSIZE_MAX / 2, 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

SimpleGUIMainWindow::SimpleGUIMainWindow(QWidget* parent, std::unique_ptr<app::TrayIcon> tray)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui::SimpleGUIMainWindow>())
    , heartbeat_(*this) {
    ui_->setupUi(this);
    ui_->pageProperties->resize(ui_->pageProperties->layout()->sizeHint());
    ui::letContentScroll(*ui_->pageProperties);
    setUpBranding();
    setUpToolBars();
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

void SimpleGUIMainWindow::setUpActivities() {
    activities_ = std::make_unique<app::ActivityTables>(
        app::ActivityTables::Widgets{*ui_->tableCurrentActivities, *ui_->tableActivityLog,
                                     *ui_->dateTimeFrom, *ui_->dateTimeTo});
    connect(ui_->tableCurrentActivities->selectionModel(), &QItemSelectionModel::selectionChanged,
            this, &SimpleGUIMainWindow::OnRunningActivitySelectionChanged);
    connect(ui_->tableActivityLog, &QTableView::doubleClicked, this,
            &SimpleGUIMainWindow::ShowEventLog);
    connect(&activities_->running(), &RunningActivitiesModel::activityChangeDetected, this,
            &SimpleGUIMainWindow::activityChangeDetected);
}

void SimpleGUIMainWindow::setUpBackupSets() {
    sets_ = std::make_unique<app::BackupSetList>(*ui_->backupSetsView);
    connect(sets_.get(), &app::BackupSetList::selectionChanged, this,
            &SimpleGUIMainWindow::OnBackupSetSelectionChanged);
    connect(sets_.get(), &app::BackupSetList::contextMenuNeedsDisplay, this,
            &SimpleGUIMainWindow::backupSetContextMenu);
    details_ = std::make_unique<app::SetDetailsPanel>(
        *ui_->pageProperties,
        app::SetDetailsPanel::Labels{*ui_->valLastBackup, *ui_->valFileGens, *ui_->valSize,
                                     *ui_->valItems, *ui_->valSchedule, *ui_->valRetention});
}

void SimpleGUIMainWindow::setUpConnection() {
    connection_ = new app::ConnectionDisplay(*ui_->statusbar, *ui_->backupSetsView);
    connect(connection_, &app::ConnectionDisplay::connectWanted, this,
            &SimpleGUIMainWindow::OnConnect);
}

void SimpleGUIMainWindow::setUpInsight() {
    ui_->searchActivityLog->attach(
        *ui_->tableActivityLog,
        std::make_unique<insight::SearchedRecords<hessiancln::activity_log_info>>(
            activities_->log()));
    statusLink_ = new app::StatusLink(*ui_->statusbar);
    insight_ = std::make_unique<app::InsightWindows>(
        *this, *ui_->statusbar, *ui_->searchActivityLog, [this](const insight::HealthRow& row) {
            app::EnableInputs in = enableInputs();
            in.setSelected = true;
            in.setInSync = row.facts.info.in_sync;
            in.setHasItems = row.facts.info.has_items;
            in.setCreatedByPolicy = row.facts.info.is_created_by_policy;
            in.activityRunsOnSet = row.facts.isRunning;
            const app::EnableState on = app::enableState(in);
            return BackupHealthWindow::Allowed{on.actionBackupNow, on.actionSynchronize};
        });
    connect(ui_->actionBackup_Health, &QAction::triggered, insight_.get(),
            &app::InsightWindows::openHealth);
    connect(ui_->actionFind_File, &QAction::triggered, this, [this] {
        const BackupSetViewItem* card = selectedSetItem();
        insight_->openFindFile(card ? card->record().id : -1);
    });
    connect(insight_.get(), &app::InsightWindows::backupRequested, this,
            [this](std::int32_t set) { commandSet(set, &SimpleGUIMainWindow::OnBackupNow); });
    connect(insight_.get(), &app::InsightWindows::syncRequested, this,
            [this](std::int32_t set) { commandSet(set, &SimpleGUIMainWindow::OnSync); });
    connect(insight_.get(), &app::InsightWindows::eventsRequested, this,
            &SimpleGUIMainWindow::showEventsOf);
    connect(insight_.get(), &app::InsightWindows::restoreRequested, this,
            &SimpleGUIMainWindow::restoreFile);
    connect(insight_.get(), &app::InsightWindows::activityEnded, this,
            &SimpleGUIMainWindow::announceEnd);
}

void SimpleGUIMainWindow::setUpGeometry() {
    resize(windowWidth, height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    ui_->splitterSetView->setSizes({setsWidth, detailsWidth});
    ui_->splitterSetView->setStretchFactor(0, 1);
    ui_->splitterSetView->setStretchFactor(1, 0);
}

void SimpleGUIMainWindow::setUpTray(std::unique_ptr<app::TrayIcon> icon) {
    tray_ = std::make_unique<app::TrayPresence>(*this, *ui_->actionQuit, std::move(icon));
    connect(&tray_->actionShow(), &QAction::triggered, this, &SimpleGUIMainWindow::showMainWindow);
    connect(&tray_->actionHide(), &QAction::triggered, this, &SimpleGUIMainWindow::hideMainWindow);
    connect(&tray_->icon(), &QSystemTrayIcon::activated, this,
            &SimpleGUIMainWindow::sysTrayActivated);
    connect(&tray_->icon(), &QSystemTrayIcon::messageClicked, this,
            &SimpleGUIMainWindow::sysTrayMessageClicked);
}

void SimpleGUIMainWindow::keepAliveBy(app::CallGate& gate) {
    gate.holdBack(heartbeatEventType());
    gate.admit(*ui_->actionQuit);
    gate.admit(tray_->actionShow());
    gate.admit(tray_->actionHide());
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
        refreshAll();
        return true;
    }
    const bool handled = QMainWindow::event(event);
    // Leaving a menu empties the status bar.
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
        // The form knows neither the title of a session nor the branding.
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
