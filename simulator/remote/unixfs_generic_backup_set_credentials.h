// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>

#include "simulator/remote/backup_set_credentials.h"

namespace simulator {

/// A user of a Unix computer.
class UnixFS_Generic_BackupSetCredentials : public BackupSetCredentials {
public:
    UnixFS_Generic_BackupSetCredentials(std::shared_ptr<Session> opened, const World& world,
                                        State login)
        : BackupSetCredentials(std::move(opened), world, std::move(login)) {
        implements("UnixFS_Generic_BackupSetCredentials");
        offerLogin();
    }
};

} // namespace simulator
