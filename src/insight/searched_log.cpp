// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/searched_log.h"

namespace insight {

RowTraits traitsOf(const hessiancln::activity_log_info& row) {
    const Severity severity = row.errors >= 1     ? Severity::error
                              : row.warnings >= 1 ? Severity::warning
                                                  : Severity::info;
    return {severity, row.set_id, row.errors >= 1, row.warnings >= 1};
}

RowTraits traitsOf(const hessiancln::event_log_info& row) {
    using hessiancln::EventLogType;
    const Severity severity = row.type == EventLogType::Error     ? Severity::error
                              : row.type == EventLogType::Warning ? Severity::warning
                                                                  : Severity::info;
    return {severity, row.activity_id, severity == Severity::error, severity == Severity::warning};
}

} // namespace insight
