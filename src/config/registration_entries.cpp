// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/registration_entries.h"

#include <QCoreApplication>

namespace config {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(InitClntCfgDlg)
};

QString problemOfCustomer(const RegistrationEntries& entries) {
    if (entries.customerName.trimmed().isEmpty())
        return Texts::tr("Customer name is needed for initialization.");
    if (entries.accountNumber.trimmed().isEmpty())
        return Texts::tr("Account Number is needed for initialization.");
    const QString client = entries.clientNumber.trimmed();
    if (client.isEmpty())
        return Texts::tr("Client Number is needed for initialization.");
    if (client.size() != clientNumberLength)
        return Texts::tr("Client number needs to have %1 characters.").arg(clientNumberLength);
    if (entries.addresses == 0)
        return Texts::tr("Need at least one Tarn-System address for initialization.");
    return {};
}

QString problemOfKeys(const RegistrationEntries& entries) {
    if (entries.privateKey != entries.privateKeyConfirm)
        return Texts::tr("The private encryption keys you typed do not match.");
    if (entries.privateKey.isEmpty())
        return Texts::tr("Private key is needed for initialization.");
    if (entries.accountKey.isEmpty() && entries.accountKeyType != QStringLiteral("NONE"))
        return Texts::tr("Please select \"NONE\" as the account key ecnryption type if you want "
                         "to input the empty account key!!");
    if (entries.accountKey != entries.accountKeyConfirm)
        return Texts::tr("The account encryption keys you typed do not match.");
    return {};
}

QString problemOfUserInfo(const RegistrationEntries& entries) {
    if (!entries.countryChosen)
        return Texts::tr("Please select a country.");
    if (!entries.employeesChosen)
        return Texts::tr("Please select a number of employees.");
    if (!entries.industryChosen)
        return Texts::tr("Please select a industry vertical.");
    return {};
}

} // namespace

QString problemOf(const RegistrationEntries& entries) {
    for (const auto check : {problemOfCustomer, problemOfKeys, problemOfUserInfo})
        if (QString problem = check(entries); !problem.isEmpty())
            return problem;
    return {};
}

} // namespace config
