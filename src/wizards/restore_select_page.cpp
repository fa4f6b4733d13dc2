// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/restore_select_page.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "api/backup_set.h"
#include "models/backed_up_data_model.h"
#include "models/backed_up_node.h"
#include "models/backedup_data_dir_only_model.h"
#include "models/backedup_data_file_filter_model.h"
#include "models/display_path.h"
#include "models/generation_select_model.h"
#include "session/required.h"
#include "ui/date_fields.h"
#include "ui/wait_cursor.h"
#include "ui_restore_select_page.h"
#include "wizards/backup_time_span.h"
#include "wizards/exact_time.h"
#include "wizards/restore_flow.h"
#include "wizards/select_generation_dlg.h"

using session::required;

namespace {

/// The agent may no longer list the backup that the time belongs to, so the time may be out of the
/// field's range; any other time would show another generation.
void moveTo(QDateTimeEdit& field, std::int32_t seconds) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(seconds);
    if (time < field.minimumDateTime())
        field.setMinimumDate(time.date());
    if (time > field.maximumDateTime())
        field.setMaximumDate(time.date());
    wizards::showTime(field, time);
}

/// The file at the end of a path; a folder of an earlier time may have the same name.
QModelIndex fileAt(const CBackedUpDataModel& model, QStringList path) {
    const QString name = path.takeLast();
    const QModelIndex folder = models::folderAtPath(model, path, Qt::CaseSensitive);
    if (!folder.isValid() && !path.isEmpty())
        return {};
    for (int row = 0; row < model.rowCount(folder); ++row) {
        const QModelIndex child = model.index(row, 0, folder);
        if (!model.canHaveChildren(child) && child.data().toString() == name)
            return child;
    }
    return {};
}

} // namespace

RestoreSelectPage::RestoreSelectPage(boost::shared_ptr<hessiancln::BackupSet> set, QWidget* parent)
    : StoredItemsPage(parent)
    , ui_(std::make_unique<Ui::RestoreSelectPage>())
    , set_(std::move(set)) {
    ui_->setupUi(this);
    ui::fitDateFields(*this);
    ui_->filterDisplay->hide();
    setUp({*ui_->treeSelection, *ui_->listSelection, *ui_->splitter, *ui_->editFilter},
          {ui_->checkFilter, ui_->checkFrom, ui_->dateFrom, ui_->checkTo, ui_->dateTo,
           ui_->checkRemoved, ui_->dateRemoved});
    setUpFilter();
    updateDataModel();
}

RestoreSelectPage::~RestoreSelectPage() = default;

void RestoreSelectPage::setUpFilter() {
    using Page = RestoreSelectPage;
    connect(ui_->buttonGenerations, &QPushButton::clicked, this, &Page::showFileGenerations);
    // A file removed by the file filter loses its selection without a signal.
    connect(ui_->editFilter, &QLineEdit::textChanged, this, &Page::fileListSelectionChanged);
    connect(ui_->checkFilter, &QCheckBox::toggled, this, &Page::toggleFiltering);
    // On user input only.
    connect(ui_->checkFrom, &QCheckBox::clicked, this, &Page::toggleFrom);
    connect(ui_->checkTo, &QCheckBox::toggled, this, &Page::toggleTo);
    connect(ui_->checkRemoved, &QCheckBox::toggled, this, &Page::toggleRemoved);
    for (QDateTimeEdit* date : {ui_->dateFrom, ui_->dateTo, ui_->dateRemoved})
        connect(date, &QDateTimeEdit::dateTimeChanged, this, &Page::changeDate);
}

void RestoreSelectPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}

/// Includes the filter even while it is hidden.
QSize RestoreSelectPage::largestSize() const {
    QSize size = sizeHint();
    if (!ui_->filterDisplay->isHidden())
        return size;
    const QSize filter = ui_->filterDisplay->minimumSizeHint();
    const int around = size.width() - ui_->layoutItems->minimumSize().width();
    const QMargins margins = ui_->layoutItems->contentsMargins();
    size.rheight() += filter.height() + ui_->layoutItems->spacing();
    const int wanted = filter.width() + margins.left() + margins.right() + around;
    size.setWidth(std::max(size.width(), wanted));
    return size;
}

