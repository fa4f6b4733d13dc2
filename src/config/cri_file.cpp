// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/cri_file.h"

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>

#include <QIODevice>
#include <QScopeGuard>

#include "api/key_encryption_type.h"
#include "session/secret_text.h"
#include "session/text.h"

namespace config {

namespace {

constexpr auto roomForLine = static_cast<std::size_t>(longestLine) - 1; // without its end

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

bool isBlank(const QString& line) {
    return std::all_of(line.begin(), line.end(), [](QChar letter) { return letter.isSpace(); });
}

void takeLine(const std::string& bytes, const std::function<bool(const CriEntry&)>& take,
              LinesRead& lines) {
    QString line = textOfLine(bytes);
    const auto lineGuard = qScopeGuard([&line] { session::wipe(line); });
    auto entry = criEntryOf(line);
    const auto valueGuard = qScopeGuard([&entry] {
        if (entry)
            session::wipe(entry->value);
    });
    if (entry && take(*entry))
        ++lines.taken;
    else if (!isBlank(line))
        ++lines.skipped;
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

LinesRead readCri(QIODevice& file, const std::function<bool(const CriEntry&)>& take) {
    LinesRead lines;
    // Read into buffers that are never reallocated, and wiped at the end.
    std::string block(4096, '\0');
    const base::WipedAtEnd blockGuard(block);
    std::string line;
    line.reserve(roomForLine);
    const base::WipedAtEnd lineGuard(line);
    bool tooLong = false;

    const auto endLine = [&] {
        if (tooLong)
            ++lines.skipped;
        else
            takeLine(line, take, lines);
        base::wipe(line);
        tooLong = false;
    };
    for (qint64 size = 1; size > 0;) {
        size = file.read(block.data(), static_cast<qint64>(block.size()));
        std::string_view rest(block.data(), static_cast<std::size_t>(std::max<qint64>(size, 0)));
        while (!rest.empty()) {
            const std::string_view part = rest.substr(0, rest.find('\n'));
            if (line.size() + part.size() <= roomForLine)
                line += part;
            else
                tooLong = true;
            rest.remove_prefix(part.size());
            if (!rest.empty()) {
                rest.remove_prefix(1);
                endLine();
            }
        }
    }
    endLine();
    return lines;
}

QString keyTypeOfCri(const QString& number) {
    const int given = number.toInt();
    const int code = given == std::numeric_limits<int>::min() ? given : given - 1;
    const auto name = hessiancln::keyEncryptionName(
        hessianser::enumerationFrom<hessiancln::KeyEncryptionType>(code));
    return session::fromWire(name);
}

QString homeOfLogin(const QString& user) {
    const bool root = user == QStringLiteral("root");
    return (root ? QStringLiteral("/var/") : QStringLiteral("/Users/")) + user;
}

} // namespace config
