// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/wire_time.h"

#include <algorithm>
#include <limits>

namespace session {

std::int32_t wireTime(const QDateTime& time) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<qint64>(time.toSecsSinceEpoch(), Limits::min(), Limits::max()));
}

hessiancln::time_in_day wireTime(const QTime& time) {
    return {time.hour(), time.minute(), 0};
}

} // namespace session
