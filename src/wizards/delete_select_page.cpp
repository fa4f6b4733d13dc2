// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/delete_select_page.h"

#include <utility>

#include <QEvent>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "api/backup_set.h"
#include "models/backed_up_data_model.h"
#include "models/backedup_data_dir_only_model.h"
#include "models/backedup_data_file_filter_model.h"
#include "models/override_cursor.h"
#include "models/tree_state_memo.h"
#include "session/required.h"
#include "ui/error_box.h"
#include "ui/remote_action.h"
#include "ui_delete_select_page.h"
#include "wizards/backup_time_span.h"
#include "wizards/confirm_by_code.h"
#include "wizards/delete_filter.h"
#include "wizards/set_removal.h"

using session::required;

namespace {

constexpr std::int32_t onlyMode = 0;

} // namespace

DeleteSelectPage::DeleteSelectPage(boost::shared_ptr<hessiancln::BackupSet> set, QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::DeleteSelectPage>())
    , set_(std::move(set)) {
    ui_->setupUi(this);
    setUpViews();
    setUpFilter();
    updateDataModel();
}

DeleteSelectPage::~DeleteSelectPage() = default;

void DeleteSelectPage::setUpViews() {
    ui_->treeSelection->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->splitter->setSizes({200, 300});
    connect(ui_->treeSelection, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        ui_->treeSelection->scrollTo(index, QAbstractItemView::PositionAtTop);
    });
    connect(ui_->editFilter, &QLineEdit::textChanged, this, &DeleteSelectPage::setFileNameFilter);
}

void DeleteSelectPage::setUpFilter() {
    using Page = DeleteSelectPage;
    connect(ui_->groupFilter, &QGroupBox::toggled, this, &Page::toggleFiltering);
    connect(ui_->checkFrom, &QCheckBox::toggled, this, &Page::toggleFrom);
    connect(ui_->checkTo, &QCheckBox::toggled, this, &Page::toggleTo);
    connect(ui_->checkRemoved, &QCheckBox::toggled, this, &Page::toggleRemoved);
    connect(ui_->checkKeep, &QCheckBox::toggled, this, &Page::toggleKeep);
    for (QDateTimeEdit* date : {ui_->dateFrom, ui_->dateTo, ui_->dateRemoved})
        connect(date, &QDateTimeEdit::dateTimeChanged, this, &Page::changeFilter);
    connect(ui_->spinKeep, qOverload<int>(&QSpinBox::valueChanged), this, &Page::changeFilter);
}

void DeleteSelectPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}

bool DeleteSelectPage::isComplete() const {
    return model_ && model_->hasSelection();
}

void DeleteSelectPage::atField(const std::function<void()>& work) {
    ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, work);
}

