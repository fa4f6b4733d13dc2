// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/backup_health_window.h"

#include <algorithm>
#include <utility>

#include <QDateTime>
#include <QEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "insight/copy_rows.h"
#include "insight/insight_texts.h"
#include "ui/branding_resources.h"
#include "ui/later.h"
#include "ui/shared_icon.h"
#include "ui/table_columns.h"
#include "ui_backup_health_window.h"

namespace {

constexpr std::int64_t secondsAWeek = std::int64_t{7} * 86400;

} // namespace

BackupHealthWindow::BackupHealthWindow(insight::HealthMonitor& monitor, AllowedOf allowedOf,
                                       QWidget* parent)
    : QDialog(parent)
    , monitor_(monitor)
    , allowedOf_(std::move(allowedOf))
    , ui_(std::make_unique<Ui::BackupHealthWindow>()) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    setUpTables();
    setUpButtons();
    fillWeeks();
    connect(&monitor_, &insight::HealthMonitor::changed, this, &BackupHealthWindow::showRows);
    connect(&monitor_, &insight::HealthMonitor::progressed, this,
            &BackupHealthWindow::showProgress);
    connect(&monitor_, &insight::HealthMonitor::failed, ui_->labelFailure, &QLabel::setText);
    connect(&monitor_, &insight::HealthMonitor::succeeded, ui_->labelFailure, &QLabel::clear);
    showProgress();
}

BackupHealthWindow::~BackupHealthWindow() = default;

void BackupHealthWindow::setUpTables() {
    ui::setUpTable(*ui_->tableSets, sets_);
    ui::setUpTable(*ui_->tableRuns, runs_);
    insight::copyRows(*ui_->tableSets);
    insight::copyRows(*ui_->tableRuns);
    connect(ui_->tableSets->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        keepsSelection_ = keepsSelection_ || !isRefilling_;
        showSelected();
    });
    connect(ui_->comboWeek, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &BackupHealthWindow::showWeek);
}

void BackupHealthWindow::setUpButtons() {
    const auto onSelected = [this](QPushButton* button, auto act) {
        connect(button, &QPushButton::clicked, this, [this, act] {
            if (const insight::HealthRow* row = selectedRow())
                act(*row);
        });
    };
    onSelected(ui_->buttonBackup,
               [this](const insight::HealthRow& row) { emit backupRequested(row.facts.info.id); });
    onSelected(ui_->buttonSync,
               [this](const insight::HealthRow& row) { emit syncRequested(row.facts.info.id); });
    onSelected(ui_->buttonEvents, [this](const insight::HealthRow& row) {
        emit eventsRequested(row.facts.lastAttempt.value_or(insight::BackupAttempt()));
    });
    connect(ui_->buttonCancel, &QPushButton::clicked, &monitor_,
            &insight::HealthMonitor::cancelReading);
    connect(ui_->buttonClose, &QPushButton::clicked, this, &BackupHealthWindow::accept);
}

void BackupHealthWindow::fillWeeks() {
    const QSignalBlocker quiet(ui_->comboWeek);
    const int current = std::max(ui_->comboWeek->currentIndex(), 0);
    ui_->comboWeek->clear();
    ui_->comboWeek->addItems({tr("The coming 7 days"), tr("The 7 days after them")});
    ui_->comboWeek->setCurrentIndex(current);
}

void BackupHealthWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    ui_->labelFailure->clear();
    keepsSelection_ = false;
    monitor_.watch();
    showRows();
}

void BackupHealthWindow::hideEvent(QHideEvent* event) {
    if (!event->spontaneous())
        monitor_.unwatch();
    QDialog::hideEvent(event);
}

const insight::HealthRow* BackupHealthWindow::selectedRow() const {
    const QModelIndexList rows = ui_->tableSets->selectionModel()->selectedRows();
    const auto& records = sets_.records();
    if (rows.isEmpty() || static_cast<std::size_t>(rows.first().row()) >= records.size())
        return nullptr;
    return &records[static_cast<std::size_t>(rows.first().row())];
}

void BackupHealthWindow::showRows() {
    // The main window changes the rows on each heartbeat.
    if (!isVisible())
        return;
    // The failure was one of the last session.
    if (sets_.records().empty() && !monitor_.rows().empty())
        ui_->labelFailure->clear();
    const insight::HealthRow* before = selectedRow();
    keepsSelection_ = keepsSelection_ && before;
    const std::int32_t id = keepsSelection_ ? before->facts.info.id : -1;
    {
        const QScopedValueRollback<bool> refilling(isRefilling_, true);
        sets_.setRecords(monitor_.rows());
        select(id);
    }
    const insight::HealthCount count = monitor_.count();
    ui_->labelSummary->setText(insight::summaryText(count));
    ui_->labelPicture->setPixmap(ui::sharedIcon(insight::summaryIcon(count)).pixmap(16));
    showSelected();
    showRuns();
}

/// Selects the set, or the worst one if it isn't there.
void BackupHealthWindow::select(std::int32_t setId) {
    int row = 0;
    for (std::size_t i = 0; i < sets_.records().size(); ++i)
        if (sets_.records()[i].facts.info.id == setId)
            row = static_cast<int>(i);
    if (!sets_.records().empty())
        ui_->tableSets->setCurrentIndex(sets_.index(row, 0));
}

void BackupHealthWindow::showSelected() {
    if (isRefilling_)
        return;
    // A screen reader can select a row during a wait.
    if (ui::waitsForCall(*this, [this] { showSelected(); }))
        return;
    const insight::HealthRow* row = selectedRow();
    ui_->labelHelp->setText(row ? insight::helpText(row->facts, row->health, monitor_.healthClock())
                                : QString());
    const Allowed allowed = row ? allowedOf_(*row) : Allowed();
    ui_->buttonBackup->setEnabled(allowed.backup);
    ui_->buttonSync->setEnabled(allowed.sync);
    ui_->buttonEvents->setEnabled(row != nullptr);
}

void BackupHealthWindow::showRuns() {
    runs_.setRecords(monitor_.nextRuns());
    showWeek();
}

void BackupHealthWindow::showWeek() {
    const std::int64_t from =
        monitor_.healthClock().now + ui_->comboWeek->currentIndex() * secondsAWeek;
    ui_->pictureWeek->showRuns(runs_.records(), from);
}

void BackupHealthWindow::showProgress() {
    const bool reading = monitor_.isReading();
    // From now on, a set that moves in the list must not pass its commands to another one.
    keepsSelection_ = keepsSelection_ || !reading;
    ui_->progressReading->setVisible(reading);
    ui_->buttonCancel->setVisible(reading);
    ui_->progressReading->setMaximum(std::max(monitor_.setsToRead(), 1));
    ui_->progressReading->setValue(monitor_.readSets());
}

void BackupHealthWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        fillWeeks();
        showRows();
    }
    QDialog::changeEvent(event);
}
