// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "tests/support/gui_wizard.h"

/// The delete wizard's calls about the agent's fourth set, without `Release` and without the span
/// of the activity log.
namespace gui {

using Calls = std::vector<std::string>;

/// The calls before the wizard is shown: the view, its top level, and the first drive's rows.
inline const Calls wizardOpened{"ClientConnection.backup_set(4)", "BackupSet.getCurrentStatus()",
                                "BackupSet.prepare_delete(0, 0, 0, 0, 0)",
                                "BackupSetDeleteView.getSubItems(-1)",
                                "BackupSetDeleteView.getSubItems(1)"};
inline const Calls removedCalls{"BackupSet.getSchedule()",
                                "BackupSet.setSchedule(null)",
                                "ClientConnection.getScheduleManager()",
                                "ScheduleManager.removeSchedule(Schedule(own))",
                                "BackupSet.getRetentionRule()",
                                "BackupSet.setRetentionRule(null)",
                                "ClientConnection.getRetentionRuleManager()",
                                "RetentionRuleManager.removeRule(RetentionRule(own))",
                                "ClientConnection.removeBackupSet(BackupSet(4))"};
inline const Calls refreshed = support::callsOfRefresh(4);

inline Calls deleted(const std::string& ids) {
    return {"BackupSetDeleteView.prepareDelete([" + ids + "])", "DeleteActivityInitiator.start()"};
}

} // namespace gui
