// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/log_span.h"

namespace app {

LogSpan yesterdayAndToday(const QDate& today) {
    // Not every day has a midnight: in some time zones clocks are set forward at that hour.
    return {today.addDays(-1).startOfDay(), today.endOfDay()};
}

} // namespace app
