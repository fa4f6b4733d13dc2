// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace config {

/// The contents of the fields of a registration, as typed.
struct RegistrationEntries {
    QString customerName;
    QString accountNumber;
    QString clientNumber;
    int addresses = 0;
    QString privateKey;
    QString privateKeyConfirm;
    QString accountKeyType; ///< a name of `keyEncryptionName`
    QString accountKey;
    QString accountKeyConfirm;
    bool countryChosen = false;
    bool employeesChosen = false;
    bool industryChosen = false;
};

inline constexpr int clientNumberLength = 12;

/// The reason why the entries can't be saved, for display; empty if they can.
QString problemOf(const RegistrationEntries& entries);

} // namespace config
