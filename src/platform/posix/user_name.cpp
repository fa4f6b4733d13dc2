// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/user_name.h"

#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace platform {

std::string currentWindowsUser() {
    // Accounts from a directory service may need more room than the system's own hint suggests.
    constexpr std::size_t roomForAnAccount = std::size_t(16) * 1024;
    std::vector<char> texts(roomForAnAccount);
    passwd account{};
    passwd* found = nullptr;
    if (getpwuid_r(geteuid(), &account, texts.data(), texts.size(), &found) != 0 || !found)
        return {};
    return found->pw_name;
}

} // namespace platform
