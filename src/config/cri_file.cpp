// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/cri_file.h"

#include <limits>

#include <QIODevice>

#include "api/key_encryption_type.h"
#include "config/wipe.h"
#include "session/text.h"

namespace config {

namespace {

struct NamedKey {
    QLatin1String name;
    CriKey key;
};

const NamedKey keys[] = {
    {QLatin1String("UserName"), CriKey::customerName},
    {QLatin1String("AccountName"), CriKey::accountNumber},
    {QLatin1String("ClientNumber"), CriKey::clientNumber},
    {QLatin1String("SystemAddress"), CriKey::systemAddresses},
    {QLatin1String("PrivateEncType"), CriKey::privateKeyType},
    {QLatin1String("PrivateEncKey"), CriKey::privateKey},
    {QLatin1String("AccEncType"), CriKey::accountKeyType},
    {QLatin1String("AccEncKey"), CriKey::accountKey},
};

/// Reads up to the end of the line that a read has broken off.
void skipRest(QIODevice& file) {
    for (bool inLine = true; inLine;) {
        QByteArray part = file.readLine(longestCriLine);
        inLine = !part.isEmpty() && !part.endsWith('\n');
        wipe(part);
    }
}

void takeLine(const QByteArray& bytes, const std::function<void(const CriEntry&)>& take) {
    QString line = session::fromWire({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    const WipedAtEnd lineGuard(line);
    if (auto entry = criEntryOf(line)) {
        const WipedAtEnd valueGuard(entry->value);
        take(*entry);
    }
}

} // namespace

std::optional<CriEntry> criEntryOf(const QString& line) {
    const int end = line.indexOf(QLatin1Char('='));
    if (end <= 0)
        return std::nullopt;
    const QStringRef name = line.leftRef(end);
    for (const NamedKey& known : keys)
        if (name == known.name)
            return CriEntry{known.key, line.mid(end + 1)};
    return std::nullopt;
}

void readCri(QIODevice& file, const std::function<void(const CriEntry&)>& take) {
    for (;;) {
        QByteArray line = file.readLine(longestCriLine);
        const WipedAtEnd guard(line);
        if (line.isEmpty())
            return;
        // A read keeps a byte for its own end.
        const bool brokenOff = !line.endsWith('\n') && line.size() >= longestCriLine - 1;
        if (brokenOff) {
            skipRest(file);
            continue;
        }
        if (line.endsWith('\n'))
            line.chop(1);
        takeLine(line, take);
    }
}

QString keyTypeOfCri(const QString& number) {
    const int told = number.toInt();
    const int code = told == std::numeric_limits<int>::min() ? told : told - 1;
    const auto name = hessiancln::keyEncryptionName(
        hessianser::enumerationFrom<hessiancln::KeyEncryptionType>(code));
    return session::fromWire(name);
}

QString homeOfLogin(const QString& user) {
    const bool root = user == QStringLiteral("root");
    return (root ? QStringLiteral("/var/") : QStringLiteral("/Users/")) + user;
}

} // namespace config
