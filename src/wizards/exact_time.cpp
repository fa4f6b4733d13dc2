// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/exact_time.h"

#include <QDateTimeEdit>
#include <QVariant>

namespace wizards {

namespace {

constexpr char exactTime[] = "exactTime";

} // namespace

void showTime(QDateTimeEdit& field, const QDateTime& time) {
    // First, because the field immediately signals its change.
    field.setProperty(exactTime, time);
    field.setDateTime(time);
}

QDateTime shownTime(const QDateTimeEdit& field) {
    const QDateTime said = field.dateTime();
    const QDateTime exact = field.property(exactTime).toDateTime();
    return exact.date() == said.date() && exact.time() == said.time() ? exact : said;
}

} // namespace wizards
