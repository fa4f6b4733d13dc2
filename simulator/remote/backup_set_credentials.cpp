// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/backup_set_credentials.h"

#include <utility>

#include "simulator/remote/unixfs_generic_backup_set_credentials.h"
#include "simulator/remote/unixfs_ssh_backup_set_credentials.h"
#include "simulator/remote/win32fs_generic_backup_set_credentials.h"

namespace simulator {

BackupSetCredentials::BackupSetCredentials(std::shared_ptr<Session> opened, const World& world,
                                           State state)
    : Servant(std::move(opened))
    , state_(std::move(state)) {
    implements("BackupSetCredentials");
    on("check", [this, &world](const std::string& computer) {
        logIn(*state_, *world.network.computer(computer));
    });
    on("isUsingClientCredentials", [this] { return state_->usingClientAccount; });
    on("setUsingClientCredentials", [this](bool value) { state_->usingClientAccount = value; });
}

std::string BackupSetCredentials::label() const {
    return "BackupSetCredentials(" +
           (state_->usingClientAccount ? "the agent's own account" : state_->user) + ")";
}

void BackupSetCredentials::offerLogin() {
    on("getUserName", [this] { return state_->user; });
    on("setCredentials", [this](const std::string& user, const Secret& password) {
        setLogin(user, password.text, "", "");
    });
}

void BackupSetCredentials::setLogin(const std::string& user, const std::string& password,
                                    const std::string& keyFile, const std::string& passphrase) {
    if (user.empty())
        throw Refusal("A user name is needed.");
    state_->user = user;
    state_->password = password;
    state_->keyFile = keyFile;
    state_->passphrase = passphrase;
    state_->ofSession = false;
}

std::shared_ptr<BackupSetCredentials> makeCredentials(const std::shared_ptr<Session>& opened,
                                                      const World& world,
                                                      const BackupSetCredentials::State& state) {
    switch (state->kind) {
    case LoginKind::Unix:
        return std::make_shared<UnixFS_Generic_BackupSetCredentials>(opened, world, state);
    case LoginKind::Ssh:
        return std::make_shared<UnixFS_SSH_BackupSetCredentials>(opened, world, state);
    case LoginKind::Windows:
        break;
    }
    return std::make_shared<Win32FS_Generic_BackupSetCredentials>(opened, world, state);
}

} // namespace simulator
