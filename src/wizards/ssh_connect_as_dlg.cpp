// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/ssh_connect_as_dlg.h"

#include <QEvent>

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

CSSHConnectAsDlg::~CSSHConnectAsDlg() = default;

void CSSHConnectAsDlg::mirrorFields() {
    const auto mirror = [this](QLineEdit* one, QLineEdit* other) {
        connect(one, &QLineEdit::textEdited, other, &QLineEdit::setText);
        connect(other, &QLineEdit::textEdited, one, &QLineEdit::setText);
    };
    mirror(ui_->editUserName, ui_->editIdentityUser);
    // The two fields must not share a string, because each wipes only what it owns alone.
    const auto mirrorSecret = [](ui::SecretField* one, ui::SecretField* other) {
        connect(one, &QLineEdit::textEdited, other,
                [one, other] { other->setSecret(one->secret().text()); });
    };
    mirrorSecret(ui_->editPassword, ui_->editPassPhrase);
    mirrorSecret(ui_->editPassPhrase, ui_->editPassword);
}

bool CSSHConnectAsDlg::usesPassword() const {
    return ui_->radioPassword->isChecked();
}

QString CSSHConnectAsDlg::user() const {
    return ui_->editUserName->text();
}

base::Secret CSSHConnectAsDlg::password() const {
    return ui_->editPassword->secret();
}

QString CSSHConnectAsDlg::identityUser() const {
    return ui_->editIdentityUser->text();
}

QString CSSHConnectAsDlg::identityFile() const {
    return ui_->editIdentity->text();
}

base::Secret CSSHConnectAsDlg::passphrase() const {
    return ui_->editPassPhrase->secret();
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