void RestoreSelectPage::toggleFiltering(bool on) {
    atField([this, on] {
        showFilter(on);
        updateDataModel();
    });
}

void RestoreSelectPage::showFilter(bool on) {
    if (on)
        loadDateLimits(*set_, *ui_->dateFrom, {ui_->dateTo, ui_->dateRemoved});
    ui_->filterDisplay->setVisible(on);
}

void RestoreSelectPage::toggleFrom(bool on) {
    ui_->dateFrom->setEnabled(on);
    changeFilter();
}

void RestoreSelectPage::toggleTo(bool on) {
    ui_->dateTo->setEnabled(on);
    changeFilter();
}

void RestoreSelectPage::toggleRemoved(bool on) {
    ui_->dateRemoved->setEnabled(on);
    changeFilter();
}

void RestoreSelectPage::changeDate() {
    if (filterChanged())
        changeFilter();
}

void RestoreSelectPage::changeFilter() {
    atField([this] { updateDataModel(); });
}

void RestoreSelectPage::fieldsPutBack() {
    ui_->filterDisplay->setVisible(ui_->checkFilter->isChecked());
    ui_->dateFrom->setEnabled(ui_->checkFrom->isChecked());
    ui_->dateTo->setEnabled(ui_->checkTo->isChecked());
    ui_->dateRemoved->setEnabled(ui_->checkRemoved->isChecked());
}

RestoreSelectPage::Span RestoreSelectPage::span() const {
    if (!ui_->checkFilter->isChecked())
        return {};
    const auto limit = [](const QCheckBox& box, const QDateTimeEdit& date) {
        return box.isChecked() ? wizards::limitOf(wizards::shownTime(date)) : 0;
    };
    const bool hasFrom = ui_->checkFrom->isChecked();
    return {hasFrom ? wizards::secondsOf(wizards::shownTime(*ui_->dateFrom)) : 0,
            limit(*ui_->checkTo, *ui_->dateTo), limit(*ui_->checkRemoved, *ui_->dateRemoved)};
}

void RestoreSelectPage::updateDataModel() {
    if (suspended_)
        return;
    const ui::OverrideCursor busy;
    const auto [from, to, removed] = span();
    auto view = required(set_->prepare_restore(from, to, removed));
    showContents(view);
    view_ = std::move(view);
    sizes_.clear();
    connect(ui_->listSelection->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RestoreSelectPage::fileListSelectionChanged);
    fileListSelectionChanged();
}

void RestoreSelectPage::treeSelectionChanged(const QItemSelection& selected) {
    StoredItemsPage::treeSelectionChanged(selected);
    if (selected.isEmpty())
        return;
    ui_->listSelection->clearSelection();
    ui_->buttonGenerations->setEnabled(false);
}

void RestoreSelectPage::fileListSelectionChanged() {
    ui_->buttonGenerations->setEnabled(ui_->listSelection->selectionModel()->hasSelection());
}

void RestoreSelectPage::showFileGenerations() {
    const QModelIndexList rows = ui_->listSelection->selectionModel()->selectedRows();
    const QModelIndex file = rows.size() == 1 ? files().mapToSource(rows.first()) : QModelIndex();
    if (!file.isValid()) {
        ui_->buttonGenerations->setEnabled(false);
        return;
    }
    const std::int64_t id = model().nodeOf(file).item().id;
    atField([this, id, path = models::displayPath(file)] { letChooseGeneration(id, path); });
}

