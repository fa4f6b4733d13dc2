// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/set_options_page.h"

#include <QWizard>

#include "api/client_connection.h"
#include "models/asterisk_key.h"
#include "models/restore_destination_directory_only_model.h"
#include "models/restore_destination_model.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/picture_delegate.h"
#include "ui/red_label.h"
#include "ui_set_options_page.h"
#include "wizards/local_path.h"
#include "wizards/select_data_source_page.h"

SetOptionsPage::SetOptionsPage(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::SetOptionsPage>())
    , osType_(session::required(session::getConnection()->getConfigurationManager())
                  ->getClientOSType()) {
    ui_->setupUi(this);
    ui::keepRedReadable(*ui_->labWarning);
    QTreeView* tree = ui_->treeAvailableDirectories;
    tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree->setItemDelegate(new ui::PictureDelegate(tree));
    models::expandOneLevelByAsterisk(*tree);
    connect(tree, &QTreeView::expanded, this, &SetOptionsPage::treeExpanded);
    showFolderIfWanted();
}

SetOptionsPage::~SetOptionsPage() = default;

bool SetOptionsPage::load(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    buildModels(session::required(set->dataBrowser()));
    ui_->chkLocalCopy->setChecked(set->isUsingLocalStorage());
    ui_->chkLocalCache->setChecked(set->isUsingLocalTransmissionCache());
    ui_->editLocalPath->setText(session::fromWire(set->getLocalStoragePath()));
    showFolderIfWanted();
    ui_->btnLocalPath->setChecked(true);
    moveTreeToPath();
    return true;
}

void SetOptionsPage::apply(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    const bool copy = ui_->chkLocalCopy->isChecked();
    const bool cache = ui_->chkLocalCache->isChecked();
    QString path;
    if (copy || cache)
        path = wizards::localStoragePath(ui_->editLocalPath->text());
    set->setLocalStoragePath(session::toWire(path));
    set->setUsingLocalStorage(copy);
    set->setUsingLocalTransmissionCache(cache);
}

void SetOptionsPage::initializePage() {
    if (dataSourcePageId_ >= 0) {
        auto* source = qobject_cast<SelectDataSourcePage*>(wizard()->page(dataSourcePageId_));
        if (source)
            buildModels(source->browser());
    }
    showFolderIfWanted();
}

bool SetOptionsPage::isComplete() const {
    return !isFolderWanted() || !ui_->editLocalPath->text().isEmpty();
}

bool SetOptionsPage::isFolderWanted() const {
    return ui_->chkLocalCopy->isChecked() || ui_->chkLocalCache->isChecked();
}

void SetOptionsPage::showFolderIfWanted() {
    on_chkLocalCopy_clicked(ui_->chkLocalCopy->isChecked());
    on_chkLocalCache_clicked(ui_->chkLocalCache->isChecked());
}

void SetOptionsPage::on_chkLocalCopy_clicked(bool checked) {
    showFolder(checked || ui_->chkLocalCache->isChecked());
}

void SetOptionsPage::on_chkLocalCache_clicked(bool checked) {
    showFolder(checked || ui_->chkLocalCopy->isChecked());
}

void SetOptionsPage::showFolder(bool shown) {
    ui_->editLocalPath->setVisible(shown);
    ui_->btnLocalPath->setVisible(shown);
    ui_->treeDisplayStack->setVisible(shown);
    ui_->labWarning->setVisible(shown);
    emit completeChanged();
}

void SetOptionsPage::on_editLocalPath_textChanged() {
    emit completeChanged();
}

void SetOptionsPage::on_btnLocalPath_toggled(bool checked) {
    ui_->editLocalPath->setReadOnly(checked);
    if (checked) {
        giveTreeItsModel();
        ui_->treeDisplayStack->setCurrentWidget(ui_->treeAvailableDirectories);
        moveTreeToPath();
    } else {
        ui_->treeDisplayStack->setCurrentWidget(ui_->noTreePage);
    }
}

void SetOptionsPage::buildModels(const boost::shared_ptr<hessiancln::DataSourceBrowser>& browser) {
    auto model = std::make_unique<CRestoreDestinationModel>("Tarn-Client Computer", browser);
    auto directories = std::make_unique<CRestoreDestinationDirectoryOnlyModel>(*model);
    ui_->treeAvailableDirectories->setModel(nullptr);
    directories_ = std::move(directories);
    model_ = std::move(model);
    if (ui_->btnLocalPath->isChecked())
        giveTreeItsModel();
}

/// A view makes its model fetch the first rows as soon as it is set, even on a hidden page.
void SetOptionsPage::giveTreeItsModel() {
    QTreeView* tree = ui_->treeAvailableDirectories;
    if (!directories_ || tree->model() == directories_.get())
        return;
    tree->setModel(directories_.get());
    connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SetOptionsPage::dirTreeSelectionChanged);
}

bool SetOptionsPage::moveTreeToPath() {
    if (!directories_)
        return false;
    const QModelIndex index = wizards::deepestIndex(
        *directories_, wizards::treePathOfFolder(ui_->editLocalPath->text(), osType_),
        wizards::caseSensitivityOf(osType_));
    if (!index.isValid())
        return false;
    QTreeView* tree = ui_->treeAvailableDirectories;
    tree->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    tree->scrollTo(index, QAbstractItemView::PositionAtCenter);
    return true;
}

void SetOptionsPage::dirTreeSelectionChanged() {
    const QModelIndexList selected =
        ui_->treeAvailableDirectories->selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    const QModelIndex index = directories_->mapToSource(selected.first());
    const QString path = session::fromWire(model_->fullPath(index));
    ui_->editLocalPath->setText(wizards::folderOfTreePath(path, osType_));
}

void SetOptionsPage::treeExpanded(const QModelIndex& index) {
    ui_->treeAvailableDirectories->scrollTo(index, QAbstractItemView::PositionAtTop);
}

void SetOptionsPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}
