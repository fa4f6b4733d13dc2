// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/duration_text.h"

#include <QCoreApplication>

namespace ui {

namespace {

QString twoDigits(qint64 number) {
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

QString formatDuration(qint64 seconds) {
    const qint64 days = seconds / 86400;
    const qint64 hours = seconds / 3600 % 24;
    const qint64 minutes = seconds / 60 % 60;
    const qint64 rest = seconds % 60;
    if (days >= 1)
        return QCoreApplication::translate("ActivityLogModel", "%1 days, %2:%3:%4")
            .arg(QString::number(days), twoDigits(hours), twoDigits(minutes), twoDigits(rest));
    if (hours >= 1)
        return QStringLiteral("%1:%2:%3")
            .arg(QString::number(hours), twoDigits(minutes), twoDigits(rest));
    if (minutes >= 1)
        return QStringLiteral("%1:%2").arg(QString::number(minutes), twoDigits(rest));
    return QCoreApplication::translate("ActivityLogModel", "%1 second(s)").arg(rest);
}

} // namespace ui
