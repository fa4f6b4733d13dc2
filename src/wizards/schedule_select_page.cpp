// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/schedule_select_page.h"

#include <string>
#include <vector>

#include <QEvent>

#include "api/backup_set.h"
#include "api/checked_cast.h"
#include "api/client_configuration.h"
#include "api/client_connection.h"
#include "api/schedule_manager.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "session/wire_time.h"
#include "ui/wizard_frame.h"
#include "ui_schedule_select_page.h"
#include "wizards/schedule_times.h"

using hessiancln::MonthlyScheduleDetail;
using hessiancln::ScheduleDetail;
using hessiancln::ScheduleDetailType;
using hessiancln::ScheduleManager;
using hessiancln::WeeklyScheduleDetail;
using session::required;

namespace {

constexpr int nextDay = 1;
constexpr std::int32_t fullThrottle = 100;
constexpr const char* missedSchedule = "ScheduleMiss";

/// A wizard doesn't grow with a page that shows more widgets later.
void keepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

boost::shared_ptr<hessiancln::ClientConfiguration> configuration() {
    return required(session::getConnection()->getConfigurationManager());
}

std::string ownName(hessiancln::BackupSet& set) {
    return "schedule_for_set_" + std::to_string(set.getID());
}

boost::shared_ptr<hessiancln::Schedule> ownSchedule(ScheduleManager& manager,
                                                    const std::string& name) {
    for (const auto& schedule : manager.definedSchedules())
        if (required(schedule)->getName() == name)
            return schedule;
    auto created = required(manager.createSchedule());
    created->setName(name);
    return created;
}

} // namespace

ScheduleSelectPage::ScheduleSelectPage(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::ScheduleSelectPage>()) {
    ui_->setupUi(this);
    keepPlace(*ui_->groupTime);
    keepPlace(*ui_->scheduleDaysStack);
    for (const QCheckBox* box : dayBoxes())
        connect(box, &QCheckBox::clicked, this, &ScheduleSelectPage::completeChanged);
    setDefaults();
}

ScheduleSelectPage::~ScheduleSelectPage() = default;

void ScheduleSelectPage::setDefaults() {
    ui_->radioDaily->setChecked(true);
    on_radioDaily_clicked();
    const auto agent = configuration();
    ui_->timeStart->setTime(wizards::defaultStart(session::fromWire(agent->getClientNumber())));
    ui_->timeStop->setTime(QTime(6, 0));
    ui_->comboStopInDays->setCurrentIndex(nextDay);
    ui_->spinMissedSchedule->setValue(agent->getAdvancedConfigNumber(missedSchedule));
}

QRadioButton* ScheduleSelectPage::checkedKind() const {
    for (QRadioButton* kind : {ui_->radioDaily, ui_->radioMonthly})
        if (kind->isChecked())
            return kind;
    return ui_->radioNotScheduled;
}

void ScheduleSelectPage::showEvent(QShowEvent* event) {
    QWizardPage::showEvent(event);
    ui::focusFirst(*event, *checkedKind());
}

void ScheduleSelectPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}

void ScheduleSelectPage::load(const Set& set) {
    const SchedulePointer schedule = set->getSchedule();
    if (!schedule) {
        ui_->radioNotScheduled->setChecked(true);
        on_radioNotScheduled_clicked();
        return;
    }
    const std::vector<DetailPointer> details = schedule->getDetails();
    if (details.empty())
        return;
    ui_->checkCloudConnection->setChecked(schedule->isUsingNetworkDetection());
    const DetailPointer& detail = required(details.front());
    loadDays(detail);
    loadTimes(*detail);
}

void ScheduleSelectPage::loadDays(const DetailPointer& detail) {
    const ScheduleDetailType type = detail->getType();
    if (type == ScheduleDetailType::Weekly) {
        ui_->radioDaily->setChecked(true);
        on_radioDaily_clicked();
        setDays(hessiancln::checkedCast<WeeklyScheduleDetail>(detail)->getScheduleDays());
    } else if (type == ScheduleDetailType::Monthly) {
        ui_->radioMonthly->setChecked(true);
        on_radioMonthly_clicked();
        ui_->spinDayOfMonth->setValue(
            hessiancln::checkedCast<MonthlyScheduleDetail>(detail)->getScheduleDay());
    }
}

void ScheduleSelectPage::loadTimes(ScheduleDetail& detail) {
    ui_->timeStart->setTime(wizards::startTimeOf(detail.getStartTime()));
    const bool stops = detail.hasEndTime();
    ui_->checkStop->setChecked(stops);
    on_checkStop_clicked(stops);
    if (stops) {
        const wizards::StopTime stop = wizards::stopTimeOf(detail.getEndTime());
        ui_->timeStop->setTime(stop.time);
        ui_->comboStopInDays->setCurrentIndex(stop.days);
    }
    const std::int32_t hours = detail.getHourlyFrequency();
    ui_->checkOccurEvery->setChecked(hours > 0);
    if (hours > 0)
        ui_->spinOccurEvery->setValue(hours);
    on_checkOccurEvery_clicked(hours > 0);
}

void ScheduleSelectPage::apply(const Set& set) {
    applySchedule(*set);
    set->setActive(true);
    configuration()->setAdvancedConfigNumber(missedSchedule, ui_->spinMissedSchedule->value());
}

