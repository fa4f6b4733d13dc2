// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/user_email_csv.h"

#include <algorithm>

#include <QTextStream>

#include "config/user_email_rules.h"
#include "session/text.h"

namespace config {

namespace {

bool isSeparator(QChar character) {
    return character == QLatin1Char(',') || character == QLatin1Char('|') ||
           character == QLatin1Char('\t');
}

} // namespace

std::optional<hessiancln::user_email> userEmailOf(const QString& line) {
    const auto domain = std::find_if(line.begin(), line.end(), isSeparator);
    if (domain == line.end())
        return std::nullopt;
    const auto email = std::find_if(domain + 1, line.end(), isSeparator);
    if (email == line.end())
        return std::nullopt;
    const auto rest = std::find_if(email + 1, line.end(), isSeparator);

    const auto field = [](auto begin, auto end) {
        return session::toWire(QString(begin, static_cast<int>(end - begin)));
    };
    return hessiancln::user_email{field(line.begin(), domain), field(domain + 1, email),
                                  field(email + 1, rest)};
}

UserEmailList readUserEmails(QIODevice& file) {
    // In some encodings a line end has several bytes.
    file.setTextModeEnabled(false);
    const QByteArray bytes = file.readAll();
    QTextStream text(bytes);
    // A byte order mark takes precedence.
    text.setCodec(isUtf8({bytes.constData(), static_cast<std::size_t>(bytes.size())})
                      ? "UTF-8"
                      : "ISO-8859-1");
    UserEmailList list;
    for (QString line; text.readLineInto(&line);)
        if (auto row = userEmailOf(line); row && problemOf(*row).isEmpty())
            list.rows.push_back(std::move(*row));
        else if (!line.trimmed().isEmpty())
            ++list.lines.skipped;
    list.lines.taken = static_cast<int>(list.rows.size());
    return list;
}

} // namespace config
