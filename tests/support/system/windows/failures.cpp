// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/failures.h"

#include <filesystem>

#include <windows.h>

namespace support::failures {

namespace {

/// The text depends on the user's language; Wine has none for some numbers.
Failure inThisLanguage(int number) {
    wchar_t buffer[1024];
    const DWORD size =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                         static_cast<DWORD>(number), 0, buffer, 1024, nullptr);
    if (size == 0)
        return {number, "Unknown error (" + std::to_string(number) + ")"};
    std::wstring text(buffer, size);
    while (text.ends_with(L'\n') || text.ends_with(L'\r'))
        text.pop_back();
    if (text.ends_with(L'.'))
        text.pop_back();
    const std::u8string utf8 = std::filesystem::path(text).u8string();
    return {number, {utf8.begin(), utf8.end()}};
}

} // namespace

Failure refused() {
    return inThisLanguage(10061);
}

Failure reset() {
    return inThisLanguage(10054);
}

Failure timedOut() {
    return inThisLanguage(10060);
}

Failure portTaken() {
    return inThisLanguage(10013);
}

Failure outOfMemory() {
    return inThisLanguage(ERROR_OUTOFMEMORY);
}

} // namespace support::failures
