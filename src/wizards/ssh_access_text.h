// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "api/backup_set_credentials.h"

namespace wizards {

/// The name of an access type; empty for an unknown one.
QString sshAccessName(hessiancln::SSHAccessType type);

/// The name, followed by the path if there is one.
QString sshAccessText(hessiancln::SSHAccessType type, const QString& interpreterPath);

/// The index of the type in the list Perl, Python, Direct Script Execution; the first one for an
/// unknown type.
int indexOfSSHAccess(hessiancln::SSHAccessType type);

/// The reverse. Without a selection, returns the first type.
hessiancln::SSHAccessType sshAccessOfIndex(int index);

} // namespace wizards
