// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/retention_select_page.h"

#include <cstdint>
#include <string>

#include <QEvent>

#include "api/backup_set.h"
#include "api/client_connection.h"
#include "api/retention_rule_manager.h"
#include "session/connection.h"
#include "session/required.h"
#include "ui/wizard_frame.h"
#include "ui_retention_select_page.h"

using hessiancln::RetentionRule;
using hessiancln::RetentionRuleManager;
using hessiancln::RetentionTimeUnit;
using session::required;

namespace {

std::string ownName(hessiancln::BackupSet& set) {
    return "retention_for_set_" + std::to_string(set.getID());
}

boost::shared_ptr<RetentionRule> ownRule(RetentionRuleManager& manager, const std::string& name) {
    for (const auto& rule : manager.definedRules())
        if (required(rule)->getName() == name)
            return rule;
    auto created = required(manager.createRule());
    created->setName(name);
    return created;
}

void addInterval(RetentionRuleManager& manager, RetentionRule& rule,
                 const wizards::IntervalRule& interval) {
    const auto option = required(manager.createIntervalTimeRetention());
    option->setRepeatTime(interval.repeat);
    option->setValidFor(interval.validFor);
    rule.addTimeRetentionOption(option);
}

} // namespace

RetentionSelectPage::RetentionSelectPage(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::RetentionSelectPage>()) {
    ui_->setupUi(this);
    ui_->groupLocalStorage->setVisible(session::g_isMobileClient);
}

RetentionSelectPage::~RetentionSelectPage() = default;

void RetentionSelectPage::showEvent(QShowEvent* event) {
    QWizardPage::showEvent(event);
    ui::focusFirst(*event, *ui_->spinMaxGens);
}

void RetentionSelectPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}

/// The box is identified by how long its option is valid; the agent can't report the rest.
void RetentionSelectPage::checkInterval(RetentionTimeUnit validFor) {
    for (const Interval& interval : intervals())
        if (interval.rule.validFor.unit == validFor)
            interval.box->setChecked(true);
}

std::array<RetentionSelectPage::Interval, 3> RetentionSelectPage::intervals() const {
    return {{{ui_->checkOnePerDay, wizards::onePerDay()},
             {ui_->checkOnePerWeek, wizards::onePerWeek()},
             {ui_->checkOnePerMonth, wizards::onePerMonth()}}};
}

void RetentionSelectPage::load(const Set& set) {
    const auto rule = set->getRetentionRule();
    if (!rule)
        return;
    for (const Interval& interval : intervals())
        interval.box->setChecked(false);
    ui_->spinMaxGens->setValue(rule->getKeepLastGenerations());
    for (const auto& option : rule->getTimeRetentions())
        checkInterval(required(option)->getValidFor().unit);
    loadCleanup(*rule);
    loadLocalStorage(*set, *rule);
}

void RetentionSelectPage::loadCleanup(RetentionRule& rule) {
    const bool cleanup = rule.getCleanupRemovedFiles();
    ui_->checkCleanupFiles->setChecked(cleanup);
    on_checkCleanupFiles_clicked(cleanup);
    if (!cleanup)
        return;
    const hessiancln::retention_time_span after = rule.getCleanupRemovedAfter();
    ui_->spinCleanupAfterPeriod->setValue(after.period);
    ui_->comboCleanupAfterUnit->setCurrentIndex(wizards::indexOfUnit(after.unit));
    ui_->spinCleanupKeepGens->setValue(rule.getCleanupRemovedKeep());
}

void RetentionSelectPage::loadLocalStorage(hessiancln::BackupSet& set, RetentionRule& rule) {
    ui_->groupLocalStorage->setEnabled(set.isUsingLocalStorage());
    const std::int32_t period = rule.getLocalStorageRetention().period;
    ui_->checkLocalKeepAllGens->setChecked(period > 0);
    on_checkLocalKeepAllGens_clicked(period > 0);
    if (period > 0)
        ui_->spinLocalKeepAllGens->setValue(period);
}

void RetentionSelectPage::apply(const Set& set) {
    const std::string name = ownName(*set);
    auto rule = set->getRetentionRule();
    const auto manager = required(session::getConnection()->getRetentionRuleManager());
    if (!rule || rule->getName() != name) {
        rule = ownRule(*manager, name);
        set->setRetentionRule(rule);
    }
    write(*manager, *rule);
}

void RetentionSelectPage::write(RetentionRuleManager& manager, RetentionRule& rule) const {
    rule.setKeepLastGenerations(ui_->spinMaxGens->value());
    for (const auto& option : rule.getTimeRetentions())
        rule.removeTimeRetentionOption(required(option));
    for (const Interval& interval : intervals())
        if (interval.box->isChecked())
            addInterval(manager, rule, interval.rule);
    writeCleanup(rule);
    const bool keepsAll = ui_->checkLocalKeepAllGens->isChecked();
    rule.setLocalStorageRetention(
        {keepsAll ? ui_->spinLocalKeepAllGens->value() : 0, RetentionTimeUnit::Days});
}

void RetentionSelectPage::writeCleanup(RetentionRule& rule) const {
    const bool cleanup = ui_->checkCleanupFiles->isChecked();
    rule.setCleanupRemovedFiles(cleanup);
    if (!cleanup)
        return;
    rule.setCleanupRemovedAfter({ui_->spinCleanupAfterPeriod->value(),
                                 wizards::unitOfIndex(ui_->comboCleanupAfterUnit->currentIndex())});
    rule.setCleanupRemovedKeep(ui_->spinCleanupKeepGens->value());
}

void RetentionSelectPage::on_checkCleanupFiles_clicked(bool checked) {
    ui_->spinCleanupAfterPeriod->setEnabled(checked);
    ui_->comboCleanupAfterUnit->setEnabled(checked);
    ui_->spinCleanupKeepGens->setEnabled(checked);
}

void RetentionSelectPage::on_checkLocalKeepAllGens_clicked(bool checked) {
    ui_->spinLocalKeepAllGens->setEnabled(checked);
}
