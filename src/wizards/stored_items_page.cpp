// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/stored_items_page.h"

#include <utility>

#include <QAbstractSpinBox>
#include <QDateTimeEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeView>

#include "api/backup_set.h"
#include "models/backed_up_data_model.h"
#include "models/backedup_data_dir_only_model.h"
#include "models/backedup_data_file_filter_model.h"
#include "models/tree_state_memo.h"
#include "ui/empty_note.h"
#include "ui/error_box.h"
#include "ui/later.h"
#include "ui/remote_action.h"
#include "wizards/backup_time_span.h"
#include "wizards/exact_time.h"

StoredItemsPage::StoredItemsPage(QWidget* parent)
    : QWizardPage(parent) {}

StoredItemsPage::~StoredItemsPage() = default;

void StoredItemsPage::setUp(const Views& views, std::initializer_list<QWidget*> filter) {
    tree_ = &views.folders;
    list_ = &views.files;
    fileFilter_ = &views.fileFilter;
    tree_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    views.splitter.setSizes({200, 300});
    connect(tree_, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        tree_->scrollTo(index, QAbstractItemView::PositionAtTop);
    });
    connect(fileFilter_, &QLineEdit::textChanged, this, &StoredItemsPage::setFileNameFilter);
    for (QWidget* field : filter)
        filterOfView_.remember(*field);
    new ui::EmptyNote(*list_, [this] {
        const QString pattern = fileFilter_->text();
        return pattern.isEmpty() || pattern == QLatin1String("*")
                   ? QString()
                   : tr("No files of this folder match the file filter.");
    });
}

bool StoredItemsPage::isComplete() const {
    return model_ && model_->hasSelection();
}

bool StoredItemsPage::validatePage() {
    for (QAbstractSpinBox* field : findChildren<QAbstractSpinBox*>())
        field->interpretText();
    return isComplete();
}

void StoredItemsPage::atField(const std::function<void()>& work) {
    // Hiding a field commits the typed text, also when the wizard closes.
    if (wizard() && !isVisible())
        return;
    if (ui::waitsForCall(*this, [this, work] { atField(work); }))
        return;
    if (ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, work))
        return;
    filterOfView_.putBack();
    fieldsPutBack();
}

void StoredItemsPage::loadDateLimits(hessiancln::BackupSet& set, QDateTimeEdit& from,
                                     std::initializer_list<QDateTimeEdit*> others) {
    if (!sessions_.empty())
        return;
    sessions_ = set.backup_times();
    if (sessions_.empty())
        return;
    const auto span = wizards::backupTimeSpan(sessions_, QDateTime::currentDateTime());
    const auto limit = [&](QDateTimeEdit& date, const QDateTime& value) {
        // Each field would request its own view.
        const QSignalBlocker quiet(&date);
        wizards::showTime(date, value);
        date.setMinimumDate(span.earliest.date());
        date.setMaximumDate(span.latest.date());
        filterOfView_.remember(date);
    };
    limit(from, span.earliest);
    for (QDateTimeEdit* date : others)
        limit(*date, span.latest);
}

void StoredItemsPage::showContents(const boost::shared_ptr<hessiancln::BackupSetDataView>& view) {
    const TreeStateMemo memo(*tree_, 0);
    auto model = std::make_unique<CBackedUpDataModel>(view);
    model->fetchTopLevel();
    showModel(std::move(model));
    filterOfView_.rememberAll();
    {
        // Rows expanded by the program shouldn't scroll the view.
        const QSignalBlocker quiet(tree_);
        memo.restore();
    }
    hadSelection_ = false;
    emit completeChanged();
}

void StoredItemsPage::showModel(std::unique_ptr<CBackedUpDataModel> model) {
    folders_ = new CBackedupDataDirOnlyModel(*model);
    files_ = new CBackedupDataFileFilterModel(*model);
    files_->setFilterWildcard(fileFilter_->text());
    tree_->setModel(folders_);
    list_->setModel(files_);
    connect(tree_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &StoredItemsPage::treeSelectionChanged);
    connect(model.get(), &CBackedUpDataModel::itemSelectionChanged, this,
            &StoredItemsPage::treeCheckChanged);
    connect(model.get(), &CBackedUpDataModel::fetchFailed, this,
            &StoredItemsPage::showFetchFailure);
    tree_->selectionModel()->setCurrentIndex(folders_->index(0, 0),
                                             QItemSelectionModel::ClearAndSelect);
    model_ = std::move(model);
}

void StoredItemsPage::setFileNameFilter(const QString& text) {
    files_->setFilterWildcard(text);
}

void StoredItemsPage::treeSelectionChanged(const QItemSelection& selected) {
    if (selected.isEmpty())
        return;
    const QModelIndex folder = folders_->mapToSource(selected.indexes().first());
    files_->setSourceRoot(folder);
    list_->setRootIndex(files_->mapFromSource(folder));
}

/// Called for each of the items below a checked one, and on each page change signal the wizard
/// updates all its buttons.
void StoredItemsPage::treeCheckChanged() {
    const bool hasSelection = isComplete();
    if (hasSelection == hadSelection_)
        return;
    hadSelection_ = hasSelection;
    emit completeChanged();
}

void StoredItemsPage::showFetchFailure(const QString& text) {
    // Many folders may fail at once; one box is enough.
    if (showingFailure_)
        return;
    const QScopedValueRollback<bool> showing(showingFailure_, true);
    ui::showError(window(), tr("Error"), text);
}
