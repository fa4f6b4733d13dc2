// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/enter_simple_user_psw.h"

#include <QEvent>

#include "ui_enter_simple_user_psw.h"
#include "wizards/user_name_validator.h"

CEnterSimpleUserPsw::CEnterSimpleUserPsw(const QString& user, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::CEnterSimpleUserPsw>()) {
    ui_->setupUi(this);
    ui_->editUserName->setText(user);
    ui_->editUserName->setValidator(new CUserNameValidator(ui_->editUserName));
    ui_->editPassword->setText(QStringLiteral("**********"));
    ui_->editUserName->selectAll();
    ui_->editPassword->selectAll();

    connect(ui_->editPassword, &QLineEdit::textEdited, this, &CEnterSimpleUserPsw::PasswordChanged);
    connect(ui_->btnOK, &QPushButton::clicked, this, &CEnterSimpleUserPsw::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &CEnterSimpleUserPsw::reject);
}

CEnterSimpleUserPsw::~CEnterSimpleUserPsw() = default;

QString CEnterSimpleUserPsw::user() const {
    return ui_->editUserName->text();
}

base::Secret CEnterSimpleUserPsw::password() const {
    return ui_->editPassword->secret();
}

void CEnterSimpleUserPsw::PasswordChanged() {
    ui_->btnOK->setEnabled(true);
}

void CEnterSimpleUserPsw::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
