// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/ad_account_dlg.h"

#include <QEvent>

#include "api/client_connection.h"
#include "base/secret.h"
#include "config/ad_account.h"
#include "session/connection.h"
#include "session/required.h"
#include "session/text.h"
#include "ui/branding_resources.h"
#include "ui/error_box.h"
#include "ui/later.h"
#include "ui/message_box.h"
#include "ui/remote_action.h"
#include "ui_ad_account_dlg.h"

ADAccountDlg::ADAccountDlg(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::ADAccountDlg>()) {
    ui_->setupUi(this);
    setWindowIcon(ui::g_branding.applicationIcon());
    // Once the dialog is visible, so that an error box appears in front of it.
    ui::later(*this, [this] { read(); });
}

ADAccountDlg::~ADAccountDlg() {
    forgetPasswords();
}

void ADAccountDlg::read() {
    ui::remoteAction(*this, tr("LDAP User Validation Error"), ui::Cursor::wait, [this] {
        const auto manager = session::required(session::getConnection()->getConfigurationManager());
        hessiancln::ad_user_info account = manager->getADUserInfo();
        const base::WipedAtEnd guard(account.password);
        const auto name = config::adAccountNameOf(account.username);
        if (!name)
            return;
        ui_->editDomain->setText(name->domain);
        ui_->editUser->setText(name->user);
        ui_->editPassword->setSecret(account.password);
        ui_->editConfirm->setSecret(account.password);
    });
}

config::AdAccountEntries ADAccountDlg::entries() const {
    return {{ui_->editDomain->text(), ui_->editUser->text()},
            ui_->editPassword->text(),
            ui_->editConfirm->text()};
}

bool ADAccountDlg::send(bool save) {
    const config::AdAccountEntries typed = entries();
    if (const QString problem = config::problemOf(typed); !problem.isEmpty()) {
        ui::showError(this, tr("LDAP User Validation Error"), problem);
        return false;
    }
    return ui::remoteAction(*this, tr("LDAP User Validation Error"), ui::Cursor::wait, [&] {
        const auto manager = session::required(session::getConnection()->getConfigurationManager());
        hessiancln::ad_user_info account{config::adUsernameOf(typed.name),
                                         ui_->editPassword->secret().text(), save};
        const base::WipedAtEnd guard(account.password);
        manager->setADUserInfo(account);
    });
}

void ADAccountDlg::on_btnSave_clicked() {
    if (!send(true))
        return;
    ui::showInformation(this, tr("LDAP User Validation"),
                        tr("LDAP User Information is saved successfully."));
    done(saved);
}

void ADAccountDlg::on_btnValidate_clicked() {
    if (!send(false))
        return;
    ui::showInformation(this, tr("LDAP User Validation"),
                        tr("LDAP User Information is validated successfully."));
    done(validated);
}

void ADAccountDlg::on_btnCancel_clicked() {
    done(cancelled);
}

void ADAccountDlg::done(int result) {
    forgetPasswords();
    QDialog::done(result);
}

void ADAccountDlg::forgetPasswords() {
    ui_->editConfirm->wipe();
    ui_->editPassword->wipe();
}

void ADAccountDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this);
    QDialog::changeEvent(event);
}
