// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/plugin_folder.h"

#include <windows.h>

#include "platform/windows/wide_text.h"

namespace platform {

namespace {

/// In characters, with the final zero.
constexpr DWORD longestPath = 32768;

} // namespace

std::string pluginFolder() {
    std::wstring program(longestPath, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, program.data(), longestPath);
    if (length == 0 || length == longestPath)
        return {};
    program.resize(length);
    return toUtf8(program.substr(0, program.find_last_of(L"\\/")));
}

} // namespace platform
