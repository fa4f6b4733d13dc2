// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/restore_directory_destination.h"

#include <algorithm>

#include <QEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QPixmap>
#include <QWizard>

#include "api/client_connection.h"
#include "models/asterisk_key.h"
#include "models/restore_destination_directory_only_model.h"
#include "models/restore_destination_model.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/picture_delegate.h"
#include "ui/remote_action.h"
#include "ui_restore_directory_destination.h"
#include "wizards/local_path.h"
#include "wizards/restore_location_page.h"
#include "wizards/restore_path.h"

using session::fromWire;
using session::required;

namespace {

constexpr int marginsOfHead = 60;

/// The width at which the text fits on two lines, the maximum of a wizard's header.
int widthOnTwoLines(const QString& text, const QFontMetrics& metrics) {
    const int three = 3 * metrics.lineSpacing() - metrics.leading();
    int width = metrics.horizontalAdvance(text) / 2;
    while (metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, text).height() >= three)
        width += metrics.averageCharWidth();
    return width;
}

} // namespace

RestoreDirectoryDestination::RestoreDirectoryDestination(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::RestoreDirectoryDestination>())
    , subdirectory_(
          tr("restore_%1").arg(wizards::timeInDirectoryName(QDateTime::currentDateTime())))
    , osType_(required(session::getConnection()->getConfigurationManager())->getClientOSType()) {
    ui_->setupUi(this);
    showSubdirectory();
    QTreeView* tree = ui_->treeAvailableDirectories;
    tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree->setItemDelegate(new ui::PictureDelegate(tree));
    models::expandOneLevelByAsterisk(*tree);
    connect(tree, &QTreeView::expanded, this, [tree](const QModelIndex& index) {
        tree->scrollTo(index, QAbstractItemView::PositionAtTop);
    });
    connect(ui_->btnRestoreTo, &QPushButton::toggled, this,
            &RestoreDirectoryDestination::browseDirectoriesToggled);
}

RestoreDirectoryDestination::~RestoreDirectoryDestination() = default;

void RestoreDirectoryDestination::showSubdirectory() {
    setSubTitle(tr("Select the directory where the restore should be performed in. The restored "
                   "data will be placed in a subdirectory named ''%1''")
                    .arg(subdirectory_));
}

void RestoreDirectoryDestination::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showSubdirectory();
    }
    QWizardPage::changeEvent(event);
}

QSize RestoreDirectoryDestination::largestSize() const {
    return sizeHint().expandedTo(minimumSizeHint());
}

/// Wide enough for the directory in the wizard's header, which also spans the picture.
QSize RestoreDirectoryDestination::minimumSizeHint() const {
    const QPixmap picture = wizard() ? wizard()->pixmap(QWizard::WatermarkPixmap) : QPixmap();
    const int beside = qRound(picture.width() / picture.devicePixelRatio());
    const QSize size = QWizardPage::minimumSizeHint();
    const int wanted = widthOnTwoLines(subTitle(), fontMetrics()) + marginsOfHead - beside;
    return {std::max(size.width(), wanted), size.height()};
}

QString RestoreDirectoryDestination::destinationPath() const {
    return wizards::directoryIn(ui_->editRestoreTo->text(), subdirectory_);
}

bool RestoreDirectoryDestination::isComplete() const {
    return !ui_->editRestoreTo->text().isEmpty();
}

void RestoreDirectoryDestination::on_editRestoreTo_textChanged() {
    emit completeChanged();
}

void RestoreDirectoryDestination::initializePage() {
    ui::remoteAction(*window(), tr("Error"), ui::Cursor::wait, [this] { showComputer(); });
}

void RestoreDirectoryDestination::showComputer() {
    const auto* location =
        wizard() ? qobject_cast<RestoreLocationPage*>(wizard()->page(locationPageId_)) : nullptr;
    if (!location)
        return;
    // Those of another computer must not stay if a call fails.
    ui_->treeAvailableDirectories->setModel(nullptr);
    directories_.reset();
    model_.reset();
    ui_->editRestoreTo->clear();
    const auto browser = required(location->browser());
    const std::string computer = location->computer();
    const auto presets = browser->getPredefinedItems(computer);
    model_ = std::make_unique<CRestoreDestinationModel>(computer, browser);
    directories_ = std::make_unique<CRestoreDestinationDirectoryOnlyModel>(*model_);
    ui_->editRestoreTo->setText(
        presets.empty() ? QString()
                        : wizards::folderOfTreePath(fromWire(presets.front().path), osType_));
    if (ui_->btnRestoreTo->isChecked())
        giveTreeItsModel();
}

/// A view makes its model fetch the first rows as soon as it is set, even on a hidden page.
void RestoreDirectoryDestination::giveTreeItsModel() {
    QTreeView* tree = ui_->treeAvailableDirectories;
    if (!directories_ || tree->model() == directories_.get())
        return;
    tree->setModel(directories_.get());
    connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RestoreDirectoryDestination::dirTreeSelectionChanged);
}

void RestoreDirectoryDestination::browseDirectoriesToggled(bool checked) {
    ui_->editRestoreTo->setReadOnly(checked);
    if (!checked) {
        ui_->treeDisplayStack->setCurrentWidget(ui_->noTreePage);
        return;
    }
    giveTreeItsModel();
    ui_->treeDisplayStack->setCurrentWidget(ui_->treeAvailableDirectories);
    synchroniseTree();
}

void RestoreDirectoryDestination::synchroniseTree() {
    if (!directories_)
        return;
    QTreeView* tree = ui_->treeAvailableDirectories;
    const QModelIndex closest =
        wizards::closestDirectory(*directories_, ui_->editRestoreTo->text(), osType_);
    if (!closest.isValid()) {
        tree->selectionModel()->clear();
        return;
    }
    tree->selectionModel()->setCurrentIndex(closest, QItemSelectionModel::ClearAndSelect);
    tree->scrollTo(closest, QAbstractItemView::PositionAtCenter);
}

void RestoreDirectoryDestination::dirTreeSelectionChanged() {
    const QModelIndexList selected =
        ui_->treeAvailableDirectories->selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    const QModelIndex index = directories_->mapToSource(selected.first());
    ui_->editRestoreTo->setText(
        wizards::folderOfTreePath(fromWire(model_->fullPath(index)), osType_));
}
