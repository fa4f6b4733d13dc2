// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/user_email_rules.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include "session/text.h"

namespace config {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(TFAUserDlg)
};

bool isEmailAddress(const QString& text) {
    static const QRegularExpression address(QRegularExpression::anchoredPattern(QStringLiteral(
                                                R"(\b[A-Z0-9._%+-]+@[A-Z0-9.-]+\.[A-Z]{2,4}\b)")),
                                            QRegularExpression::CaseInsensitiveOption);
    return address.match(text).hasMatch();
}

} // namespace

QString problemOf(const hessiancln::user_email& row) {
    if (row.username.empty())
        return Texts::tr("Username is required.");
    if (row.email.empty())
        return Texts::tr("Email is required.");
    if (!isEmailAddress(session::fromWire(row.email)))
        return Texts::tr("Not a valid Email address.");
    return {};
}

QString userKey(const hessiancln::user_email& row) {
    // Neither a dialog's field nor a line of a file can contain the separator.
    return (session::fromWire(row.username) + QLatin1Char('\n') + session::fromWire(row.domain))
        .toCaseFolded();
}

} // namespace config
