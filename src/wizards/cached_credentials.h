// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "api/backup_set_credentials.h"
#include "base/secret.h"

namespace wizards {

/// The credentials that the user has typed in a wizard, passwords included: an agent doesn't return
/// them. Text is UTF-8. Secrets are wiped on destruction. A setter stores its values and then sends
/// them, so they are stored even if sending throws an exception.
class CachedCredentials {
public:
    void setPassword(const std::string& newUser, const base::Secret& newPassword,
                     hessiancln::Win32FS_Generic_BackupSetCredentials& credentials);
    void setPassword(const std::string& newUser, const base::Secret& newPassword,
                     hessiancln::UnixFS_Generic_BackupSetCredentials& credentials);
    void setKeyFile(const std::string& newUser, const std::string& file,
                    const base::Secret& newPassphrase,
                    hessiancln::UnixFS_SSH_BackupSetCredentials& credentials);
    void setSudo(const std::string& newUser, const base::Secret& newPassword,
                 hessiancln::UnixFS_SSH_BackupSetCredentials& credentials);
    void setSSHAccess(hessiancln::SSHAccessType type, const std::string& interpreterPath,
                      hessiancln::UnixFS_SSH_BackupSetCredentials& credentials);

    /// Sends the stored values to another object, as far as its class supports them. Sends no
    /// request if nothing is stored.
    void applyTo(const boost::shared_ptr<hessiancln::BackupSetCredentials>& credentials) const;

private:
    void remember(const std::string& newUser, const base::Secret& newPassword);
    void applyToSSH(hessiancln::UnixFS_SSH_BackupSetCredentials& credentials) const;

    bool hasPassword = false;
    std::string user;
    base::Secret password;
    bool hasKeyFile = false;
    std::string keyUser;
    std::string keyFile;
    base::Secret passphrase;
    bool hasSudo = false;
    std::string sudoUser;
    base::Secret sudoPassword;
    bool hasSSHAccess = false;
    hessiancln::SSHAccessType sshAccessType =
        hessianser::reservedValue<hessiancln::SSHAccessType>();
    std::string sshInterpreterPath;
};

} // namespace wizards
