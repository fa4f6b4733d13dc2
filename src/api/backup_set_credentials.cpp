// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_credentials.h"

#include "api/remote_call.h"

namespace hessiancln {

void BackupSetCredentials::check(const std::string& computer) {
    call<void>("check", computer);
}

bool BackupSetCredentials::isUsingClientCredentials() {
    return call<bool>("isUsingClientCredentials");
}

void BackupSetCredentials::setUsingClientCredentials(bool value) {
    call<void>("setUsingClientCredentials", value);
}

std::string Win32FS_Generic_BackupSetCredentials::getUserName() {
    return call<std::string>("getUserName");
}

void Win32FS_Generic_BackupSetCredentials::setCredentials(const std::string& user,
                                                          const std::string& password) {
    call<void>("setCredentials", user, password);
}

std::string UnixFS_Generic_BackupSetCredentials::getUserName() {
    return call<std::string>("getUserName");
}

void UnixFS_Generic_BackupSetCredentials::setCredentials(const std::string& user,
                                                         const std::string& password) {
    call<void>("setCredentials", user, password);
}

void UnixFS_SSH_BackupSetCredentials::setCredentialsViaKeyFile(const std::string& user,
                                                               const std::string& keyFile,
                                                               const std::string& passphrase) {
    call<void>("setCredentialsViaKeyFile", user, keyFile, passphrase);
}

std::string UnixFS_SSH_BackupSetCredentials::getSudoUser() {
    return call<std::string>("getSudoUser");
}

void UnixFS_SSH_BackupSetCredentials::setSudoAs(const std::string& user,
                                                const std::string& password) {
    call<void>("setSudoAs", user, password);
}

SSHAccessType UnixFS_SSH_BackupSetCredentials::getSSHAccessType() {
    return call<SSHAccessType>("getSSHAccessType");
}

std::string UnixFS_SSH_BackupSetCredentials::getSSHInterpreterPath() {
    return call<std::string>("getSSHInterpreterPath");
}

void UnixFS_SSH_BackupSetCredentials::setSSHAccessType(SSHAccessType type,
                                                       const std::string& path) {
    call<void>("setSSHAccessType", type, path);
}

} // namespace hessiancln
