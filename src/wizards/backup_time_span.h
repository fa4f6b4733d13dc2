// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QDateTime>

#include "api/backup_set_records.h"

namespace wizards {

/// The time span of a set's backups, in local time.
struct BackupTimeSpan {
    QDateTime earliest; ///< the first start, or now if the first start is in the future
    QDateTime latest;   ///< the last end
};

BackupTimeSpan backupTimeSpan(const std::vector<hessiancln::backup_sessions>& sessions,
                              const QDateTime& now);

/// Seconds since 1970 UTC in the agent's format, not negative.
std::int32_t secondsOf(const QDateTime& time);

/// Likewise for a time limit on files: never 0, which would mean no limit and select all files
/// instead of none.
std::int32_t limitOf(const QDateTime& time);

} // namespace wizards
