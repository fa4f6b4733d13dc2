// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/administrators.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#define SECURITY_WIN32
#include <windows.h>

#include <lm.h>
#include <security.h>

#include "platform/user_name.h"
#include "tests/support/system/windows/system_function.h"

namespace {

using platform::isAdministrator;
using Sid = std::vector<unsigned char>;

const Sid ofAdministrators{1, 2, 0, 0, 0, 0, 0, 5, 32, 0, 0, 0, 0x20, 2, 0, 0}; // S-1-5-32-544
const Sid ofUsers{1, 2, 0, 0, 0, 0, 0, 5, 32, 0, 0, 0, 0x21, 2, 0, 0};          // S-1-5-32-545

/// Stands in for the system's accounts as long as it exists.
class FakeAccounts {
public:
    struct Group {
        Sid sid;
        std::wstring domain = L"BUILTIN";
    };

    FakeAccounts() { current = this; }
    FakeAccounts(const FakeAccounts&) = delete;
    FakeAccounts& operator=(const FakeAccounts&) = delete;
    ~FakeAccounts() {
        current = nullptr;
        EXPECT_THAT(answers_, testing::IsEmpty()) << "not freed";
    }

    static NET_API_STATUS WINAPI groupsOf(LPCWSTR server, LPCWSTR account, DWORD level, DWORD flags,
                                          LPBYTE* buffer, DWORD room, LPDWORD count,
                                          LPDWORD total) {
        if (!current) {
            static const auto system = support::systemFunction<decltype(&NetUserGetLocalGroups)>(
                L"netapi32.dll", "NetUserGetLocalGroups");
            return system(server, account, level, flags, buffer, room, count, total);
        }
        EXPECT_EQ(server, nullptr);
        EXPECT_EQ(level, 0u);
        EXPECT_EQ(flags, DWORD{LG_INCLUDE_INDIRECT});
        EXPECT_EQ(room, MAX_PREFERRED_LENGTH);
        return current->answer(account, buffer, *count, *total);
    }

    static NET_API_STATUS WINAPI freeBuffer(LPVOID buffer) {
        if (!current) {
            static const auto system = support::systemFunction<decltype(&NetApiBufferFree)>(
                L"netapi32.dll", "NetApiBufferFree");
            return system(buffer);
        }
        std::erase_if(current->answers_, [&](const Answer& answer) {
            return static_cast<void*>(answer.get()) == buffer;
        });
        return NERR_Success;
    }

    static BOOL WINAPI lookUp(LPCWSTR server, LPCWSTR name, PSID sid, LPDWORD sidSize,
                              LPWSTR domain, LPDWORD domainSize, PSID_NAME_USE use) {
        if (!current) {
            static const auto system = support::systemFunction<decltype(&LookupAccountNameW)>(
                L"advapi32.dll", "LookupAccountNameW");
            return system(server, name, sid, sidSize, domain, domainSize, use);
        }
        return current->find(name, static_cast<unsigned char*>(sid), *sidSize, domain, *domainSize);
    }

    static BOOLEAN WINAPI userName(EXTENDED_NAME_FORMAT format, LPWSTR name, PULONG size) {
        if (!current) {
            static const auto system = support::systemFunction<decltype(&GetUserNameExW)>(
                L"secur32.dll", "GetUserNameExW");
            return system(format, name, size);
        }
        EXPECT_EQ(format, NameSamCompatible);
        const std::wstring& whole = current->processAccount;
        if (*size <= whole.size()) {
            *size = static_cast<ULONG>(whole.size() + 1);
            SetLastError(ERROR_MORE_DATA);
            return FALSE;
        }
        name[whole.copy(name, whole.size())] = L'\0';
        *size = static_cast<ULONG>(whole.size());
        return TRUE;
    }

    std::map<std::wstring, std::vector<std::wstring>> memberships; ///< by account
    std::map<std::wstring, Group> groups{{L"Administrators", {ofAdministrators}},
                                         {L"Users", {ofUsers}}};
    std::wstring processAccount = L"DOMAIN\\anna";
    /// Returned with the groups of every known account.
    NET_API_STATUS status = NERR_Success;
    std::vector<std::wstring> asked;

private:
    using Answer = std::unique_ptr<LOCALGROUP_USERS_INFO_0[]>;

