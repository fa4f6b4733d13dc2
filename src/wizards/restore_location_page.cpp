// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/restore_location_page.h"

#include <utility>

#include <QEvent>
#include <QStandardItemModel>
#include <QWizard>

#include "api/backup_set.h"
#include "session/agent_kind.h"
#include "session/process_values.h"
#include "session/text.h"
#include "ui_restore_location_page.h"
#include "wizards/restore_directory_destination.h"
#include "wizards/restore_reasons.h"
#include "wizards/select_data_source_page.h"
#include "wizards/share_mappings.h"

using wizards::RestoreReasonCode;

namespace {

/// Makes keys, wheel and mouse skip the last row.
void makeHeading(QComboBox& list) {
    const auto* rows = qobject_cast<QStandardItemModel*>(list.model());
    QStandardItem* row = rows->item(list.count() - 1);
    row->setFlags(Qt::NoItemFlags);
    QFont font = list.font();
    font.setBold(true);
    row->setFont(font);
}

} // namespace

RestoreLocationPage::RestoreLocationPage(boost::shared_ptr<hessiancln::BackupSet> set,
                                         QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::RestoreLocationPage>())
    , set_(std::move(set)) {
    ui_->setupUi(this);
    ui_->radioAlternateComputer->setVisible(!session::isNotebookAgent(session::clientType()));
    fillReasons();
    for (QRadioButton* radio :
         {ui_->radioOriginal, ui_->radioAlternateDir, ui_->radioAlternateComputer})
        connect(radio, &QRadioButton::toggled, this, &RestoreLocationPage::selectionChanged);
}

RestoreLocationPage::~RestoreLocationPage() = default;

void RestoreLocationPage::fillReasons() {
    for (const wizards::RestoreReason& reason : wizards::restoreReasons()) {
        ui_->cmbRestoreReason->addItem(reason.shownText(), static_cast<int>(reason.code));
        if (reason.code == RestoreReasonCode::Heading)
            makeHeading(*ui_->cmbRestoreReason);
    }
    ui_->cmbRestoreReason->setCurrentIndex(-1);
}

void RestoreLocationPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        int row = 0;
        for (const wizards::RestoreReason& reason : wizards::restoreReasons())
            ui_->cmbRestoreReason->setItemText(row++, reason.shownText());
    }
    QWizardPage::changeEvent(event);
}

SelectDataSourcePage* RestoreLocationPage::sourcePage() const {
    return wizard() ? qobject_cast<SelectDataSourcePage*>(wizard()->page(dataSourcePageId_))
                    : nullptr;
}

RestoreDirectoryDestination* RestoreLocationPage::directoryPage() const {
    return wizard() ? qobject_cast<RestoreDirectoryDestination*>(wizard()->page(directoryPageId_))
                    : nullptr;
}

RestoreLocationPage::Target RestoreLocationPage::target() const {
    if (ui_->radioOriginal->isChecked())
        return Target::original;
    return ui_->radioAlternateDir->isChecked() ? Target::otherDirectory : Target::otherComputer;
}

bool RestoreLocationPage::isComplete() const {
    return ui_->cmbRestoreReason->currentIndex() >= 0;
}

int RestoreLocationPage::nextId() const {
    if (ui_->radioOriginal->isChecked())
        return -1;
    using Purpose = SelectDataSourcePage::Purpose;
    if (SelectDataSourcePage* source = sourcePage())
        source->setPurpose(ui_->radioAlternateDir->isChecked() ? Purpose::OtherCredentials
                                                               : Purpose::Destination);
    return dataSourcePageId_;
}

void RestoreLocationPage::on_cmbRestoreReason_currentIndexChanged(int index) {
    const int code = ui_->cmbRestoreReason->itemData(index).toInt();
    if (code == static_cast<int>(RestoreReasonCode::Heading))
        ui_->cmbRestoreReason->setCurrentIndex(index + 1);
    emit completeChanged();
}

void RestoreLocationPage::selectionChanged(bool) {
    emit completeChanged();
    // Makes the wizard check again whether this is the last page.
    setFinalPage(false);
}

std::string RestoreLocationPage::computer() const {
    const SelectDataSourcePage* source = sourcePage();
    if (ui_->radioAlternateComputer->isChecked() && source)
        return session::toWire(source->computerName());
    return set_->getComputerName();
}

boost::shared_ptr<hessiancln::DataSourceBrowser> RestoreLocationPage::browser() const {
    const SelectDataSourcePage* source = sourcePage();
    if (ui_->radioOriginal->isChecked() || !source)
        return set_->dataBrowser();
    return source->browser();
}

boost::shared_ptr<hessiancln::GenericActivity>
RestoreLocationPage::start(hessiancln::RestoreActivityInitiator& initiator) const {
    initiator.setRestoreReason(ui_->cmbRestoreReason->currentData().toInt());
    wizards::ShareMappings shares;
    if (const auto* directory = directoryPage(); directory && !ui_->radioOriginal->isChecked())
        shares = wizards::shareMappings(initiator.selected_shares(),
                                        session::toWire(directory->destinationPath()));
    const std::string to = computer();
    return initiator.start(browser(), to, shares.mappings, shares.truncateLevel);
}
