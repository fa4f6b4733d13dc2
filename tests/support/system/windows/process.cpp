// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/process.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <windows.h>

#include <lmcons.h>
#include <psapi.h>

namespace support::process {

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

} // namespace support::process