    NET_API_STATUS answer(const wchar_t* account, LPBYTE* buffer, DWORD& count, DWORD& total) {
        asked.emplace_back(account);
        *buffer = nullptr;
        const auto found = memberships.find(account);
        if (found == memberships.end())
            return NERR_UserNotFound;
        auto& names = found->second;
        answers_.push_back(std::make_unique<LOCALGROUP_USERS_INFO_0[]>(names.size() + 1));
        std::transform(names.begin(), names.end(), answers_.back().get(),
                       [](std::wstring& name) { return LOCALGROUP_USERS_INFO_0{name.data()}; });
        *buffer = reinterpret_cast<LPBYTE>(answers_.back().get());
        count = total = static_cast<DWORD>(names.size());
        return status;
    }

    BOOL find(const wchar_t* name, unsigned char* sid, DWORD& sidSize, wchar_t* domain,
              DWORD& domainSize) const {
        const auto found = groups.find(name);
        if (found == groups.end()) {
            SetLastError(ERROR_NONE_MAPPED);
            return FALSE;
        }
        const Group& group = found->second;
        const bool fits = sidSize >= group.sid.size() && domainSize > group.domain.size();
        if (fits) {
            std::copy(group.sid.begin(), group.sid.end(), sid);
            domain[group.domain.copy(domain, group.domain.size())] = L'\0';
        } else {
            SetLastError(ERROR_INSUFFICIENT_BUFFER);
        }
        sidSize = static_cast<DWORD>(group.sid.size());
        domainSize = static_cast<DWORD>(group.domain.size() + (fits ? 0 : 1));
        return fits;
    }

