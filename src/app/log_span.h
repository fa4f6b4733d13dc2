// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>

namespace app {

/// The default time span of a log. Local times.
struct LogSpan {
    QDateTime from;
    QDateTime to;
};

/// From the first moment of the day before `today` to the last moment of `today`.
LogSpan yesterdayAndToday(const QDate& today);

} // namespace app
