// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/ssh_connect_as_dlg.h"

#include <QEvent>

#include "config/wipe_field.h"
#include "ui_ssh_connect_as_dlg.h"

CSSHConnectAsDlg::CSSHConnectAsDlg(const QString& user, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::CSSHConnectAsDlg>()) {
    ui_->setupUi(this);
    ui_->editUserName->setText(user);
    ui_->editIdentityUser->setText(user);
    const QString mask = QStringLiteral("********");
    ui_->editPassword->setText(mask);
    ui_->editPassPhrase->setText(mask);

    mirrorFields();
    connect(ui_->editPassword, &QLineEdit::textChanged, this, &CSSHConnectAsDlg::PasswordEdited);
    connect(ui_->radioPassword, &QRadioButton::clicked, this,
            &CSSHConnectAsDlg::UpdateFieldVisibility);
    connect(ui_->radioIdentity, &QRadioButton::clicked, this,
            &CSSHConnectAsDlg::UpdateFieldVisibility);
    connect(ui_->btnOK, &QPushButton::clicked, this, &CSSHConnectAsDlg::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &CSSHConnectAsDlg::reject);
    UpdateFieldVisibility();
}

CSSHConnectAsDlg::~CSSHConnectAsDlg() {
    config::wipe(*ui_->editPassPhrase);
    config::wipe(*ui_->editPassword);
}

void CSSHConnectAsDlg::mirrorFields() {
    const auto mirror = [this](QLineEdit* one, QLineEdit* other) {
        connect(one, &QLineEdit::textEdited, other, &QLineEdit::setText);
        connect(other, &QLineEdit::textEdited, one, &QLineEdit::setText);
    };
    mirror(ui_->editUserName, ui_->editIdentityUser);
    mirror(ui_->editPassword, ui_->editPassPhrase);
}

bool CSSHConnectAsDlg::usesPassword() const {
    return ui_->radioPassword->isChecked();
}

QString CSSHConnectAsDlg::user() const {
    return ui_->editUserName->text();
}

QString CSSHConnectAsDlg::password() const {
    return ui_->editPassword->text();
}

QString CSSHConnectAsDlg::identityUser() const {
    return ui_->editIdentityUser->text();
}

QString CSSHConnectAsDlg::identityFile() const {
    return ui_->editIdentity->text();
}

QString CSSHConnectAsDlg::passphrase() const {
    return ui_->editPassPhrase->text();
}

void CSSHConnectAsDlg::UpdateFieldVisibility() {
    ui_->stackedWidget->setCurrentWidget(usesPassword() ? ui_->pagePassword : ui_->pageIdentity);
}

void CSSHConnectAsDlg::PasswordEdited() {
    ui_->btnOK->setEnabled(true);
}

void CSSHConnectAsDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
