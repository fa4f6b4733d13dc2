// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/session_folder.h"

#include <algorithm>
#include <memory>

#include <windows.h>

#include <shlobj.h>

#include "platform/windows/wide_text.h"

namespace platform {

namespace {

struct FreeTaskMemory {
    void operator()(void* memory) const { CoTaskMemFree(memory); }
};

/// The user's folder for temporary files, which the system clears; where there is none, the one
/// above it. Variables such as TEMP may differ between two starts.
std::wstring userFolder() {
    wchar_t* path = nullptr;
    if (FAILED(SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_DEFAULT, nullptr, &path)))
        return {};
    const std::unique_ptr<wchar_t, FreeTaskMemory> owned(path);
    const std::wstring local = std::wstring(path) + L'\\';
    const std::wstring temporary = local + L"Temp\\";
    const DWORD attributes = GetFileAttributesW(temporary.c_str());
    const bool isFolder =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return isFolder ? temporary : local;
}

} // namespace

std::string sessionFilePrefix() {
    // The folder belongs to the user and is shared by all sessions: with fast user switching or a
    // remote desktop, one user may have several.
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    std::string prefix = toUtf8(userFolder());
    // The whole string becomes the name of a pipe, in which a backslash has a meaning.
    std::replace(prefix.begin(), prefix.end(), '\\', '/');
    return prefix + "session-" + std::to_string(session) + '-';
}

} // namespace platform
