// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/event_log.h"

#include <windows.h>

#include "platform/windows/wide_text.h"

namespace platform {

void reportError(const std::string& source, const std::string& text) {
    const HANDLE log = RegisterEventSourceW(nullptr, toWide(source).c_str());
    if (!log)
        return;
    const char* line = text.c_str();
    ReportEventA(log, EVENTLOG_ERROR_TYPE, 0, 0xFFFFFFFF, nullptr, 1, 0, &line, nullptr);
    DeregisterEventSource(log);
}

} // namespace platform
