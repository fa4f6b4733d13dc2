// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/posix/account_database.h"

#include <cerrno>

#include <grp.h>
#include <pwd.h>

namespace platform {

namespace {

// A group of a directory service can have very many members. A database that asks for more room
// than the limit is considered broken.
constexpr std::size_t firstRoom = 4096;
constexpr std::size_t mostRoom = std::size_t{16} << 20;

class SystemAccounts final : public AccountDatabase {
public:
    std::optional<Account> account(const std::string& name) override {
        std::vector<char> texts;
        passwd entry{};
        passwd* found = nullptr;
        const int failure = readWithRoom(texts, [&] {
            return getpwnam_r(name.c_str(), &entry, texts.data(), texts.size(), &found);
        });
        if (failure != 0 || !found)
            return std::nullopt;
        return Account{found->pw_uid, found->pw_gid};
    }

    std::optional<Group> group(const std::string& name) override {
        std::vector<char> texts;
        ::group entry{};
        ::group* found = nullptr;
        const int failure = readWithRoom(texts, [&] {
            return getgrnam_r(name.c_str(), &entry, texts.data(), texts.size(), &found);
        });
        if (failure != 0 || !found)
            return std::nullopt;
        Group result{found->gr_gid, {}};
        for (char** member = found->gr_mem; member && *member; ++member)
            result.members.emplace_back(*member);
        return result;
    }
};

} // namespace

int readWithRoom(std::vector<char>& texts, const std::function<int()>& read) {
    int failure = ERANGE;
    for (std::size_t room = firstRoom; failure == ERANGE && room <= mostRoom; room *= 4) {
        texts.resize(room);
        do {
            failure = read();
        } while (failure == EINTR);
    }
    return failure;
}

AccountDatabase& systemAccounts() {
    static SystemAccounts accounts;
    return accounts;
}

} // namespace platform
