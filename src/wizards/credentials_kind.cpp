// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/credentials_kind.h"

#include <algorithm>

#include "api/backup_set_credentials.h"

namespace wizards {

CredentialsKind credentialsKind(const std::vector<std::string>& types) {
    const auto isOf = [&types](std::string_view className) {
        return std::find(types.begin(), types.end(), className) != types.end();
    };
    if (isOf(hessiancln::Win32FS_Generic_BackupSetCredentials::className))
        return CredentialsKind::Windows;
    // Before its base class, which such an object also lists.
    if (isOf(hessiancln::UnixFS_SSH_BackupSetCredentials::className))
        return CredentialsKind::SSH;
    if (isOf(hessiancln::UnixFS_Generic_BackupSetCredentials::className))
        return CredentialsKind::Unix;
    return CredentialsKind::Other;
}

} // namespace wizards