    static inline FakeAccounts* current = nullptr;
    std::vector<Answer> answers_;
};

TEST(Administrators, AreTheMembersOfTheGroupWithItsSid) {
    FakeAccounts accounts;
    accounts.memberships[L"J\x00FCrgen"] = {L"Users", L"Administrators"};
    accounts.memberships[L"eve"] = {L"Users"};
    accounts.memberships[L"bob"] = {};
    EXPECT_TRUE(isAdministrator("J\xC3\xBCrgen"));
    EXPECT_FALSE(isAdministrator("eve"));
    EXPECT_FALSE(isAdministrator("bob"));
}

TEST(Administrators, HaveAGroupWithALocalisedName) {
    FakeAccounts accounts;
    accounts.groups = {{L"Administratoren", {ofAdministrators, L"VORDEFINIERT"}},
                       {L"Benutzer", {ofUsers, L"VORDEFINIERT"}}};
    accounts.memberships[L"anna"] = {L"Benutzer", L"Administratoren"};
    accounts.memberships[L"eve"] = {L"Benutzer"};
    EXPECT_TRUE(isAdministrator("anna"));
    EXPECT_FALSE(isAdministrator("eve"));
}

TEST(Administrators, AreNotTheMembersOfAGroupThatOnlyHasTheName) {
    FakeAccounts accounts;
    accounts.groups[L"Administrators"] = {
        // S-1-5-21-1-2-3-544
        {1, 5, 0, 0, 0, 0, 0, 5, 21, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0, 0x20, 2, 0, 0}};
    accounts.memberships[L"eve"] = {L"Administrators"};
    EXPECT_FALSE(isAdministrator("eve"));
}

TEST(Administrators, AreFoundInADomainWithALongName) {
    FakeAccounts accounts;
    accounts.groups[L"Administrators"].domain.assign(1000, L'D');
    accounts.memberships[L"anna"] = {L"Administrators"};
    EXPECT_TRUE(isAdministrator("anna"));
}

TEST(Administrators, AreFoundBehindAGroupThatIsGone) {
    FakeAccounts accounts;
    accounts.memberships[L"anna"] = {L"Gone", L"Administrators"};
    accounts.memberships[L"eve"] = {L"Gone"};
    EXPECT_TRUE(isAdministrator("anna"));
    EXPECT_FALSE(isAdministrator("eve"));
}

TEST(Administrators, IncludeTheDomainAccountOfTheProcess) {
    FakeAccounts accounts;
    accounts.memberships[L"DOMAIN\\anna"] = {L"Administrators"};
    EXPECT_TRUE(isAdministrator("anna"));
    EXPECT_TRUE(isAdministrator("Anna")) << "names of accounts have no case";
    EXPECT_FALSE(isAdministrator("ann")) << "another account's name";
}

TEST(Administrators, AreNotConfusedWithALocalAccountOfTheSameName) {
    FakeAccounts accounts;
    accounts.memberships[L"anna"] = {L"Administrators"};
    accounts.memberships[L"DOMAIN\\anna"] = {L"Users"};
    EXPECT_FALSE(isAdministrator("anna"));
    EXPECT_THAT(accounts.asked, testing::ElementsAre(L"DOMAIN\\anna"));
}

TEST(Administrators, HoldNoStranger) {
    FakeAccounts accounts;
    accounts.memberships[L"DOMAIN\\anna"] = {L"Administrators"};
    EXPECT_FALSE(isAdministrator("no such account \xF0\x9F\x8C\xB2"));
    EXPECT_THAT(accounts.asked, testing::ElementsAre(L"no such account \xD83C\xDF32"));
}

TEST(Administrators, AreUnknownIfTheSystemCantSay) {
    FakeAccounts accounts;
    accounts.memberships[L"anna"] = {L"Administrators"};
    for (const NET_API_STATUS failure :
         {NET_API_STATUS{ERROR_ACCESS_DENIED}, NET_API_STATUS{NERR_DCNotFound}}) {
        accounts.status = failure;
        EXPECT_FALSE(isAdministrator("anna")) << failure;
    }
}

TEST(Administrators, HoldNoEmptyNameAndNoneWithAZeroInside) {
    FakeAccounts accounts;
    const std::wstring name(L"Administrator\0x", 15);
    for (const std::wstring& account : {std::wstring(), name, std::wstring(L"Administrator")})
        accounts.memberships[account] = {L"Administrators"};
    EXPECT_TRUE(isAdministrator("Administrator"));
    accounts.asked.clear();
    EXPECT_FALSE(isAdministrator(""));
    EXPECT_FALSE(isAdministrator(std::string("Administrator\0x", 15)));
    EXPECT_THAT(accounts.asked, testing::IsEmpty());
}

/// Whether the token of this process names the group, even if only to deny access, as before an
/// elevation.
bool tokenHasAdministrators() {
    HANDLE token = nullptr;
    EXPECT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
    DWORD size = 0;
    GetTokenInformation(token, TokenGroups, nullptr, 0, &size);
    std::vector<unsigned char> room(size);
    EXPECT_TRUE(GetTokenInformation(token, TokenGroups, room.data(), size, &size));
    CloseHandle(token);
    const auto& groups = *reinterpret_cast<const TOKEN_GROUPS*>(room.data());
    auto administrators = ofAdministrators;
    return std::any_of(groups.Groups, groups.Groups + groups.GroupCount, [&](const auto& group) {
        return EqualSid(group.Sid, administrators.data());
    });
}

TEST(Administrators, OfThisSystemAreThoseOfTheToken) {
    EXPECT_EQ(isAdministrator(platform::currentWindowsUser()), tokenHasAdministrators());
}

} // namespace

extern "C" {
decltype(&LookupAccountNameW) __imp_LookupAccountNameW = FakeAccounts::lookUp;

NET_API_STATUS WINAPI NetUserGetLocalGroups(LPCWSTR server, LPCWSTR account, DWORD level,
                                            DWORD flags, LPBYTE* buffer, DWORD room, LPDWORD count,
                                            LPDWORD total) {
    return FakeAccounts::groupsOf(server, account, level, flags, buffer, room, count, total);
}

NET_API_STATUS WINAPI NetApiBufferFree(LPVOID buffer) {
    return FakeAccounts::freeBuffer(buffer);
}

BOOLEAN WINAPI GetUserNameExW(EXTENDED_NAME_FORMAT format, LPWSTR name, PULONG size) {
    return FakeAccounts::userName(format, name, size);
}
}
