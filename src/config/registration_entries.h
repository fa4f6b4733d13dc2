// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace config {

/// What stands in the fields of a registration, as it was typed.
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

/// What forbids to save it, for the screen; empty if nothing does.
QString problemOf(const RegistrationEntries& entries);

} // namespace config
