// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "api/remote_object.h"
#include "hessian/kinds.h"

namespace hessiancln {

/// What runs on a computer that the agent accesses by SSH.
enum class SSHAccessType : std::int32_t {
    Perl = 0,
    Python = 1,
    DirectScriptExecution = 2,
};
constexpr auto declaredValues(SSHAccessType) {
    return hessianser::values({{0, 2}});
}

/// How the agent accesses the computer of a set. The agent chooses the object's class, and so which
/// credentials it needs.
class BackupSetCredentials : public RemoteObject {
public:
    static constexpr std::string_view family = "BackupSetCredentials";
    using RemoteObject::RemoteObject;

    /// Tries to get access. Throws `invoke_exception` with the reason if access is denied.
    void check(const std::string& computer);
    /// True if the agent's own account is used.
    bool isUsingClientCredentials();
    void setUsingClientCredentials(bool value);
};

/// A user of a Windows computer.
class Win32FS_Generic_BackupSetCredentials : public BackupSetCredentials {
public:
    static constexpr std::string_view className = "Win32FS_Generic_BackupSetCredentials";
    using BackupSetCredentials::BackupSetCredentials;

    std::string getUserName();
    void setCredentials(const std::string& user, const std::string& password);
};

/// A user of a Unix computer.
class UnixFS_Generic_BackupSetCredentials : public BackupSetCredentials {
public:
    static constexpr std::string_view className = "UnixFS_Generic_BackupSetCredentials";
    using BackupSetCredentials::BackupSetCredentials;

    std::string getUserName();
    void setCredentials(const std::string& user, const std::string& password);
};

/// A user who logs in to a Unix computer by SSH, and the user to switch to there.
class UnixFS_SSH_BackupSetCredentials : public UnixFS_Generic_BackupSetCredentials {
public:
    static constexpr std::string_view className = "UnixFS_SSH_BackupSetCredentials";
    using UnixFS_Generic_BackupSetCredentials::UnixFS_Generic_BackupSetCredentials;

    /// Logs in with an identity file.
    void setCredentialsViaKeyFile(const std::string& user, const std::string& keyFile,
                                  const std::string& passphrase);
    /// Empty without a user switch.
    std::string getSudoUser();
    /// Two empty strings turn it off.
    void setSudoAs(const std::string& user, const std::string& password);
    SSHAccessType getSSHAccessType();
    /// Path of the interpreter or script; may be empty.
    std::string getSSHInterpreterPath();
    void setSSHAccessType(SSHAccessType type, const std::string& path);
};

} // namespace hessiancln
