// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Runs the command on its command line as if its user were no administrator, and ends with its
// status.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <windows.h>

#include <shlwapi.h>

namespace {

[[noreturn]] void fail(const char* operation) {
    std::fprintf(stderr, "tarn_without_rights: %s: %lu\n", operation, GetLastError());
    std::exit(EXIT_FAILURE);
}

HANDLE tokenWithoutRights() {
    SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
    SID_AND_ATTRIBUTES administrators = {};
    if (!AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID,
                                  DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0, &administrators.Sid))
        fail("AllocateAndInitializeSid");
    HANDLE own = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own))
        fail("OpenProcessToken");
    HANDLE restricted = nullptr;
    if (!CreateRestrictedToken(own, 0, 1, &administrators, 0, nullptr, 0, nullptr, &restricted))
        fail("CreateRestrictedToken");
    return restricted;
}

} // namespace

int main() {
    std::wstring command = PathGetArgsW(GetCommandLineW());
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessAsUserW(tokenWithoutRights(), nullptr, command.data(), nullptr, nullptr,
                              FALSE, 0, nullptr, nullptr, &startup, &process))
        fail("CreateProcessAsUser");
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = EXIT_FAILURE;
    GetExitCodeProcess(process.hProcess, &status);
    return static_cast<int>(status);
}
