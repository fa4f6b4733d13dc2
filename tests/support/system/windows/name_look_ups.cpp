// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Replaces the system's functions in the program it is linked into.
#include <filesystem>

#include <winsock2.h>

#include <lm.h>
#include <ws2tcpip.h>

#include "tests/support/held_names.h"
#include "tests/support/system/windows/system_function.h"

namespace {

int WSAAPI resolve(const char* node, const char* service, const addrinfo* hints,
                   addrinfo** results) {
    static const auto system =
        support::systemFunction<decltype(&getaddrinfo)>(L"ws2_32.dll", "getaddrinfo");
    if (node && support::HeldNames::hangs(node))
        return EAI_NONAME;
    return system(node, service, hints, results);
}

} // namespace

extern "C" {
decltype(&getaddrinfo) __imp_getaddrinfo = resolve;

NET_API_STATUS WINAPI NetUserGetLocalGroups(LPCWSTR server, LPCWSTR account, DWORD level,
                                            DWORD flags, LPBYTE* buffer, DWORD room, LPDWORD count,
                                            LPDWORD total) {
    static const auto system = support::systemFunction<decltype(&NetUserGetLocalGroups)>(
        L"netapi32.dll", "NetUserGetLocalGroups");
    if (support::HeldNames::hangs(std::filesystem::path(account).string()))
        return NERR_UserNotFound;
    return system(server, account, level, flags, buffer, room, count, total);
}
}