void DeleteSelectPage::toggleFiltering(bool on) {
    atField([this, on] {
        if (on)
            loadDateLimits();
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

void DeleteSelectPage::changeFilter() {
    atField([this] { updateDataModel(); });
}

void DeleteSelectPage::loadDateLimits() {
    if (!sessions_.empty())
        return;
    sessions_ = set_->backup_times();
    if (sessions_.empty())
        return;
    const auto span = wizards::backupTimeSpan(sessions_, QDateTime::currentDateTime());
    for (QDateTimeEdit* date : {ui_->dateFrom, ui_->dateTo, ui_->dateRemoved}) {
        // Each field would ask for a view of its own.
        const QSignalBlocker quiet(date);
        date->setDateTime(date == ui_->dateFrom ? span.earliest : span.latest);
        date->setMinimumDate(span.earliest.date());
        date->setMaximumDate(span.latest.date());
    }
}

void DeleteSelectPage::updateDataModel() {
    const models::OverrideCursor busy;
    const TreeStateMemo memo(*ui_->treeSelection, 0);
    const auto fields = filterFields();
    const auto filter = wizards::deleteFilter(fields);
    auto view = required(set_->prepare_delete(filter.from, filter.to, filter.removedSince,
                                              filter.keepLast, onlyMode));
    auto model = std::make_unique<CBackedUpDataModel>(view);
    model->fetchTopLevel();
    view_ = std::move(view);
    viewIsFiltered_ = wizards::isInForce(fields);
    showModel(std::move(model));
    {
        // Rows that open by themselves don't scroll.
        const QSignalBlocker quiet(ui_->treeSelection);
        memo.restore();
    }
    emit completeChanged();
}

void DeleteSelectPage::showModel(std::unique_ptr<CBackedUpDataModel> model) {
    directories_ = new CBackedupDataDirOnlyModel(*model);
    files_ = new CBackedupDataFileFilterModel(*model);
    files_->setFilterWildcard(ui_->editFilter->text());
    ui_->treeSelection->setModel(directories_);
    ui_->listSelection->setModel(files_);
    connect(ui_->treeSelection->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DeleteSelectPage::treeSelectionChanged);
    connect(model.get(), &CBackedUpDataModel::itemSelectionChanged, this,
            &DeleteSelectPage::treeCheckChanged);
    connect(model.get(), &CBackedUpDataModel::fetchFailed, this,
            &DeleteSelectPage::showFetchFailure);
    ui_->treeSelection->selectionModel()->setCurrentIndex(directories_->index(0, 0),
                                                          QItemSelectionModel::ClearAndSelect);
    model_ = std::move(model);
}

void DeleteSelectPage::setFileNameFilter(const QString& text) {
    files_->setFilterWildcard(text);
}

void DeleteSelectPage::treeSelectionChanged(const QItemSelection& selected) {
    if (selected.isEmpty())
        return;
    const QModelIndex folder = directories_->mapToSource(selected.indexes().first());
    files_->setSourceRoot(folder);
    ui_->listSelection->setRootIndex(files_->mapFromSource(folder));
}

void DeleteSelectPage::treeCheckChanged() {
    emit completeChanged();
}

void DeleteSelectPage::showFetchFailure(const QString& text) {
    // Many folders may fail at once, and one box says enough.
    if (showingFailure_)
        return;
    const QScopedValueRollback<bool> showing(showingFailure_, true);
    ui::showError(window(), tr("Error"), text);
}

wizards::DeleteFilterFields DeleteSelectPage::filterFields() const {
    return {.on = ui_->groupFilter->isChecked(),
            .useFrom = ui_->checkFrom->isChecked(),
            .from = ui_->dateFrom->dateTime(),
            .earliest = ui_->dateFrom->minimumDateTime(),
            .useTo = ui_->checkTo->isChecked(),
            .to = ui_->dateTo->dateTime(),
            .latest = ui_->dateTo->maximumDateTime(),
            .useRemoved = ui_->checkRemoved->isChecked(),
            .removed = ui_->dateRemoved->dateTime(),
            .useKeep = ui_->checkKeep->isChecked(),
            .keep = ui_->spinKeep->value()};
}

bool DeleteSelectPage::wantsRemoval(QWidget& parent) const {
    if (viewIsFiltered_ || wizards::isInForce(filterFields()) || !model_->allSelected())
        return false;
    // No is what the Return key says: nothing brings a set back.
    return QMessageBox::question(&parent, tr("Remove backup set?"),
                                 tr("You have selected all data to be deleted.\n"
                                    "Would you like to remove the backup set?"),
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

boost::shared_ptr<hessiancln::GenericActivity> DeleteSelectPage::finish(QWidget& parent) {
    const bool removal = wantsRemoval(parent);
    if (!wizards::confirmByCode(parent))
        return nullptr;
    if (removal)
        return wizards::removeSet(set_);
    const auto ids = model_->selectedIds();
    // What is checked may be a group that turned out empty.
    if (ids.empty())
        return nullptr;
    return required(view_->prepareDelete(ids))->start();
}
