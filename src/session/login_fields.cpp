// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/login_fields.h"

namespace session {

QString agentAddressOf(const QString& userText) {
    const int colon = userText.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return QStringLiteral("127.0.0.1:4411");
    // As it comes from a page or a mail that it was copied from.
    QString address = userText.mid(colon + 1).trimmed();
    if (address.endsWith(QLatin1Char('/')) && !address.endsWith(QLatin1String("//")))
        address.chop(1);
    return address;
}

QString hostForDisplay(const QString& agentAddress) {
    QString host = agentAddress;
    for (const QLatin1String scheme : {QLatin1String("http://"), QLatin1String("https://")})
        if (agentAddress.startsWith(scheme))
            host = agentAddress.mid(scheme.size());
    const int colon = host.lastIndexOf(QLatin1Char(':'));
    return colon >= 1 ? host.left(colon) : host;
}

QString loginUserOf(const QString& userText, bool asCurrentUser,
                    const std::optional<QString>& domain) {
    QString name = userText.left(userText.indexOf(QLatin1Char(':')));
    if (asCurrentUser || name.isEmpty() || !domain)
        return name;
    const int backslash = name.indexOf(QLatin1Char('\\'));
    if (backslash < 0)
        return *domain + QLatin1Char('\\') + name;
    return backslash == 0 ? name.mid(1) : name;
}

} // namespace session
