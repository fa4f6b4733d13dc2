// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <QDateTime>

#include "api/backup_set_records.h"

namespace wizards {

/// From when to when a set was backed up, in local time.
struct BackupTimeSpan {
    QDateTime earliest; ///< the first start, or now if that is later
    QDateTime latest;   ///< the last end
};

BackupTimeSpan backupTimeSpan(const std::vector<hessiancln::backup_sessions>& sessions,
                              const QDateTime& now);

/// Seconds since 1970 UTC as the agent takes them, from 0 on.
std::int32_t secondsOf(const QDateTime& time);

/// The same for a time up to or since when files count: never 0, which would be no limit, and let
/// all files count in place of none.
std::int32_t limitOf(const QDateTime& time);

} // namespace wizards
