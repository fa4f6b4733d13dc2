// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/time_retention_option.h"

#include "api/remote_call.h"

namespace hessiancln {

retention_time_span TimeRetentionOption::getValidFor() {
    return call<retention_time_span>("getValidFor");
}

void TimeRetentionOption::setValidFor(const retention_time_span& span) {
    call<void>("setValidFor", span);
}

void IntervalTimeRetentionOption::setRepeatTime(const retention_time_span& span) {
    call<void>("setRepeatTime", span);
}

} // namespace hessiancln
