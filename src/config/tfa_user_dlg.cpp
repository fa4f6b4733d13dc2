// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/tfa_user_dlg.h"

#include <QEvent>

#include "config/user_email_rules.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/error_box.h"
#include "ui_tfa_user_dlg.h"

TFAUserDlg::TFAUserDlg(const hessiancln::user_email& row, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::TFAUserDlg>()) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    ui_->editUsername->setText(session::fromWire(row.username));
    ui_->editDomain->setText(session::fromWire(row.domain));
    ui_->editEmail->setText(session::fromWire(row.email));
    connect(ui_->btnCancel, &QPushButton::clicked, this, &TFAUserDlg::reject);
}

TFAUserDlg::~TFAUserDlg() = default;

hessiancln::user_email TFAUserDlg::userEmail() const {
    return {session::toWire(ui_->editUsername->text()), session::toWire(ui_->editDomain->text()),
            session::toWire(ui_->editEmail->text())};
}

void TFAUserDlg::on_btnOK_clicked() {
    const QString problem = config::problemOf(userEmail());
    if (problem.isEmpty())
        accept();
    else
        ui::showError(this, tr("Error"), problem);
}

void TFAUserDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
