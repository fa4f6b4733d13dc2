// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>

#include "simulator/remote/backup_set_credentials.h"

namespace simulator {

/// A user of a Windows computer.
class Win32FS_Generic_BackupSetCredentials final : public BackupSetCredentials {
public:
    Win32FS_Generic_BackupSetCredentials(std::shared_ptr<Session> opened, const World& world,
                                         State login)
        : BackupSetCredentials(std::move(opened), world, std::move(login)) {
        implements("Win32FS_Generic_BackupSetCredentials");
        offerLogin();
    }
};

} // namespace simulator
