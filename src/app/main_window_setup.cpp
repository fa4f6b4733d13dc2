// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// What the main window consists of, and how its parts are connected.
#include <QDateTime>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>

#include "app/activity_news.h"
#include "app/activity_tables.h"
#include "app/backup_set_list.h"
#include "app/call_gate.h"
#include "app/connection_display.h"
#include "app/enable_state.h"
#include "app/insight_windows.h"
#include "app/set_details_panel.h"
#include "app/sets_splitter.h"
#include "app/simple_gui_main_window.h"
#include "app/tray_presence.h"
#include "session/process_values.h"
#include "ui/branding_resources.h"
#include "ui/locale_text.h"
#include "ui/wrapping_row.h"
#include "ui_simple_gui_main_window.h"

namespace {

constexpr int windowWidth = 1000;
constexpr int setsWidth = 650;
constexpr int detailsWidth = 350;

/// Expands to all available width and has no minimum. In a row of tool bars the last one gets the
/// remaining width; with this spacer in the first bar, the last one is at the right end.
class Filler : public QWidget {
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {QWIDGETSIZE_MAX / 2, 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

void SimpleGUIMainWindow::setUpBranding() {
    ui::g_branding.load();
    setWindowIcon(ui::g_branding.applicationIcon());
    ui_->actionLogo->setIcon(ui::g_branding.logoIcon());
    ui_->actionLogo->setToolTip(ui::g_branding.description());
    // Puts the logo's bar at the right end.
    ui_->toolBar->addWidget(new Filler(ui_->toolBar));
    ui_->toolBarLogo->setMinimumWidth(ui_->toolBarLogo->sizeHint().width());
}

void SimpleGUIMainWindow::setUpActivities() {
    ui::letRowWrap(*ui_->layoutRange);
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
    setMenu_ = new QMenu(this);
    setMenu_->addActions({ui_->actionBackup_Now, ui_->actionRestore, ui_->actionDeleteFromOnline});
    setMenu_->addSeparator();
    setMenu_->addAction(ui_->actionSynchronize);
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
            activities_->log()),
        [this] {
            return activities_->isLogKnown() ? tr("No activities in this period.") : QString();
        });
    setUpNews();
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
            &SimpleGUIMainWindow::backUpSet);
    connect(insight_.get(), &app::InsightWindows::syncRequested, this,
            &SimpleGUIMainWindow::syncSet);
    connect(insight_.get(), &app::InsightWindows::eventsRequested, news_.get(),
            &app::ActivityNews::showEventsOf);
    connect(insight_.get(), &app::InsightWindows::restoreRequested, this,
            &SimpleGUIMainWindow::restoreFile);
    connect(insight_.get(), &app::InsightWindows::activityEnded, news_.get(),
            &app::ActivityNews::announceEnd);
}

void SimpleGUIMainWindow::setUpNews() {
    news_ = std::make_unique<app::ActivityNews>(*this, *ui_->statusbar, [this] {
        return insight_->namesByActivity(activities_->log().records(),
                                         activities_->running().records());
    });
    connect(news_.get(), &app::ActivityNews::statusChanged, this, &SimpleGUIMainWindow::showStatus);
    connect(news_.get(), &app::ActivityNews::windowWanted, this,
            &SimpleGUIMainWindow::showMainWindow);
}

void SimpleGUIMainWindow::setUpGeometry() {
    resize(windowWidth, height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    ui_->splitterSetView->setSizes(sizesOfSplitter());
    ui_->splitterSetView->setStretchFactor(0, 1);
    ui_->splitterSetView->setStretchFactor(1, 0);
    new app::SetsSplitter(*ui_->splitterSetView, *ui_->pageProperties);
}

QList<int> SimpleGUIMainWindow::sizesOfSplitter() const {
    const QMargins around = ui_->centralwidget->layout()->contentsMargins();
    const int room =
        windowWidth - around.left() - around.right() - ui_->splitterSetView->handleWidth();
    const int share = room * detailsWidth / (setsWidth + detailsWidth);
    // The time of a backup is the widest of the values. A translation may need more room.
    const QString time = ui::timeText(QDateTime::currentSecsSinceEpoch(), QLocale::ShortFormat);
    const int needed =
        ui_->pageProperties->sizeHint().width() + fontMetrics().horizontalAdvance(time);
    if (session::g_language.isEmpty() || needed <= share)
        return {setsWidth, detailsWidth};
    return {room - needed, needed};
}

void SimpleGUIMainWindow::setUpTray(std::unique_ptr<app::TrayIcon> icon) {
    tray_ = std::make_unique<app::TrayPresence>(*this, *ui_->actionQuit, std::move(icon));
    connect(&tray_->actionShow(), &QAction::triggered, this, &SimpleGUIMainWindow::showMainWindow);
    connect(&tray_->actionHide(), &QAction::triggered, this, &SimpleGUIMainWindow::hideMainWindow);
    connect(insight_.get(), &app::InsightWindows::activityEnded, this,
            [this](const auto& ended, const QString& text) { tray_->announceEnd(ended, text); });
    connect(&tray_->icon(), &QSystemTrayIcon::activated, this,
            &SimpleGUIMainWindow::sysTrayActivated);
    connect(&tray_->icon(), &app::TrayIcon::balloonClicked, this,
            &SimpleGUIMainWindow::sysTrayMessageClicked);
}

void SimpleGUIMainWindow::keepAliveBy(app::CallGate& gate) {
    gate.holdBack(heartbeatEventType());
    gate.admit(*ui_->actionQuit);
    gate.admit(tray_->actionShow());
    gate.admit(tray_->actionHide());
}
