// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/set_name_page.h"

#include <QToolTip>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"
#include "ui/remote_action.h"
#include "ui_set_name_page.h"
#include "wizards/set_names.h"

SetNamePage::SetNamePage(QWidget* parent)
    : QWizardPage(parent)
    , ui_(std::make_unique<Ui::SetNamePage>()) {
    ui_->setupUi(this);
}

SetNamePage::~SetNamePage() = default;

QString SetNamePage::name() const {
    return ui_->editSetName->text().trimmed();
}

void SetNamePage::apply(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    set->setName(session::toWire(name()));
}

bool SetNamePage::isComplete() const {
    return !name().isEmpty();
}

void SetNamePage::on_editSetName_textChanged() {
    emit completeChanged();
}

bool SetNamePage::validatePage() {
    bool taken = false;
    const bool asked = ui::remoteAction(*window(), tr("Error"), ui::Cursor::arrow, [&] {
        taken = wizards::isNameTaken(name(), session::getConnection()->backup_sets_info());
    });
    if (taken) {
        QLineEdit* edit = ui_->editSetName;
        edit->setFocus();
        QToolTip::showText(edit->mapToGlobal(QPoint(0, 0)),
                           tr("A backup set with the same name already exists. \nPlease choose a "
                              "different name."),
                           edit);
    }
    return asked && !taken;
}

void SetNamePage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QWizardPage::changeEvent(event);
}