void RestoreSelectPage::letChooseGeneration(std::int64_t file, const QStringList& path) {
    const auto generations = view_->getItemGenerations(file);
    SelectGenerationDlg dialog(generations, window());
    const Span present = span();
    dialog.generations().selectNewestInRange(present.from, present.to);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    const auto chosen = dialog.chosenTime();
    if (!accepted || !chosen)
        return;
    if (narrowTo(*chosen, dialog.generations()))
        updateDataModel();
    const QModelIndexList folders = ui_->treeSelection->selectionModel()->selectedRows();
    if (!folders.isEmpty())
        ui_->treeSelection->scrollTo(folders.first(), QAbstractItemView::PositionAtCenter);
    const QModelIndex found = fileAt(model(), path);
    if (!found.isValid())
        return;
    for (const auto& generation : generations)
        if (generation.backup_time == *chosen)
            sizes_[model().nodeOf(found).item().id] = generation.data_size;
    model().setData(found, true, Qt::CheckStateRole);
}

bool RestoreSelectPage::tick(const wizards::RestoreFile& file) {
    if (file.upTo)
        limitTo(*file.upTo);
    if (file.path.isEmpty())
        return false;
    const QModelIndex found = fileAt(model(), file.path);
    if (!found.isValid()) {
        model().rethrowFailure();
        return false;
    }
    if (file.size)
        sizes_[model().nodeOf(found).item().id] = *file.size;
    const QModelIndex folder = folders().mapFromSource(found.parent());
    ui_->treeSelection->selectionModel()->setCurrentIndex(folder,
                                                          QItemSelectionModel::ClearAndSelect);
    ui_->treeSelection->scrollTo(folder, QAbstractItemView::PositionAtCenter);
    model().setData(found, true, Qt::CheckStateRole);
    const QModelIndex row = files().mapFromSource(found);
    ui_->listSelection->setCurrentIndex(row);
    ui_->listSelection->scrollTo(row);
    return true;
}

void RestoreSelectPage::limitTo(std::int32_t upTo) {
    {
        const QScopedValueRollback<bool> suspended(suspended_, true);
        switchFilterOn();
        ui_->checkTo->setChecked(true);
        moveTo(*ui_->dateTo, upTo);
    }
    updateDataModel();
}

BackedUpNode& RestoreSelectPage::root() const {
    return model().nodeOf({});
}

bool RestoreSelectPage::isWholeSet() const {
    return !ui_->checkFilter->isChecked() && model().allSelected();
}

std::optional<std::int64_t> RestoreSelectPage::knownSize(std::int64_t file) const {
    const auto found = sizes_.find(file);
    return found == sizes_.end() ? std::nullopt : std::optional(found->second);
}

bool RestoreSelectPage::narrowTo(std::int32_t chosen, const CGenerationSelectModel& generations) {
    const QScopedValueRollback<bool> suspended(suspended_, true);
    const Span present = span();
    const bool isOlder = present.from > chosen;
    if (isOlder) {
        switchFilterOn();
        ui_->checkFrom->setChecked(true);
        moveTo(*ui_->dateFrom, chosen);
    }
    const bool isHidden = !generations.isNewestWithin(present.to, chosen);
    if (isHidden) {
        switchFilterOn();
        ui_->checkTo->setChecked(true);
        moveTo(*ui_->dateTo, chosen);
    }
    return isOlder || isHidden;
}

/// As if by the user, but a failure goes to the caller. The filter's old values could hide the
/// items shown now, so they aren't restored.
void RestoreSelectPage::switchFilterOn() {
    if (ui_->checkFilter->isChecked())
        return;
    showFilter(true);
    const QSignalBlocker quiet(ui_->checkFilter);
    ui_->checkFilter->setChecked(true);
    ui_->checkFrom->setChecked(false);
    ui_->dateFrom->setEnabled(false);
    ui_->checkRemoved->setChecked(false);
}

boost::shared_ptr<hessiancln::RestoreActivityInitiator> RestoreSelectPage::prepareRestore() {
    const auto ids = model().selectedIds();
    if (ids.empty())
        return nullptr;
    return required(view_->prepareRestore(ids));
}
