// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/event_log.h"

#include <syslog.h>

namespace platform {

void reportError(const std::string& source, const std::string& text) {
    // Without openlog, the log entry carries the process name, so the source goes into the text.
    syslog(LOG_USER | LOG_ERR, "%s: %s", source.c_str(), text.c_str());
}

} // namespace platform
