// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace platform {

struct Account {
    uid_t id = 0;
    gid_t primaryGroup = 0; ///< the account may be missing from this group's member list
};

struct Group {
    gid_t id = 0;
    std::vector<std::string> members;
};

/// The system's accounts and groups. Operations throw nothing but `std::bad_alloc`; an entry that
/// can't be read counts as unknown.
class AccountDatabase {
public:
    virtual ~AccountDatabase() = default;

    virtual std::optional<Account> account(const std::string& name) = 0;
    virtual std::optional<Group> group(const std::string& name) = 0;
};

/// The database of this system. Lives as long as the process; thread-safe.
AccountDatabase& systemAccounts();

/// Calls `read` repeatedly while it returns ERANGE, each time with a larger `texts` buffer for the
/// strings of an entry, up to 16 MiB. Returns the result of the last call.
int readWithRoom(std::vector<char>& texts, const std::function<int()>& read);

/// `isAdministrator` with the given database.
bool isAdministrator(const std::string& user, AccountDatabase& accounts);

} // namespace platform
