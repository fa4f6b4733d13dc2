// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/ssh_sudo_credentials.h"

#include <QEvent>

#include "ui_ssh_sudo_credentials.h"

CSSHSudoCredentials::CSSHSudoCredentials(const QString& user, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::CSSHSudoCredentials>()) {
    ui_->setupUi(this);
    if (!user.isEmpty()) {
        ui_->editUserName->setText(user);
        ui_->editPassword->setText(QStringLiteral("********"));
    }
    connect(ui_->editPassword, &QLineEdit::textChanged, this, &CSSHSudoCredentials::PasswordEdited);
    connect(ui_->btnOK, &QPushButton::clicked, this, &CSSHSudoCredentials::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &CSSHSudoCredentials::reject);
    connect(ui_->btnNoSudo, &QPushButton::clicked, this, &CSSHSudoCredentials::NoSuDoClicked);
}

CSSHSudoCredentials::~CSSHSudoCredentials() = default;

QString CSSHSudoCredentials::user() const {
    return ui_->editUserName->text();
}

base::Secret CSSHSudoCredentials::password() const {
    return ui_->editPassword->secret();
}

void CSSHSudoCredentials::PasswordEdited() {
    ui_->btnOK->setEnabled(true);
}

void CSSHSudoCredentials::NoSuDoClicked() {
    noSudo_ = true;
    accept();
}

void CSSHSudoCredentials::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
