// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QFileDialog>
#include <QListWidget>

#include "tests/config/dialog_steps.h"
#include "tests/support/gui_form_texts.h"

/// Steps and calls shared by the tests of the registration dialog.
namespace steps {

/// The check whether the registration is missing.
inline const Calls check =
    Calls{"ClientConnection.getTarnClientInfo()"} + managerAsked +
    Calls{"ClientConfiguration.getUserInfoConfiguration()", "UserInfoConfiguration.getUserInfo()"};

inline const Calls registrationRead =
    managerAsked + Calls{"ClientConfiguration.getTarnCRegistrationInfo()",
                         "ClientConfiguration.getUserInfoConfiguration()",
                         "UserInfoConfiguration.getUserInfo()"};

inline const Calls userInfoSent{
    "ClientConfiguration.getUserInfoConfiguration()",
    "UserInfoConfiguration.setUserInfo({country_code=40, num_of_employees=3, industry_code=8})"};

inline const std::string known =
    "customer_name=\"Müller & Söhne GmbH\", account_num=\"OFFICE-401\", "
    "client_num=\"A4C100931700\"";

/// The registration as sent, starting with `begin`, up to the ciphers; the rest is as the agent has
/// it.
inline Calls sent(const std::string& begin) {
    return {"ClientConfiguration.setTarnCRegistrationInfo({" + begin +
            ", private_key=***, account_key=***, "
            "tarnsys_ip_addr=\"vault1.example.net\\\\;vault2.example.net\", "
            "escrow_enc_key=true})"};
}

inline QString chosen(QWidget& dialog, const char* combo) {
    return support::child<QComboBox>(dialog, combo).currentText();
}

inline void choose(QWidget& dialog, const char* combo, int row) {
    support::child<QComboBox>(dialog, combo).setCurrentIndex(row);
}

inline QString addresses(QWidget& dialog) {
    auto& list = support::child<QListWidget>(dialog, "listBoxAddress");
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts.join(QLatin1Char(' '));
}

/// Austria, the third number of employees and the last industry.
inline void chooseUserInfo(QWidget& dialog) {
    auto& countries = support::child<QComboBox>(dialog, "cmbCountry");
    countries.setCurrentIndex(countries.findText(q("Austria")));
    choose(dialog, "cmbEmployees", 2);
    choose(dialog, "cmbIndustry", 7);
}

inline constexpr const char* keyFields[] = {"txtFieldPrivateKey", "txtFieldPrivateKeyConfirm",
                                            "txtFieldAccountKey", "txtFieldAccountKeyConfirm"};

/// Fills in everything that a first run needs.
inline void fill(QWidget& dialog) {
    type(dialog, "txtFieldCustomer", "Ada");
    type(dialog, "txtFieldAccountNum", "acc");
    type(dialog, "txtFieldClientNum", "abcdefghijk1");
    auto& list = support::child<QListWidget>(dialog, "listBoxAddress");
    list.clear();
    list.addItems({q("vault1.example.net"), q("vault2.example.net")});
    choose(dialog, "cmbPrivateKeyType", 2);
    choose(dialog, "cmbAccountKeyType", 1);
    type(dialog, "txtFieldPrivateKey", "private key");
    type(dialog, "txtFieldPrivateKeyConfirm", "private key");
    type(dialog, "txtFieldAccountKey", "account key");
    type(dialog, "txtFieldAccountKeyConfirm", "account key");
    chooseUserInfo(dialog);
}

inline Calls sentFilled() {
    return sent("customer_name=\"Ada\", account_num=\"ACC\", client_num=\"ABCDEFGHIJK1\", "
                "private_key_enc=6, account_key_enc=1");
}

/// The file dialog, in which this file is chosen; `remove` deletes it before it is opened.
inline void expectCriFile(support::ModalDriver& modals, const QString& path, bool remove) {
    modals.expect(q("file"), support::isDialog<QFileDialog>, [path, remove](QWidget& widget) {
        auto& chooser = static_cast<QFileDialog&>(widget);
        QCOMPARE(chooser.windowTitle(), q("Please choose CRI file"));
        QCOMPARE(chooser.nameFilters(), QStringList(q("CRI Files (*.cri)")));
        QVERIFY(chooser.testOption(QFileDialog::DontUseNativeDialog));
        support::compareWindowIcon(chooser);
        auto& name = support::child<QLineEdit>(chooser, "fileNameEdit");
        QCOMPARE(name.text(), QString());
        name.setText(path);
        static_cast<QDialog&>(chooser).accept();
        if (remove)
            QVERIFY(QFile::remove(path));
    });
}

/// What makes one of the checks fail, and the message then shown.
struct Spoiling {
    void (*spoil)(QWidget& dialog);
    const char* message;
};

inline const std::vector<Spoiling> spoilings{
    {[](QWidget& dialog) { type(dialog, "txtFieldCustomer", "  "); },
     "Customer name is needed for initialization."},
    {[](QWidget& dialog) { type(dialog, "txtFieldAccountNum", " "); },
     "Account Number is needed for initialization."},
    {[](QWidget& dialog) { type(dialog, "txtFieldClientNum", " "); },
     "Client Number is needed for initialization."},
    {[](QWidget& dialog) { type(dialog, "txtFieldClientNum", "12345678901"); },
     "Client number needs to have 12 characters."},
    {[](QWidget& dialog) { support::child<QListWidget>(dialog, "listBoxAddress").clear(); },
     "Need at least one Tarn-System address for initialization."},
    {[](QWidget& dialog) { type(dialog, "txtFieldPrivateKeyConfirm", "Private key"); },
     "The private encryption keys you typed do not match."},
    {[](QWidget& dialog) {
         type(dialog, "txtFieldPrivateKey", "");
         type(dialog, "txtFieldPrivateKeyConfirm", "");
     },
     "Private key is needed for initialization."},
    {[](QWidget& dialog) {
         type(dialog, "txtFieldAccountKey", "");
         type(dialog, "txtFieldAccountKeyConfirm", "");
     },
     "Please select \"NONE\" as the account key ecnryption type if you want to input the empty "
     "account key!!"},
    {[](QWidget& dialog) { type(dialog, "txtFieldAccountKeyConfirm", ""); },
     "The account encryption keys you typed do not match."},
    {[](QWidget& dialog) { choose(dialog, "cmbCountry", -1); }, "Please select a country."},
    {[](QWidget& dialog) { choose(dialog, "cmbEmployees", -1); },
     "Please select a number of employees."},
    {[](QWidget& dialog) { choose(dialog, "cmbIndustry", -1); },
     "Please select a industry vertical."},
};

} // namespace steps
