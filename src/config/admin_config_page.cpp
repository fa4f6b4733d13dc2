// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/admin_config_page.h"

#include <QEvent>
#include <QWizard>

#include "api/client_connection.h"
#include "config/admin_times.h"
#include "session/connection.h"
#include "session/required.h"
#include "ui/remote_action.h"
#include "ui/wizard_frame.h"
#include "ui_admin_config_page.h"

using hessiancln::ClientConfiguration;

namespace {

auto configuration() {
    return session::required(session::getConnection()->getConfigurationManager());
}

/// Returns whether the run is on; if so, shows its time.
bool showTime(const hessiancln::time_in_day& time, QTimeEdit& edit) {
    const bool on = !hessiancln::isRunOff(time);
    if (on)
        edit.setTime(QTime(time.hour, time.minute));
    return on;
}

} // namespace

AdminConfigPage::AdminConfigPage(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::AdminConfigPage>()) {
    ui_->setupUi(this);
}

AdminConfigPage::~AdminConfigPage() = default;

void AdminConfigPage::initializePage() {
    try {
        read();
    } catch (const std::exception&) {
        ui::failWizard(wizard(), std::current_exception());
    }
}

void AdminConfigPage::read() {
    const auto manager = configuration();
    ui_->checkDaily->setChecked(showTime(manager->getDailyAdminRunTime(), *ui_->timeDaily));
    on_checkDaily_clicked(ui_->checkDaily->isChecked());
    readWeekly(*manager);
    on_checkWeekly_clicked(ui_->checkWeekly->isChecked());
}

void AdminConfigPage::readWeekly(ClientConfiguration& manager) {
    const bool on = showTime(manager.getWeeklyAdminRunTime(), *ui_->timeWeekly);
    ui_->checkWeekly->setChecked(on);
    if (on)
        ui_->comboDays->setCurrentIndex(config::rowOfDay(manager.getWeeklyAdminRunDay()));
}

void AdminConfigPage::save() {
    const auto manager = configuration();
    manager->setDailyAdminRunTime(
        config::runTime(ui_->checkDaily->isChecked(), ui_->timeDaily->time()));
    manager->setWeeklyAdminRunTime(
        config::dayOfRow(ui_->comboDays->currentIndex()),
        config::runTime(ui_->checkWeekly->isChecked(), ui_->timeWeekly->time()));
}

void AdminConfigPage::on_checkDaily_clicked(bool checked) {
    ui_->labelDailyStartAt->setEnabled(checked);
    ui_->timeDaily->setEnabled(checked);
}

void AdminConfigPage::on_checkWeekly_clicked(bool checked) {
    ui_->labelWeeklyStartAt->setEnabled(checked);
    ui_->timeWeekly->setEnabled(checked);
    ui_->labelEvery->setEnabled(checked);
    ui_->comboDays->setEnabled(checked);
}

void AdminConfigPage::on_btnDaily_clicked() {
    runNow([](ClientConfiguration& manager) { manager.start_daily_admin(); });
}

void AdminConfigPage::on_btnWeekly_clicked() {
    runNow([](ClientConfiguration& manager) { manager.start_weekly_admin(); });
}

void AdminConfigPage::runNow(const std::function<void(ClientConfiguration& manager)>& start) {
    ui::remoteAction(*this, tr("Configuration Error"), ui::Cursor::arrow,
                     [&start] { start(*configuration()); });
    wizard()->reject();
}

void AdminConfigPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}
