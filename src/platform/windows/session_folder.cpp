// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/session_folder.h"

#include <algorithm>

#include <windows.h>

#include "platform/windows/wide_text.h"

namespace platform {

std::string sessionFilePrefix() {
    // The folder belongs to the user and is shared by all sessions: with fast user switching or a
    // remote desktop, one user may have several.
    wchar_t folder[MAX_PATH + 1];
    const DWORD size = GetTempPathW(MAX_PATH + 1, folder);
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    std::string prefix = toUtf8({folder, size <= MAX_PATH ? size : 0});
    // The whole string becomes the name of a pipe, in which a backslash has a meaning.
    std::replace(prefix.begin(), prefix.end(), '\\', '/');
    return prefix + "session-" + std::to_string(session) + '-';
}

} // namespace platform