void ScheduleSelectPage::applySchedule(hessiancln::BackupSet& set) {
    const std::string name = ownName(set);
    const SchedulePointer old = set.getSchedule();
    const auto manager = required(session::getConnection()->getScheduleManager());
    const bool isOwn = old && old->getName() == name;
    if (ui_->radioNotScheduled->isChecked()) {
        if (old)
            set.setSchedule(nullptr);
        if (isOwn)
            manager->removeSchedule(old);
    } else if (isOwn) {
        write(*manager, *old);
    } else {
        const SchedulePointer own = ownSchedule(*manager, name);
        write(*manager, *own);
        set.setSchedule(own);
    }
}

void ScheduleSelectPage::write(ScheduleManager& manager, hessiancln::Schedule& schedule) {
    const DetailPointer detail = createDetail(manager);
    writeTimes(*detail);
    for (const DetailPointer& old : schedule.getDetails())
        schedule.removeDetail(required(old));
    schedule.addDetail(detail);
    const bool connected = ui_->checkCloudConnection->isChecked();
    schedule.setUsingNetworkDetection(connected);
    if (connected)
        schedule.setBackupCPUThrottle(fullThrottle);
}

ScheduleSelectPage::DetailPointer ScheduleSelectPage::createDetail(ScheduleManager& manager) const {
    if (ui_->radioMonthly->isChecked()) {
        auto monthly = required(manager.createMonthlyDetail());
        monthly->setScheduleDay(ui_->spinDayOfMonth->value());
        return monthly;
    }
    auto weekly = required(manager.createWeeklyDetail());
    weekly->setScheduleDays(days());
    return weekly;
}

void ScheduleSelectPage::writeTimes(ScheduleDetail& detail) const {
    detail.setStartTime(session::wireTime(ui_->timeStart->time()));
    if (ui_->checkStop->isChecked())
        detail.setEndTime(wizards::endTimeOf(stopTime()));
    else
        detail.setNoEndTime();
    detail.setHourlyFrequency(ui_->checkOccurEvery->isChecked() ? ui_->spinOccurEvery->value() : 0);
    detail.setTasks(hessiancln::taskBackup);
}

wizards::StopTime ScheduleSelectPage::stopTime() const {
    return {ui_->timeStop->time(), ui_->comboStopInDays->currentIndex()};
}

/// In bit order, Monday first.
std::array<QCheckBox*, 7> ScheduleSelectPage::dayBoxes() const {
    return {ui_->checkMonday, ui_->checkTuesday,  ui_->checkWednesday, ui_->checkThursday,
            ui_->checkFriday, ui_->checkSaturday, ui_->checkSunday};
}

std::int32_t ScheduleSelectPage::days() const {
    std::int32_t mask = 0;
    std::int32_t day = hessiancln::dayMonday;
    for (const QCheckBox* box : dayBoxes()) {
        if (box->isChecked())
            mask |= day;
        day <<= 1;
    }
    return mask;
}

void ScheduleSelectPage::setDays(std::int32_t mask) {
    std::int32_t day = hessiancln::dayMonday;
    for (QCheckBox* box : dayBoxes()) {
        box->setChecked((mask & day) != 0);
        day <<= 1;
    }
}

bool ScheduleSelectPage::isComplete() const {
    return wizards::isComplete({.daily = ui_->radioDaily->isChecked(),
                                .anyDay = days() != 0,
                                .stops = ui_->checkStop->isChecked(),
                                .stop = stopTime(),
                                .start = ui_->timeStart->time()});
}

void ScheduleSelectPage::on_radioNotScheduled_clicked() {
    ui_->groupTime->hide();
    ui_->scheduleDaysStack->hide();
    emit completeChanged();
}

void ScheduleSelectPage::on_radioDaily_clicked() {
    showTimes(*ui_->frameDaily);
}

void ScheduleSelectPage::on_radioMonthly_clicked() {
    showTimes(*ui_->frameMonthly);
}

void ScheduleSelectPage::showTimes(QWidget& days) {
    ui_->groupTime->show();
    ui_->scheduleDaysStack->show();
    ui_->scheduleDaysStack->setCurrentWidget(&days);
    emit completeChanged();
}

void ScheduleSelectPage::on_checkStop_clicked(bool checked) {
    ui_->timeStop->setEnabled(checked);
    ui_->comboStopInDays->setEnabled(checked);
    if (!checked || ui_->comboStopInDays->currentIndex() != 0)
        switchOccurEveryOff();
    emit completeChanged();
}

void ScheduleSelectPage::on_checkOccurEvery_clicked(bool checked) {
    ui_->labelOccurEvery->setEnabled(checked);
    ui_->spinOccurEvery->setEnabled(checked);
    if (checked) {
        ui_->comboStopInDays->setCurrentIndex(0);
        if (ui_->timeStop->time() < ui_->timeStart->time())
            ui_->timeStop->setTime(QTime(23, 59));
        ui_->checkStop->setChecked(true);
        on_checkStop_clicked(true);
    }
    ui_->spinMissedSchedule->setEnabled(!checked);
    emit completeChanged();
}

void ScheduleSelectPage::switchOccurEveryOff() {
    ui_->checkOccurEvery->setChecked(false);
    on_checkOccurEvery_clicked(false);
}

void ScheduleSelectPage::on_comboStopInDays_currentIndexChanged(int index) {
    if (index > 0)
        switchOccurEveryOff();
    emit completeChanged();
}

void ScheduleSelectPage::on_timeStart_timeChanged() {
    emit completeChanged();
}

void ScheduleSelectPage::on_timeStop_timeChanged() {
    emit completeChanged();
}
