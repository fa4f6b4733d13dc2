// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/administrators.h"

#include <algorithm>

#include "platform/posix/account_database.h"

namespace platform {

bool isAdministrator(const std::string& user, AccountDatabase& accounts) {
    // An embedded zero would truncate the name on its way to the system.
    if (user.empty() || user.find('\0') != std::string::npos)
        return false;
    const std::optional<Account> account = accounts.account(user);
    if (!account)
        return false;
    if (account->id == 0)
        return true;
    for (const char* name : {"sudo", "wheel", "admin"}) {
        const std::optional<Group> group = accounts.group(name);
        if (group && (group->id == account->primaryGroup ||
                      std::ranges::find(group->members, user) != group->members.end()))
            return true;
    }
    return false;
}

bool isAdministrator(const std::string& user) {
    return isAdministrator(user, systemAccounts());
}

} // namespace platform
