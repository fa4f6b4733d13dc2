// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace gui {

/// What the user sees when a call of the new set flow fails.
enum class OnFault {
    NoWizard,    ///< the flow's box; the wizard never opens
    ErrorR1,     ///< this box, then the wizard
    ErrorR2,     ///< as above
    Nothing,     ///< part of a tree is marked; the flow continues
    SourceStays, ///< a box about the credentials; the wizard stays on its page
    WizardGone,  ///< the wizard closes, then the flow's box opens
    NoSet,       ///< the flow's box; the agent's list is unchanged
    SetStays,    ///< the flow's box; the agent has the set as far as it was written
};

struct FlowCall {
    std::string text;
    OnFault onFault;
};

inline const std::string documentsExpression =
    "accdb|accde|accdr|accdt|csv|doc|docm|docx|dot|dotm|dotx|htm|html|mht|mpp|mppx|one|pdf|potm|"
    "potx|ppam|pps|ppsm|ppsx|ppt|pptm|pptx|ps|rtf|txt|vsd|wpd|wpg|wps|xlam|xlc|xls|xlsb|xlsm|"
    "xlsx|xlt|xltm|xltx";

/// All calls, except `Release`, that create a set named "New one", from the command to the end,
/// with no other changes on the pages. The agent supports everything that sets can have.
inline const std::vector<FlowCall> newSetTable{
    {"ClientConnection.getConfigurationManager()", OnFault::NoWizard},
    {"ClientConfiguration.isTarnToolEnabled(8)", OnFault::NoWizard},
    // The data source page.
    {"ClientConnection.createBrowser(0)", OnFault::NoWizard},
    {"DataSourceBrowser.expandToFullPath(\"My Computer\")", OnFault::NoWizard},
    {"DataSourceBrowser.neededCredentials(\"My Computer\")", OnFault::ErrorR1},
    {"DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(guest))", OnFault::ErrorR1},
    {"DataSourceBrowser.getCurrentCredentials()", OnFault::ErrorR2},
    {"BackupSetCredentials.types()", OnFault::ErrorR2},
    {"BackupSetCredentials.types()", OnFault::ErrorR2},
    {"Win32FS_Generic_BackupSetCredentials.getUserName()", OnFault::ErrorR2},
    {"DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(guest))", OnFault::ErrorR2},
    // The options page.
    {"ClientConnection.getConfigurationManager()", OnFault::NoWizard},
    {"ClientConfiguration.getClientOSType()", OnFault::NoWizard},
    // The schedule page.
    {"ClientConnection.getConfigurationManager()", OnFault::NoWizard},
    {"ClientConfiguration.getClientNumber()", OnFault::NoWizard},
    {"ClientConfiguration.getAdvancedConfigNumber(\"ScheduleMiss\")", OnFault::NoWizard},
    // The wizard opens.
    {"DataSourceBrowser.getCurrentCredentials()", OnFault::SourceStays},
    {"BackupSetCredentials.check(\"My Computer\")", OnFault::SourceStays},
    {"DataSourceBrowser.getPredefinedItems(\"My Computer\")", OnFault::WizardGone},
    {"DataSourceBrowser.getSubItems(\"My Computer\", \"\")", OnFault::Nothing},
    {"ClientConnection.backup_sets_info()", OnFault::WizardGone},
    // The wizard is finished.
    {"DataSourceBrowser.types()", OnFault::NoSet},
    {"DataBrowserWithSetCreation.createBackupSet(\"My Computer\")", OnFault::NoSet},
    {"BackupSet.setName(\"New one\")", OnFault::NoSet},
    {"DataSourceBrowser.createInclusionItem(\"My Computer\", \"C:\\\\Users\\\\anna\\\\Documents\", "
     "9999)",
     OnFault::NoSet},
    {"DataSourceBrowser.createRegexExclusion(\"My Computer\", \"C:\", \".*\\\\.(" +
         documentsExpression + ")\")",
     OnFault::NoSet},
    {"BackupSetRegexExclusion.setInclusion(true)", OnFault::NoSet},
    {"BackupSetRegexExclusion.setNegate(false)", OnFault::NoSet},
    {"BackupSetRegexExclusion.setCaseSensitive(false)", OnFault::NoSet},
    {"BackupSetRegexExclusion.setMatchDirectories(false)", OnFault::NoSet},
    {"BackupSet.setItems([BackupSetItem(C:\\Users\\anna\\Documents), BackupSetItem(C:, only "
     ".*\\.(" +
         documentsExpression + "))])",
     OnFault::NoSet},
    {"BackupSet.setLocalStoragePath(\"\")", OnFault::NoSet},
    {"BackupSet.setUsingLocalStorage(false)", OnFault::NoSet},
    {"BackupSet.setUsingLocalTransmissionCache(false)", OnFault::NoSet},
    {"BackupSet.types()", OnFault::NoSet},
    {"Win32FS_BackupSet.setUseVSS(true)", OnFault::NoSet},
    {"ClientConnection.addBackupSet(BackupSet(0))", OnFault::NoSet},
    // The schedule.
    {"BackupSet.getID()", OnFault::SetStays},
    {"BackupSet.getSchedule()", OnFault::SetStays},
    {"ClientConnection.getScheduleManager()", OnFault::SetStays},
    {"ScheduleManager.definedSchedules()", OnFault::SetStays},
    {"Schedule.getName()", OnFault::SetStays},
    {"Schedule.getName()", OnFault::SetStays},
    {"Schedule.getName()", OnFault::SetStays},
    {"ScheduleManager.createSchedule()", OnFault::SetStays},
    {"Schedule.setName(\"schedule_for_set_9\")", OnFault::SetStays},
    {"ScheduleManager.createWeeklyDetail()", OnFault::SetStays},
    {"WeeklyScheduleDetail.setScheduleDays(31)", OnFault::SetStays},
    {"ScheduleDetail.setStartTime({hour=20, minute=30, second=0})", OnFault::SetStays},
    {"ScheduleDetail.setEndTime({hour=30, minute=0, second=0})", OnFault::SetStays},
    {"ScheduleDetail.setHourlyFrequency(0)", OnFault::SetStays},
    {"ScheduleDetail.setTasks(1)", OnFault::SetStays},
    {"Schedule.getDetails()", OnFault::SetStays},
    {"Schedule.addDetail(ScheduleDetail(weekly))", OnFault::SetStays},
    {"Schedule.setUsingNetworkDetection(false)", OnFault::SetStays},
    {"BackupSet.setSchedule(Schedule(schedule_for_set_9))", OnFault::SetStays},
    {"BackupSet.setActive(true)", OnFault::SetStays},
    {"ClientConnection.getConfigurationManager()", OnFault::SetStays},
    {"ClientConfiguration.setAdvancedConfigNumber(\"ScheduleMiss\", 4)", OnFault::SetStays},
    // The retention rule.
    {"BackupSet.getID()", OnFault::SetStays},
    {"BackupSet.getRetentionRule()", OnFault::SetStays},
    {"ClientConnection.getRetentionRuleManager()", OnFault::SetStays},
    {"RetentionRuleManager.definedRules()", OnFault::SetStays},
    {"RetentionRule.getName()", OnFault::SetStays},
    {"RetentionRule.getName()", OnFault::SetStays},
    {"RetentionRuleManager.createRule()", OnFault::SetStays},
    {"RetentionRule.setName(\"retention_for_set_9\")", OnFault::SetStays},
    {"BackupSet.setRetentionRule(RetentionRule(retention_for_set_9))", OnFault::SetStays},
    {"RetentionRule.setKeepLastGenerations(3)", OnFault::SetStays},
    {"RetentionRule.getTimeRetentions()", OnFault::SetStays},
    {"RetentionRule.setCleanupRemovedFiles(false)", OnFault::SetStays},
    {"RetentionRule.setLocalStorageRetention({period=0, unit=3})", OnFault::SetStays},
    // The schedule and the retention rule are synchronised.
    {"BackupSet.getRetentionRule()", OnFault::SetStays},
    {"BackupSet.getSchedule()", OnFault::SetStays},
    {"Schedule.getDetails()", OnFault::SetStays},
    {"ScheduleDetail.getTasks()", OnFault::SetStays},
    {"ScheduleDetail.setTasks(3)", OnFault::SetStays},
    {"BackupSet.getID()", OnFault::SetStays},
};

inline std::vector<std::string> newSetCalls() {
    std::vector<std::string> texts;
    for (const FlowCall& call : newSetTable)
        texts.push_back(call.text);
    return texts;
}

} // namespace gui
