// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/ad_account.h"

#include <QCoreApplication>

#include "session/text.h"

namespace config {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ADAccountDlg)
};

} // namespace

std::optional<AdAccountName> adAccountNameOf(const std::string& username) {
    const QString text = session::fromWire(username);
    const int backslash = text.indexOf(QLatin1Char('\\'));
    if (backslash < 0)
        return std::nullopt;
    return AdAccountName{text.left(backslash), text.mid(backslash + 1)};
}

std::string adUsernameOf(const AdAccountName& name) {
    return session::toWire(name.domain.trimmed() + QLatin1Char('\\') + name.user.trimmed());
}

QString problemOf(const AdAccountEntries& entries) {
    const auto& [name, password, confirm] = entries;
    if (name.user.isEmpty() && password.isEmpty() && name.domain.isEmpty())
        return {};
    if (name.user.isEmpty())
        return Texts::tr("Username is required for initialization.");
    if (password.isEmpty())
        return Texts::tr("Password is required for initialization.");
    if (confirm != password)
        return Texts::tr("The password you typed do not match.");
    if (name.domain.isEmpty())
        return Texts::tr("Domain is required for initialization.");
    return {};
}

} // namespace config
