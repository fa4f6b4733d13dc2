// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>

class QDateTimeEdit;

/// Exact times in fields. A field stores a date and a time of day, which is ambiguous in the hour
/// before clocks are set back, so its value may differ by an hour from the one that was set.
namespace wizards {

void showTime(QDateTimeEdit& field, const QDateTime& time);

/// The time shown last if the field still shows it, else the field's value.
QDateTime shownTime(const QDateTimeEdit& field);

} // namespace wizards
