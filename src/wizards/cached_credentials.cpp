// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/cached_credentials.h"

#include "api/checked_cast.h"
#include "wizards/credentials_kind.h"

namespace wizards {

using hessiancln::checkedCast;
using Windows = hessiancln::Win32FS_Generic_BackupSetCredentials;
using Unix = hessiancln::UnixFS_Generic_BackupSetCredentials;
using SSH = hessiancln::UnixFS_SSH_BackupSetCredentials;

void CachedCredentials::remember(const std::string& newUser, const base::Secret& newPassword) {
    hasPassword = true;
    user = newUser;
    password = newPassword;
    hasKeyFile = false;
}

void CachedCredentials::setPassword(const std::string& newUser, const base::Secret& newPassword,
                                    Windows& credentials) {
    remember(newUser, newPassword);
    credentials.setCredentials(user, password.text());
}

void CachedCredentials::setPassword(const std::string& newUser, const base::Secret& newPassword,
                                    Unix& credentials) {
    remember(newUser, newPassword);
    credentials.setCredentials(user, password.text());
}

void CachedCredentials::setKeyFile(const std::string& newUser, const std::string& file,
                                   const base::Secret& newPassphrase, SSH& credentials) {
    hasKeyFile = true;
    keyUser = newUser;
    keyFile = file;
    passphrase = newPassphrase;
    credentials.setCredentialsViaKeyFile(keyUser, keyFile, passphrase.text());
}

void CachedCredentials::setSudo(const std::string& newUser, const base::Secret& newPassword,
                                SSH& credentials) {
    hasSudo = true;
    sudoUser = newUser;
    sudoPassword = newPassword;
    credentials.setSudoAs(sudoUser, sudoPassword.text());
}

void CachedCredentials::setSSHAccess(hessiancln::SSHAccessType type,
                                     const std::string& interpreterPath, SSH& credentials) {
    hasSSHAccess = true;
    sshAccessType = type;
    sshInterpreterPath = interpreterPath;
    credentials.setSSHAccessType(sshAccessType, sshInterpreterPath);
}

void CachedCredentials::applyTo(
    const boost::shared_ptr<hessiancln::BackupSetCredentials>& credentials) const {
    if (!hasPassword && !hasKeyFile && !hasSudo && !hasSSHAccess)
        return;
    switch (credentialsKind(credentials->types())) {
    case CredentialsKind::Windows:
        if (hasPassword)
            checkedCast<Windows>(credentials)->setCredentials(user, password.text());
        break;
    case CredentialsKind::SSH:
        applyToSSH(*checkedCast<SSH>(credentials));
        break;
    case CredentialsKind::Unix:
        if (hasPassword)
            checkedCast<Unix>(credentials)->setCredentials(user, password.text());
        break;
    case CredentialsKind::Other:
        break;
    }
}

void CachedCredentials::applyToSSH(SSH& credentials) const {
    if (hasKeyFile)
        credentials.setCredentialsViaKeyFile(keyUser, keyFile, passphrase.text());
    else if (hasPassword)
        credentials.setCredentials(user, password.text());
    if (hasSudo)
        credentials.setSudoAs(sudoUser, sudoPassword.text());
    if (hasSSHAccess)
        credentials.setSSHAccessType(sshAccessType, sshInterpreterPath);
}

} // namespace wizards
