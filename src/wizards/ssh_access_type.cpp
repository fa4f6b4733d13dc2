// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/ssh_access_type.h"

#include <QEvent>

#include "session/text.h"
#include "ui/error_box.h"
#include "ui_ssh_access_type.h"
#include "wizards/ssh_access_text.h"

CSSHAccessType::CSSHAccessType(hessiancln::UnixFS_SSH_BackupSetCredentials& credentials,
                               QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::CSSHAccessType>()) {
    ui_->setupUi(this);
    ui_->editPath->setText(session::fromWire(credentials.getSSHInterpreterPath()));
    ui_->comboInterface->setCurrentIndex(wizards::indexOfSSHAccess(credentials.getSSHAccessType()));
    connect(ui_->btnOK, &QPushButton::clicked, this, &CSSHAccessType::OkPressed);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &CSSHAccessType::reject);
}

CSSHAccessType::~CSSHAccessType() = default;

hessiancln::SSHAccessType CSSHAccessType::type() const {
    return wizards::sshAccessOfIndex(ui_->comboInterface->currentIndex());
}

QString CSSHAccessType::path() const {
    return ui_->editPath->text();
}

void CSSHAccessType::OkPressed() {
    if (type() == hessiancln::SSHAccessType::DirectScriptExecution && path().isEmpty()) {
        ui::showError(this, tr("Cannot set ssh access type"),
                      tr("The access method 'direct script execution' requires the script path to "
                         "execute"));
        ui_->editPath->setFocus();
        return;
    }
    accept();
}

void CSSHAccessType::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
