// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/unixfs_ssh_backup_set_credentials.h"

#include <utility>

namespace simulator {

UnixFS_SSH_BackupSetCredentials::UnixFS_SSH_BackupSetCredentials(std::shared_ptr<Session> opened,
                                                                 const World& world, State login)
    : UnixFS_Generic_BackupSetCredentials(std::move(opened), world, std::move(login)) {
    implements("UnixFS_SSH_BackupSetCredentials");
    on("setCredentialsViaKeyFile",
       [this](const std::string& user, const std::string& keyFile, const Secret& passphrase) {
           setKeyFile(user, keyFile, passphrase.text);
       });
    on("getSudoUser", [this] { return state_->sudoUser; });
    on("setSudoAs",
       [this](const std::string& user, const Secret& password) { setSudo(user, password.text); });
    on("getSSHAccessType", [this] { return state_->access; });
    on("getSSHInterpreterPath", [this] { return state_->interpreterPath; });
    on("setSSHAccessType",
       [this](std::int32_t type, const std::string& path) { setAccess(type, path); });
}

void UnixFS_SSH_BackupSetCredentials::setKeyFile(const std::string& user,
                                                 const std::string& keyFile,
                                                 const std::string& passphrase) {
    if (keyFile.empty())
        throw Refusal("An identity file is needed.");
    setLogin(user, "", keyFile, passphrase);
}

void UnixFS_SSH_BackupSetCredentials::setSudo(const std::string& user,
                                              const std::string& password) {
    if (user.empty() && !password.empty())
        throw Refusal("A password without a user is no SUDO login.");
    state_->sudoUser = user;
    state_->sudoPassword = password;
}

void UnixFS_SSH_BackupSetCredentials::setAccess(std::int32_t type, const std::string& path) {
    if (type < 0 || type > 2)
        throw Refusal("There is no SSH access of the type " + std::to_string(type) + ".");
    state_->access = type;
    state_->interpreterPath = path;
}

} // namespace simulator
