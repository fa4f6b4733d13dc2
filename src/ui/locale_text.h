// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

/// Numbers and times formatted in the system's locale.
namespace ui {

QString numberText(qint64 number);

/// A time in seconds since 1970 UTC, shown as local time.
QString timeText(qint64 seconds, QLocale::FormatType format);
/// Samples of such texts, the longest among them: with each month, and each day of the week.
QStringList timeTextSamples(QLocale::FormatType format);

} // namespace ui
