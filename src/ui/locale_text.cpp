// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/locale_text.h"

#include <QDateTime>

namespace ui {

QString numberText(qint64 number) {
    return QLocale::system().toString(number);
}

QString timeText(qint64 seconds, QLocale::FormatType format) {
    return QLocale::system().toString(QDateTime::fromSecsSinceEpoch(seconds), format);
}

QStringList timeTextSamples(QLocale::FormatType format) {
    constexpr int firstWithTwoDigits = 20;
    constexpr int year = 2000;
    const QTime evening(20, 0);
    QStringList texts;
    for (int month = 1; month <= 12; ++month)
        for (int day = firstWithTwoDigits; day < firstWithTwoDigits + 7; ++day)
            texts << timeText(QDateTime({year, month, day}, evening).toSecsSinceEpoch(), format);
    return texts;
}

} // namespace ui
