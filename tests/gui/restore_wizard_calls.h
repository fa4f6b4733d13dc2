// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "tests/support/gui_wizard.h"

/// The restore wizard's calls about the agent's fourth set, without `Release`, without the span of
/// the activity log, and with NAME in place of the name of the directory created by the restore.
namespace gui {

using Calls = std::vector<std::string>;

inline Calls operator+(Calls calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

/// The calls before the wizard is shown: the view with its top level and the first drive's rows,
/// the needs of the source page, the kind of paths, and the set's computer.
inline Calls restoreOpened(const std::string& firstDrive = "1") {
    return {"ClientConnection.backup_set(4)",
            "BackupSet.getCurrentStatus()",
            "BackupSet.prepare_restore(0, 0, 0)",
            "BackupSetRestoreView.getSubItems(-1)",
            "BackupSetRestoreView.getSubItems(" + firstDrive + ")",
            "ClientConnection.createBrowser(0)",
            "DataSourceBrowser.expandToFullPath(\"My Computer\")",
            "DataSourceBrowser.neededCredentials(\"My Computer\")",
            "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(guest))",
            "DataSourceBrowser.getCurrentCredentials()",
            "BackupSetCredentials.types()",
            "BackupSetCredentials.types()",
            "Win32FS_Generic_BackupSetCredentials.getUserName()",
            "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(guest))",
            "ClientConnection.getConfigurationManager()",
            "ClientConfiguration.getClientOSType()",
            "BackupSet.getComputerName()"};
}

inline const Calls restoreOpenedCalls = restoreOpened();

/// The wizard advances to the directory page, on the set's own computer.
inline const Calls directoryWanted{
    "DataSourceBrowser.getCurrentCredentials()", "BackupSetCredentials.check(\"My Computer\")",
    "BackupSet.getComputerName()", "DataSourceBrowser.getPredefinedItems(\"My Computer\")"};

inline const Calls refreshedAfterRestore = support::callsOfRefresh(4);

/// A finished wizard that restores to the original location.
inline Calls restoredToOrigin(const std::string& ids, int reason) {
    return {"BackupSetRestoreView.prepareRestore([" + ids + "])",
            "RestoreActivityInitiator.setRestoreReason(" + std::to_string(reason) + ")",
            "BackupSet.getComputerName()", "BackupSet.dataBrowser()",
            "RestoreActivityInitiator.start(DataSourceBrowser, \"My Computer\", [], 0)"};
}

/// The same for a directory of the set's own computer.
inline Calls restoredToDirectory(const std::string& ids, int reason, const std::string& mappings,
                                 int level) {
    return {"BackupSetRestoreView.prepareRestore([" + ids + "])",
            "RestoreActivityInitiator.setRestoreReason(" + std::to_string(reason) + ")",
            "RestoreActivityInitiator.selected_shares()", "BackupSet.getComputerName()",
            "RestoreActivityInitiator.start(DataSourceBrowser, \"My Computer\", [" + mappings +
                "], " + std::to_string(level) + ")"};
}

} // namespace gui
