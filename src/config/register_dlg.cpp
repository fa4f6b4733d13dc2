// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/register_dlg.h"

#include <QEvent>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/error_box.h"
#include "ui_register_dlg.h"

RegisterDlg::RegisterDlg(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::RegisterDlg>()) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    const auto manager = session::required(session::getConnection()->getConfigurationManager());
    ui_->txtCustomerName->setText(session::fromWire(manager->getCustomerName()));
    ui_->txtAccountNum->setText(session::fromWire(manager->getAccountNumber()));
    ui_->txtClientNum->setText(session::fromWire(manager->getClientNumber()));
}

RegisterDlg::~RegisterDlg() = default;

void RegisterDlg::on_btnRegister_clicked() {
    showStatus(tr("Registering..."));
    try {
        session::required(session::getConnection()->getConfigurationManager())->re_register();
        showStatus(tr("Tarn-Client successfully registered with Tarn-System."));
    } catch (const std::exception& error) {
        showStatus(ui::errorText(error));
    }
}

void RegisterDlg::showStatus(const QString& text) {
    ui_->labStatus->setText(text);
    // What comes next may be a call that blocks.
    ui_->labStatus->repaint();
}

void RegisterDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        // The form has texts of its own in the place of the agent's.
        const QString customer = ui_->txtCustomerName->text();
        const QString account = ui_->txtAccountNum->text();
        const QString client = ui_->txtClientNum->text();
        ui_->retranslateUi(this);
        ui_->txtCustomerName->setText(customer);
        ui_->txtAccountNum->setText(account);
        ui_->txtClientNum->setText(client);
    }
    QDialog::changeEvent(event);
}
