// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/delete_select_page.h"

#include <utility>

#include <QEvent>
#include <QKeyEvent>

#include "api/backup_set.h"
#include "models/backed_up_data_model.h"
#include "session/required.h"
#include "ui/date_fields.h"
#include "ui/message_box.h"
#include "ui/wait_cursor.h"
#include "ui_delete_select_page.h"
#include "wizards/confirm_by_code.h"
#include "wizards/delete_filter.h"
#include "wizards/exact_time.h"
#include "wizards/set_removal.h"

using session::required;

namespace {

constexpr std::int32_t onlyMode = 0;

} // namespace

DeleteSelectPage::DeleteSelectPage(boost::shared_ptr<hessiancln::BackupSet> set, QWidget* parent)
    : StoredItemsPage(parent)
    , ui_(std::make_unique<Ui::DeleteSelectPage>())
    , set_(std::move(set)) {
    ui_->setupUi(this);
    ui::fitDateFields(*this);
    setUp({*ui_->treeSelection, *ui_->listSelection, *ui_->splitter, *ui_->editFilter},
          {ui_->groupFilter, ui_->checkFrom, ui_->dateFrom, ui_->checkTo, ui_->dateTo,
           ui_->checkRemoved, ui_->dateRemoved, ui_->checkKeep, ui_->spinKeep});
    setUpFilter();
    updateDataModel();
}

DeleteSelectPage::~DeleteSelectPage() = default;

void DeleteSelectPage::setUpFilter() {
    using Page = DeleteSelectPage;
    // Not in the form: it would disable the group before it has its fields, and a running screen
    // reader would treat them as empty. Each field also depends on its own check box.
    ui_->groupFilter->setChecked(false);
    connect(ui_->groupFilter, &QGroupBox::toggled, this, &Page::toggleFiltering);
    connect(ui_->checkFrom, &QCheckBox::toggled, this, &Page::toggleFrom);
    connect(ui_->checkTo, &QCheckBox::toggled, this, &Page::toggleTo);
    connect(ui_->checkRemoved, &QCheckBox::toggled, this, &Page::toggleRemoved);
    connect(ui_->checkKeep, &QCheckBox::toggled, this, &Page::toggleKeep);
    for (QDateTimeEdit* date : {ui_->dateFrom, ui_->dateTo, ui_->dateRemoved})
        connect(date, &QDateTimeEdit::dateTimeChanged, this, &Page::changeDate);
    connect(ui_->spinKeep, qOverload<int>(&QSpinBox::valueChanged), this, &Page::changeFilter);
}

void DeleteSelectPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}

void DeleteSelectPage::keyPressEvent(QKeyEvent* event) {
    // The wizard would treat Return after a name or a date as its button, and delete immediately.
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        StoredItemsPage::keyPressEvent(event);
}

void DeleteSelectPage::toggleFiltering(bool on) {
    atField([this, on] {
        if (on)
            loadDateLimits(*set_, *ui_->dateFrom, {ui_->dateTo, ui_->dateRemoved});
        updateDataModel();
    });
}

void DeleteSelectPage::toggleFrom(bool on) {
    ui_->dateFrom->setEnabled(on);
    changeFilter();
}

void DeleteSelectPage::toggleTo(bool on) {
    ui_->dateTo->setEnabled(on);
    changeFilter();
}

void DeleteSelectPage::toggleRemoved(bool on) {
    ui_->dateRemoved->setEnabled(on);
    changeFilter();
}

void DeleteSelectPage::toggleKeep(bool on) {
    ui_->spinKeep->setEnabled(on);
    changeFilter();
}

void DeleteSelectPage::changeDate() {
    if (filterChanged())
        changeFilter();
}

void DeleteSelectPage::changeFilter() {
    atField([this] { updateDataModel(); });
}

void DeleteSelectPage::fieldsPutBack() {
    // An unchecked group has disabled them, and enables them when it is checked again.
    if (!ui_->groupFilter->isChecked())
        return;
    ui_->dateFrom->setEnabled(ui_->checkFrom->isChecked());
    ui_->dateTo->setEnabled(ui_->checkTo->isChecked());
    ui_->dateRemoved->setEnabled(ui_->checkRemoved->isChecked());
    ui_->spinKeep->setEnabled(ui_->checkKeep->isChecked());
}

void DeleteSelectPage::updateDataModel() {
    const ui::OverrideCursor busy;
    const auto filter = wizards::deleteFilter(filterFields());
    auto view = required(set_->prepare_delete(filter.from, filter.to, filter.removedSince,
                                              filter.keepLast, onlyMode));
    showContents(view);
    view_ = std::move(view);
}

wizards::DeleteFilterFields DeleteSelectPage::filterFields() const {
    return {.on = ui_->groupFilter->isChecked(),
            .useFrom = ui_->checkFrom->isChecked(),
            .from = wizards::shownTime(*ui_->dateFrom),
            .earliest = ui_->dateFrom->minimumDateTime(),
            .useTo = ui_->checkTo->isChecked(),
            .to = wizards::shownTime(*ui_->dateTo),
            .latest = ui_->dateTo->maximumDateTime(),
            .useRemoved = ui_->checkRemoved->isChecked(),
            .removed = wizards::shownTime(*ui_->dateRemoved),
            .useKeep = ui_->checkKeep->isChecked(),
            .keep = ui_->spinKeep->value()};
}

std::optional<bool> DeleteSelectPage::wantsRemoval(QWidget& parent) const {
    if (wizards::isInForce(filterFields()) || !model().allSelected())
        return false;
    return ui::asks(&parent, tr("Remove backup set?"),
                    tr("You have selected all data to be deleted.\n"
                       "Would you like to remove the backup set?"));
}

boost::shared_ptr<hessiancln::GenericActivity> DeleteSelectPage::finish(QWidget& parent) {
    const auto removal = wantsRemoval(parent);
    if (!removal || !wizards::confirmByCode(parent))
        return nullptr;
    if (*removal)
        return wizards::removeSet(set_);
    const auto ids = model().selectedIds();
    // The checked items may be a group that turned out to be empty.
    if (ids.empty())
        return nullptr;
    return required(view_->prepareDelete(ids))->start();
}
