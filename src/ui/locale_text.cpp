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

} // namespace ui
