// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/string_table.h"

#include <QList>

namespace ui {

namespace {

void readLine(QByteArray line, StringTable& table) {
    if (const int comment = line.indexOf('#'); comment >= 0)
        line.truncate(comment);
    const int colon = line.indexOf(':');
    if (colon < 1)
        return;
    const QString key = QString::fromUtf8(line.left(colon)).trimmed().toUpper();
    if (!key.isEmpty())
        table[key] = QString::fromUtf8(line.mid(colon + 1)).trimmed();
}

} // namespace

void readStringTable(const QByteArray& text, StringTable& table) {
    for (const QByteArray& line : text.split('\n'))
        readLine(line, table);
}

} // namespace ui
