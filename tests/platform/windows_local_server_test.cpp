// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/local_server.h"

#include <string>

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/support/system/windows/system_function.h"

namespace {

bool nextUserIsAnother = false;

BOOL WINAPI informationOf(HANDLE token, TOKEN_INFORMATION_CLASS kind, LPVOID value, DWORD room,
                          PDWORD size) {
    static const auto system = support::systemFunction<decltype(&GetTokenInformation)>(
        L"advapi32.dll", "GetTokenInformation");
    if (!system(token, kind, value, room, size))
        return FALSE;
    if (kind == TokenUser && nextUserIsAnother) {
        const PSID sid = static_cast<TOKEN_USER*>(value)->User.Sid;
        ++*GetSidSubAuthority(sid, *GetSidSubAuthorityCount(sid) - 1u);
        nextUserIsAnother = false;
    }
    return TRUE;
}

/// A connection of this process to itself.
struct Pipe {
    Pipe() {
        const std::wstring name =
            L"\\\\.\\pipe\\tarn-test-" + std::to_wstring(GetCurrentProcessId());
        server = CreateNamedPipeW(name.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_FIRST_PIPE_INSTANCE,
                                  PIPE_TYPE_BYTE, 1, 64, 64, 0, nullptr);
        EXPECT_NE(server, INVALID_HANDLE_VALUE);
        client = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                             0, nullptr);
        EXPECT_NE(client, INVALID_HANDLE_VALUE);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        CloseHandle(client);
        CloseHandle(server);
    }

    HANDLE server = nullptr;
    HANDLE client = nullptr;
};

bool isServedByThisUser(HANDLE connection) {
    return platform::isServedByThisUser(reinterpret_cast<std::intptr_t>(connection));
}

TEST(LocalServer, IsOfThisUserOrOfAnother) {
    const Pipe pipe;
    EXPECT_TRUE(isServedByThisUser(pipe.client));
    nextUserIsAnother = true;
    EXPECT_FALSE(isServedByThisUser(pipe.client));
    EXPECT_FALSE(nextUserIsAnother);
    EXPECT_TRUE(isServedByThisUser(pipe.client));
}

TEST(LocalServer, IsOfAnotherUserIfTheSystemDoesntSay) {
    EXPECT_FALSE(isServedByThisUser(INVALID_HANDLE_VALUE));
}

} // namespace

extern "C" {
decltype(&GetTokenInformation) __imp_GetTokenInformation = informationOf;
}
