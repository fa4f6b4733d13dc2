// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>

class QDateTimeEdit;

/// Times in fields. A field keeps a date and a time of day, and the hour before clocks are put back
/// comes twice, so what it gives may be an hour away from what it was given.
namespace wizards {

void showTime(QDateTimeEdit& field, const QDateTime& time);

/// What was shown last, if the field still says so; else what it says.
QDateTime shownTime(const QDateTimeEdit& field);

} // namespace wizards
