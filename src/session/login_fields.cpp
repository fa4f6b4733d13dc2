// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/login_fields.h"

#include <algorithm>
#include <stdexcept>

#include "session/text.h"

namespace session {

namespace {

QString withoutScheme(const QString& agentAddress) {
    for (const QLatin1String scheme : {QLatin1String("http://"), QLatin1String("https://")})
        if (agentAddress.startsWith(scheme))
            return agentAddress.mid(scheme.size());
    return agentAddress;
}

} // namespace

QString agentAddressOf(const QString& userText) {
    const int colon = userText.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return QStringLiteral("127.0.0.1:4411");
    // May have been pasted from a web page or a mail.
    QString address = userText.mid(colon + 1).trimmed();
    if (address.endsWith(QLatin1Char('/')) && !address.endsWith(QLatin1String("//")))
        address.chop(1);
    return address;
}

void checkPort(const QString& agentAddress) {
    const QString authority = withoutScheme(agentAddress).section(QLatin1Char('/'), 0, 0);
    const int colon = authority.indexOf(QLatin1Char(':'));
    const QString port = authority.mid(colon + 1);
    const bool isNumber = std::all_of(port.begin(), port.end(), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
    bool fits = false;
    const bool isPort = isNumber && port.toUShort(&fits) >= 1 && fits;
    if (colon >= 0 && !isPort)
        throw std::invalid_argument("Invalid port component in host '" + toWire(authority) + "'");
}

QString hostForDisplay(const QString& agentAddress) {
    const QString host = withoutScheme(agentAddress);
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
