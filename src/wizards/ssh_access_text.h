// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "api/backup_set_credentials.h"

namespace wizards {

/// The name of a kind of access; empty for one that this program doesn't know.
QString sshAccessName(hessiancln::SSHAccessType type);

/// The name, and the path if there is one.
QString sshAccessText(hessiancln::SSHAccessType type, const QString& interpreterPath);

/// The entry of the kind in the list Perl, Python, Direct Script Execution; an unknown kind is
/// shown as the first.
int indexOfSSHAccess(hessiancln::SSHAccessType type);

/// The reverse. No entry gives the first kind.
hessiancln::SSHAccessType sshAccessOfIndex(int index);

} // namespace wizards
