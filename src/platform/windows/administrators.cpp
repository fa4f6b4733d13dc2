// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/administrators.h"

#include <memory>
#include <span>
#include <vector>

#define SECURITY_WIN32
#include <windows.h>

#include <lm.h>
#include <security.h>

#include "platform/windows/wide_text.h"

namespace platform {

namespace {

struct FreeSid {
    void operator()(void* sid) const { ::FreeSid(sid); }
};
using OwnedSid = std::unique_ptr<void, FreeSid>;

struct FreeNetworkBuffer {
    void operator()(void* buffer) const { NetApiBufferFree(buffer); }
};
using OwnedGroups = std::unique_ptr<LOCALGROUP_USERS_INFO_0, FreeNetworkBuffer>;

OwnedSid administratorsSid() {
    SID_IDENTIFIER_AUTHORITY authority = {SECURITY_NT_AUTHORITY};
    PSID sid = nullptr;
    if (!AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID,
                                  DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0, &sid))
        return nullptr;
    return OwnedSid(sid);
}

/// Whether the group has this SID. Its name proves nothing: it is localised.
bool isGroup(const wchar_t* name, PSID wanted) {
    std::vector<unsigned char> sid(SECURITY_MAX_SID_SIZE);
    DWORD sidSize = static_cast<DWORD>(sid.size());
    std::vector<wchar_t> domain(256);
    DWORD domainSize = static_cast<DWORD>(domain.size());
    SID_NAME_USE use{};
    BOOL found =
        LookupAccountNameW(nullptr, name, sid.data(), &sidSize, domain.data(), &domainSize, &use);
    if (!found && GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
        sid.resize(sidSize);
        domain.resize(domainSize);
        found = LookupAccountNameW(nullptr, name, sid.data(), &sidSize, domain.data(), &domainSize,
                                   &use);
    }
    return found && EqualSid(sid.data(), wanted);
}

/// The account of this process with its domain, as in DOMAIN\name; empty if unknown.
std::wstring qualifiedAccount() {
    ULONG size = 0;
    GetUserNameExW(NameSamCompatible, nullptr, &size);
    std::wstring account(size, L'\0');
    if (!GetUserNameExW(NameSamCompatible, account.data(), &size))
        return {};
    account.resize(size);
    return account;
}

/// Whether the qualified account has this name in its domain.
bool isNameOf(const std::wstring& account, const std::wstring& name) {
    const std::size_t separator = account.find(L'\\');
    return separator != std::wstring::npos &&
           CompareStringOrdinal(account.c_str() + separator + 1, -1, name.c_str(), -1, TRUE) ==
               CSTR_EQUAL;
}

NET_API_STATUS readGroups(const std::wstring& account, OwnedGroups& groups, DWORD& count) {
    LPBYTE buffer = nullptr;
    DWORD total = 0;
    const NET_API_STATUS status =
        NetUserGetLocalGroups(nullptr, account.c_str(), 0, LG_INCLUDE_INDIRECT, &buffer,
                              MAX_PREFERRED_LENGTH, &count, &total);
    groups.reset(reinterpret_cast<LOCALGROUP_USERS_INFO_0*>(buffer));
    return status;
}

} // namespace

bool isAdministrator(const std::string& user) {
    const std::wstring name = toWide(user);
    // An embedded zero would truncate the name on its way to the system.
    if (name.empty() || name.find(L'\0') != std::wstring::npos)
        return false;
    // Without a domain, only the accounts of this machine are found, and one of them may have the
    // same name as the account of the process.
    const std::wstring account = qualifiedAccount();
    const bool isOwn = isNameOf(account, name);
    OwnedGroups groups;
    DWORD count = 0;
    NET_API_STATUS status = readGroups(isOwn ? account : name, groups, count);
    if (isOwn && status == NERR_UserNotFound)
        status = readGroups(name, groups, count);
    if (status != NERR_Success || !groups)
        return false;
    const OwnedSid administrators = administratorsSid();
    if (!administrators)
        return false;
    for (const LOCALGROUP_USERS_INFO_0& group : std::span(groups.get(), count))
        if (isGroup(group.lgrui0_name, administrators.get()))
            return true;
    return false;
}

} // namespace platform
