// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/ssh_access_text.h"

#include <QCoreApplication>

namespace wizards {

QString sshAccessName(hessiancln::SSHAccessType type) {
    // The dialog's list uses these texts.
    switch (type) {
    case hessiancln::SSHAccessType::Perl:
        return QCoreApplication::translate("CSSHAccessType", "Perl");
    case hessiancln::SSHAccessType::Python:
        return QCoreApplication::translate("CSSHAccessType", "Python");
    case hessiancln::SSHAccessType::DirectScriptExecution:
        return QCoreApplication::translate("CSSHAccessType", "Direct Script Execution");
    }
    return {};
}

QString sshAccessText(hessiancln::SSHAccessType type, const QString& interpreterPath) {
    const QString name = sshAccessName(type);
    return interpreterPath.isEmpty() ? name : name + QStringLiteral(": ") + interpreterPath;
}

int indexOfSSHAccess(hessiancln::SSHAccessType type) {
    switch (type) {
    case hessiancln::SSHAccessType::Python:
        return 1;
    case hessiancln::SSHAccessType::DirectScriptExecution:
        return 2;
    default:
        return 0;
    }
}

hessiancln::SSHAccessType sshAccessOfIndex(int index) {
    switch (index) {
    case 1:
        return hessiancln::SSHAccessType::Python;
    case 2:
        return hessiancln::SSHAccessType::DirectScriptExecution;
    default:
        return hessiancln::SSHAccessType::Perl;
    }
}

} // namespace wizards
