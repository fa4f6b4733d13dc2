// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QWizard>

#include "config/init_clnt_cfg_dlg.h"
#include "config/tfa_code_dlg.h"
#include "simulator/world/world.h"
#include "tests/tour/photographer.h"
#include "tests/tour/stories.h"
#include "ui/select_row.h"

namespace tour {

namespace {

using simulator::Scenario;
using simulator::World;

void takeCode(Photographer& photographer) {
    photographer.expect<TFACodeDlg>([&](TFACodeDlg& dialog) {
        photographer.take(dialog, "code");
        type(dialog, "editCode", "271828");
        photographer.expect("box-code");
        click(dialog, "btnValidate");
    });
    TFACodeDlg(2, &photographer.window()).exec();
    photographer.end();
}

void takeUser(Photographer& photographer, QDialog& user) {
    photographer.take(user, "user");
    type(user, "editUsername", "");
    photographer.expect("box-user-name");
    click(user, "btnOK");
    type(user, "editUsername", "demo");
    type(user, "editEmail", "");
    photographer.expect("box-user-address");
    click(user, "btnOK");
    type(user, "editEmail", "demo at example.net");
    photographer.expect("box-user-no-address");
    click(user, "btnOK");
}

/// Enters the mailed code, and takes the box that follows.
void forward(Photographer& photographer, QDialog& users, const char* screen) {
    photographer.expect<TFACodeDlg>([&](TFACodeDlg& dialog) {
        type(dialog, "editCode", "314159");
        click(dialog, "btnValidate");
    });
    photographer.expect(screen);
    click(users, "btnUpdate");
}

void takeTwoFactor(Photographer& photographer) {
    takeCode(photographer);
    photographer.expect<QDialog>([&](QDialog& users) {
        ui::selectRow(child<QTableView>(users, "tableUsers"), 0);
        photographer.take(users, "users");
        photographer.expect<QDialog>([&](QDialog& user) { takeUser(photographer, user); });
        click(users, "btnEdit");
        photographer.expect("users-file");
        click(users, "btnImport");
        photographer.refuse("setUserEmails");
        forward(photographer, users, "box-users");
        forward(photographer, users, "box-users-sent");
    });
    photographer.run("on_actionTFASettings_triggered");
    photographer.refuse("getUserEmails");
    photographer.expect("box-users-unread");
    photographer.expect<QDialog>([](QDialog&) {});
    photographer.run("on_actionTFASettings_triggered");
}

void choose(QWidget& dialog, const char* combo, int row) {
    child<QComboBox>(dialog, combo).setCurrentIndex(row);
}

/// Each missing entry is reported separately, in the order of the dialog.
void takeProblems(Photographer& photographer, QDialog& dialog) {
    const auto problem = [&](const char* screen) {
        photographer.expect(screen);
        click(dialog, "btnSave");
    };
    problem("box-customer");
    type(dialog, "txtFieldCustomer", "Ada");
    problem("box-account-number");
    type(dialog, "txtFieldAccountNum", "OFFICE-402");
    problem("box-client-number");
    type(dialog, "txtFieldClientNum", "A4C1");
    problem("box-client-number-length");
    type(dialog, "txtFieldClientNum", "A4C100931701");
    problem("box-address");
    type(dialog, "txtFieldInputAddress", "vault1.example.net");
    click(dialog, "btnAdd");
    type(dialog, "txtFieldPrivateKey", "one");
    problem("box-private-keys-differ");
    type(dialog, "txtFieldPrivateKey", "");
    problem("box-private-key");
    type(dialog, "txtFieldPrivateKey", "the quick brown fox");
    type(dialog, "txtFieldPrivateKeyConfirm", "the quick brown fox");
    problem("box-account-key");
    type(dialog, "txtFieldAccountKey", "jumps over the lazy dog");
    problem("box-account-keys-differ");
    type(dialog, "txtFieldAccountKeyConfirm", "jumps over the lazy dog");
    problem("box-country");
    choose(dialog, "cmbCountry", 14);
    problem("box-employees");
    choose(dialog, "cmbEmployees", 2);
    problem("box-industry");
    choose(dialog, "cmbIndustry", 7);
}

void takeFirstRegistration(Photographer& photographer) {
    photographer.expectLogin();
    photographer.expect<InitClntCfgDlg>([&](InitClntCfgDlg& dialog) {
        photographer.take(dialog, "registration-first");
        takeProblems(photographer, dialog);
        photographer.expect("box-saved");
        click(dialog, "btnSave");
        // After the registration the program offers a first set.
        photographer.expect<QWizard>([](QWizard&) {});
    });
    photographer.run("OnConnect");
}

void takeRegistration(Photographer& photographer) {
    photographer.expect<InitClntCfgDlg>([&](InitClntCfgDlg& dialog) {
        photographer.take(dialog, "registration");
        photographer.expect("registration-file");
        click(dialog, "btnBrowse");
        child<QCheckBox>(dialog, "chkRegister").setChecked(true);
        photographer.expect("box-registered");
        click(dialog, "btnSave");
    });
    photographer.run("on_actionRegistration_Info_triggered");
    photographer.expect<QDialog>([&](QDialog& dialog) {
        photographer.take(dialog, "register");
        click(dialog, "btnRegister");
        photographer.take(dialog, "register-done");
        photographer.refuse("re_register");
        click(dialog, "btnRegister");
        photographer.take(dialog, "register-failed");
    });
    photographer.run("on_actionRegister_triggered");
}

void takeLdap(Photographer& photographer) {
    photographer.expect<QDialog>([&](QDialog& dialog) {
        photographer.take(dialog, "ldap");
        const auto problem = [&](const char* screen, const char* field, const char* right) {
            type(dialog, field, "");
            photographer.expect(screen);
            click(dialog, "btnValidate");
            type(dialog, field, right);
        };
        problem("box-ldap-user", "editUser", "backup");
        type(dialog, "editConfirm", "");
        problem("box-ldap-password", "editPassword", "horse");
        problem("box-ldap-passwords-differ", "editConfirm", "horse");
        problem("box-ldap-domain", "editDomain", "OFFICE");
        photographer.refuse("setADUserInfo");
        photographer.expect("box-ldap-refused");
        click(dialog, "btnValidate");
        photographer.expect("box-ldap-validated");
        click(dialog, "btnValidate");
    });
    photographer.run("on_actionLDAP_Account_triggered");
    photographer.expect<QDialog>([&](QDialog& dialog) {
        photographer.expect("box-ldap-saved");
        click(dialog, "btnSave");
    });
    photographer.run("on_actionLDAP_Account_triggered");
}

void takeRecovery(Photographer& photographer) {
    photographer.expect<QDialog>([&](QDialog& dialog) {
        photographer.take(dialog, "recovery");
        photographer.refuse("recover_orphaned_backup_set");
        photographer.expect("box-recovery");
        child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
    });
    photographer.run("on_action_Recovery_triggered");
    photographer.agent().withWorld([](World& world) { world.configuration.orphans.clear(); });
    photographer.expect<QDialog>([&](QDialog& dialog) {
        photographer.take(dialog, "recovery-database");
        photographer.expect("box-recover-database");
        child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
    });
    photographer.run("on_action_Recovery_triggered");
}

} // namespace

void takeConfiguration(Album& album) {
    {
        simulator::Options withCodes;
        withCodes.twoFactorCode = "314159";
        Photographer photographer(album, withCodes);
        photographer.logIn();
        takeTwoFactor(photographer);
        takeRegistration(photographer);
        photographer.run("on_actionAdmin_triggered", "admin");
        takeLdap(photographer);
        takeRecovery(photographer);
    }
    Photographer photographer(album, {.scenario = Scenario::FirstRun});
    takeFirstRegistration(photographer);
}

} // namespace tour
