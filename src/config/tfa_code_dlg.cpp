// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/tfa_code_dlg.h"

#include <QEvent>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/later.h"
#include "ui/remote_action.h"
#include "ui_tfa_code_dlg.h"

TFACodeDlg::TFACodeDlg(int purpose, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::TFACodeDlg>())
    , purpose_(purpose) {
    ui_->setupUi(this);
    // The number of lines of the explanation depends on the language.
    resize(width(), layout()->heightForWidth(width()));
    ui_->editCode->setFocus();
    setWindowIcon(ui::g_branding.applicationIcon());
    connect(ui_->btnCancel, &QPushButton::clicked, this, &TFACodeDlg::reject);
    // Once the dialog is visible, so that an error box appears in front of it.
    ui::later(*this, [this] { on_btnResend_clicked(); });
}

TFACodeDlg::~TFACodeDlg() = default;

void TFACodeDlg::on_btnResend_clicked() {
    ui::remoteAction(*this, tr("Error"), ui::Cursor::wait, [this] {
        const std::string address =
            session::required(session::getConnection()->getTFAManager())->requestCode(purpose_);
        ui_->editEmail->setText(session::fromWire(address));
        ui_->editEmail->setCursorPosition(0);
    });
}

void TFACodeDlg::on_btnValidate_clicked() {
    const base::Secret code = ui_->editCode->secret();
    const bool valid = ui::remoteAction(*this, tr("Error"), ui::Cursor::wait, [&] {
        session::required(session::getConnection()->getTFAManager())
            ->validateCode(code.text(), purpose_);
    });
    if (valid)
        accept();
}

void TFACodeDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
