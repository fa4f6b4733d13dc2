// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/remote/unixfs_generic_backup_set_credentials.h"

namespace simulator {

/// A user who logs in to a Unix computer by SSH.
class UnixFS_SSH_BackupSetCredentials final : public UnixFS_Generic_BackupSetCredentials {
public:
    UnixFS_SSH_BackupSetCredentials(std::shared_ptr<Session> opened, const World& world,
                                    State login);

private:
    void setKeyFile(const std::string& user, const std::string& keyFile,
                    const std::string& passphrase);
    void setSudo(const std::string& user, const std::string& password);
    void setAccess(std::int32_t type, const std::string& path);
};

} // namespace simulator
