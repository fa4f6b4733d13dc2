// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/backup_time_span.h"

#include <algorithm>

#include "session/wire_time.h"

namespace wizards {

BackupTimeSpan backupTimeSpan(const std::vector<hessiancln::backup_sessions>& sessions,
                              const QDateTime& now) {
    qint64 earliest = now.toSecsSinceEpoch();
    qint64 latest = 0;
    for (const auto& session : sessions) {
        earliest = std::min<qint64>(earliest, session.start_time);
        latest = std::max<qint64>(latest, session.end_time);
    }
    return {QDateTime::fromSecsSinceEpoch(earliest), QDateTime::fromSecsSinceEpoch(latest)};
}

std::int32_t secondsOf(const QDateTime& time) {
    return std::max(session::wireTime(time), 0);
}

std::int32_t limitOf(const QDateTime& time) {
    return std::max(secondsOf(time), 1);
}

} // namespace wizards
