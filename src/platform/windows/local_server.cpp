// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/local_server.h"

#include <memory>
#include <vector>

#include <windows.h>

namespace platform {

namespace {

struct CloseOwnedHandle {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, CloseOwnedHandle>;

/// The `TOKEN_USER` of a process; empty if the system denies it.
std::vector<unsigned char> userOf(HANDLE process) {
    HANDLE opened = nullptr;
    if (!process || !OpenProcessToken(process, TOKEN_QUERY, &opened))
        return {};
    const OwnedHandle token(opened);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<unsigned char> user(size);
    if (!GetTokenInformation(token.get(), TokenUser, user.data(), size, &size))
        return {};
    return user;
}

PSID sidOf(std::vector<unsigned char>& user) {
    return reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid;
}

} // namespace

bool isServedByThisUser(std::intptr_t connection) {
    ULONG id = 0;
    if (!GetNamedPipeServerProcessId(reinterpret_cast<HANDLE>(connection), &id))
        return false;
    const OwnedHandle server(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
    auto there = userOf(server.get());
    auto here = userOf(GetCurrentProcess());
    return !there.empty() && !here.empty() && EqualSid(sidOf(there), sidOf(here));
}

} // namespace platform
