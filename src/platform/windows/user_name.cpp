// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/user_name.h"

#include <windows.h>

#include "platform/windows/wide_text.h"

namespace platform {

std::string currentWindowsUser() {
    wchar_t name[512];
    DWORD count = 512;
    if (!GetUserNameW(name, &count) || count == 0)
        return {};
    return toUtf8({name, count - 1}); // the count includes the terminating zero
}

} // namespace platform
