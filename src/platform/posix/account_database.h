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
    gid_t primaryGroup = 0; ///< the account needn't stand among this group's members
};

struct Group {
    gid_t id = 0;
    std::vector<std::string> members;
};

/// What the system knows about accounts and groups. No operation raises anything but
/// `std::bad_alloc`; what can't be read isn't known.
class AccountDatabase {
public:
    virtual ~AccountDatabase() = default;

    virtual std::optional<Account> account(const std::string& name) = 0;
    virtual std::optional<Group> group(const std::string& name) = 0;
};

/// The database of this system. Lives as long as the process; safe to use from any thread.
AccountDatabase& systemAccounts();

/// Calls `read` with more and more room in `texts` for the texts of an entry, as long as it answers
/// ERANGE, up to 16 MiB. The result is what the last call answered.
int readWithRoom(std::vector<char>& texts, const std::function<int()>& read);

/// `isAdministrator` by a given database.
bool isAdministrator(const std::string& user, AccountDatabase& accounts);

} // namespace platform
