// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/simple_gui_main_window.h"

#include <array>

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>

#include <boost/thread/thread.hpp>

#include "app/activity_progress_item_delegate.h"
#include "app/log_span.h"
#include "ui/branding_resources.h"
#include "ui/fitting_text_delegate.h"
#include "ui_simple_gui_main_window.h"

namespace {

constexpr int kWidth = 1000;
constexpr int kSetsWidth = 650;
constexpr int kDetailsWidth = 350;
constexpr std::array kLogWidths{150, 280, 60, 80, 140, 140, 120, 60, 100};
constexpr std::array kRunningWidths{130, 140, 120, 320, 450};

/// Wants all the width that there is, and needs none. In a row of tool bars the last one gets what
/// the others don't want; with this in the first bar, the last one stands at the right end.
class Filler : public QWidget {
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {QWIDGETSIZE_MAX / 2, 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

template <class Widths>
void setUpTable(QTableView& table, app::SortedTableModel& model, const Widths& widths,
                int sortColumn) {
    table.setModel(&model);
    for (std::size_t column = 0; column < widths.size(); ++column)
        table.setColumnWidth(static_cast<int>(column), widths[column]);
    table.setItemDelegate(new ui::FittingTextDelegate(&table));
    // In the middle of its column, the header of a wide one would be out of sight.
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.sortByColumn(sortColumn, Qt::DescendingOrder);
}

} // namespace

SimpleGUIMainWindow::SimpleGUIMainWindow(QWidget* parent, std::unique_ptr<app::TrayIcon> tray)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui::SimpleGUIMainWindow>())
    , heartbeatEventType_(QEvent::registerEventType())
    , tray_(std::move(tray))
    , actionShow_(new QAction(this))
    , actionHide_(new QAction(this))
    , trayMenu_(new QMenu(this)) {
    ui_->setupUi(this);
    ui_->pageProperties->resize(ui_->pageProperties->layout()->sizeHint());
    setUpBranding();
    setUpToolBars();
    setUpDateRange();
    setUpActivityLog();
    setUpRunningActivities();
    setUpBackupSetsView();
    setUpGeometry();
    updateEnabling();
    watcher_ = std::make_unique<boost::thread>(&SimpleGUIMainWindow::activityWatcherLoop, this);
    ui_->backupSetsView->installEventFilter(this);
    setUpTray();
}

SimpleGUIMainWindow::~SimpleGUIMainWindow() {
    stopWatcher_ = true;
    watcher_->interrupt();
    watcher_->join();
    abandonEditing();
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
    const app::LogSpan span = app::yesterdayAndToday(QDate::currentDate());
    ui_->dateTimeFrom->setDateTime(span.from);
    ui_->dateTimeTo->setDateTime(span.to);
}

void SimpleGUIMainWindow::setUpActivityLog() {
    setUpTable(*ui_->tableActivityLog, activityLog_, kLogWidths, ActivityLogModel::start);
}

void SimpleGUIMainWindow::setUpRunningActivities() {
    QTableView& table = *ui_->tableCurrentActivities;
    setUpTable(table, running_, kRunningWidths, RunningActivitiesModel::startTime);
    app::keepSortArrow(table, running_);
    table.setItemDelegateForColumn(RunningActivitiesModel::progress,
                                   new CActivityProgressItemDelegate(running_, &table));
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SimpleGUIMainWindow::OnRunningActivitySelectionChanged);
    connect(&running_, &RunningActivitiesModel::activityChangeDetected, this,
            &SimpleGUIMainWindow::activityChangeDetected);
}

void SimpleGUIMainWindow::setUpBackupSetsView() {
    ui_->backupSetsView->setModel(&setRows_);
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

bool SimpleGUIMainWindow::event(QEvent* event) {
    if (event->type() == heartbeatEventType_) {
        refreshAll();
        return true;
    }
    return QMainWindow::event(event);
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
        setTrayTexts();
    }
    QMainWindow::changeEvent(event);
}
