// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/process.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <windows.h>

#include <lmcons.h>
#include <psapi.h>

#include "tests/support/system/windows/system_function.h"

namespace support::process {

namespace {

/// Calls one of the functions on processes that no header declares.
bool applyTo(long child, const char* function) {
    using Apply = LONG(WINAPI*)(HANDLE);
    const HANDLE handle = ::OpenProcess(PROCESS_SUSPEND_RESUME, FALSE, static_cast<DWORD>(child));
    const bool done = handle && systemFunction<Apply>(L"ntdll.dll", function)(handle) >= 0;
    ::CloseHandle(handle);
    return done;
}

} // namespace

long id() {
    return static_cast<long>(::GetCurrentProcessId());
}

std::string accountName() {
    wchar_t name[UNLEN + 1];
    DWORD size = UNLEN + 1;
    if (!::GetUserNameW(name, &size))
        return {};
    const std::u8string utf8 = std::filesystem::path(name).u8string();
    return {utf8.begin(), utf8.end()};
}

void setEnvironment(const std::string& name, const std::optional<std::string>& value) {
    ::_putenv_s(name.c_str(), value.value_or("").c_str());
}

void readTimeZone() {
    ::_tzset();
}

std::size_t residentSize() {
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

bool suspend(long child) {
    return applyTo(child, "NtSuspendProcess");
}

bool resume(long child) {
    return applyTo(child, "NtResumeProcess");
}

} // namespace support::process
