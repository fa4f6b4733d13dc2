// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// The calls of the wizards for an existing set, the agent's fourth: a folder with an exclusion and
/// a filter, backed up monthly by a schedule shared with other sets. Without the calls of
/// `Release`.
namespace gui {

using Calls = std::vector<std::string>;

inline const Calls shadowCopies{"BackupSet.types()", "Win32FS_BackupSet.setUseVSS(true)"};
inline const Calls detailsRead{"ClientConnection.backup_set(4)",
                               "BackupSet.getLastActivityOfType(0)", "BackupSet.getOverview()"};

inline const Calls itemsPages{
    "ClientConnection.getConfigurationManager()", "ClientConfiguration.isTarnToolEnabled(8)",
    "ClientConnection.backup_set(4)",
    // The data source page.
    "ClientConnection.createBrowser(0)", "DataSourceBrowser.expandToFullPath(\"My Computer\")",
    "DataSourceBrowser.neededCredentials(\"My Computer\")",
    "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(guest))",
    "DataSourceBrowser.getCurrentCredentials()", "BackupSetCredentials.types()",
    "BackupSetCredentials.types()", "Win32FS_Generic_BackupSetCredentials.getUserName()",
    "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(guest))",
    "BackupSet.getDataType()", "BackupSet.getComputerName()"};

inline const std::string ownAccount = "BackupSetCredentials(the agent's own account)";

inline const Calls itemsLogin{"BackupSet.getCredentials()",
                              "BackupSetCredentials.isUsingClientCredentials()",
                              "DataSourceBrowser.setCurrentCredentials(" + ownAccount + ")",
                              "DataSourceBrowser.getCurrentCredentials()",
                              "BackupSetCredentials.types()",
                              "BackupSetCredentials.types()",
                              "Win32FS_Generic_BackupSetCredentials.getUserName()",
                              "DataSourceBrowser.setCurrentCredentials(" + ownAccount + ")"};

inline const Calls itemsOptions{"ClientConnection.getConfigurationManager()",
                                "ClientConfiguration.getClientOSType()",
                                "BackupSet.dataBrowser()",
                                "BackupSet.isUsingLocalStorage()",
                                "BackupSet.isUsingLocalTransmissionCache()",
                                "BackupSet.getLocalStoragePath()",
                                "DataSourceBrowser.getSubItems(\"Tarn-Client Computer\", \"\")"};

inline const Calls itemsShown{"DataSourceBrowser.getCurrentCredentials()",
                              "BackupSetCredentials.check(\"My Computer\")",
                              "DataSourceBrowser.getPredefinedItems(\"My Computer\")",
                              "DataSourceBrowser.getSubItems(\"My Computer\", \"\")",
                              "BackupSet.items()",
                              "BackupSetItem.getFolder()",
                              "BackupSetItem.getType()",
                              "DataSourceBrowser.getSubItems(\"My Computer\", \"D:\")",
                              "BackupSetItem.getFolder()",
                              "BackupSetItem.getType()",
                              "DataSourceBrowser.getSubItems(\"My Computer\", \"D:\\\\Projects\")",
                              "BackupSetItem.getFolder()",
                              "BackupSetItem.getType()",
                              "BackupSetItem.types()",
                              "BackupSetRegexExclusion.getExpression()"};

/// On entering the options page.
inline const Calls foldersShown{"DataSourceBrowser.getSubItems(\"Tarn-Client Computer\", \"\")"};

inline const Calls itemsWritten{
    "DataSourceBrowser.getCurrentCredentials()",
    "BackupSet.setCredentials(" + ownAccount + ")",
    "DataSourceBrowser.createInclusionItem(\"My Computer\", \"D:\\\\Projects\", 9999)",
    "DataSourceBrowser.createExclusionItem(\"My Computer\", \"D:\\\\Projects\\\\Archive\")",
    "DataSourceBrowser.createRegexExclusion(\"My Computer\", \"D:\", \".*\\\\.(|tmp|swp|bak)\")",
    "BackupSetRegexExclusion.setInclusion(false)",
    "BackupSetRegexExclusion.setNegate(false)",
    "BackupSetRegexExclusion.setCaseSensitive(false)",
    "BackupSetRegexExclusion.setMatchDirectories(false)",
    "BackupSet.setItems([BackupSetItem(D:\\Projects), BackupSetItem(D:\\Projects\\Archive, "
    "excluded), BackupSetItem(D:, without .*\\.(|tmp|swp|bak))])"};

inline const Calls optionsWritten{"BackupSet.setLocalStoragePath(\"\")",
                                  "BackupSet.setUsingLocalStorage(false)",
                                  "BackupSet.setUsingLocalTransmissionCache(false)"};

inline const Calls retentionLoaded{
    "ClientConnection.backup_set(4)",          "BackupSet.getRetentionRule()",
    "RetentionRule.getKeepLastGenerations()",  "RetentionRule.getTimeRetentions()",
    "TimeRetentionOption.getValidFor()",       "TimeRetentionOption.getValidFor()",
    "RetentionRule.getCleanupRemovedFiles()",  "RetentionRule.getCleanupRemovedAfter()",
    "RetentionRule.getCleanupRemovedKeep()",   "BackupSet.isUsingLocalStorage()",
    "RetentionRule.getLocalStorageRetention()"};

inline const Calls retentionWritten{
    "BackupSet.getID()",
    "BackupSet.getRetentionRule()",
    "ClientConnection.getRetentionRuleManager()",
    "RetentionRule.getName()",
    "RetentionRuleManager.definedRules()",
    "RetentionRule.getName()",
    "RetentionRule.getName()",
    "RetentionRuleManager.createRule()",
    "RetentionRule.setName(\"retention_for_set_4\")",
    "BackupSet.setRetentionRule(RetentionRule(retention_for_set_4))",
    "RetentionRule.setKeepLastGenerations(30)",
    "RetentionRule.getTimeRetentions()",
    "RetentionRuleManager.createIntervalTimeRetention()",
    "IntervalTimeRetentionOption.setRepeatTime({period=1, unit=3})",
    "TimeRetentionOption.setValidFor({period=1, unit=4})",
    "RetentionRule.addTimeRetentionOption(TimeRetentionOption)",
    "RetentionRuleManager.createIntervalTimeRetention()",
    "IntervalTimeRetentionOption.setRepeatTime({period=1, unit=4})",
    "TimeRetentionOption.setValidFor({period=1, unit=5})",
    "RetentionRule.addTimeRetentionOption(TimeRetentionOption)",
    "RetentionRule.setCleanupRemovedFiles(true)",
    "RetentionRule.setCleanupRemovedAfter({period=30, unit=3})",
    "RetentionRule.setCleanupRemovedKeep(0)",
    "RetentionRule.setLocalStorageRetention({period=0, unit=3})"};

/// For a set with a rule, and a schedule for backups only.
inline const Calls synchronised{"BackupSet.getRetentionRule()", "BackupSet.getSchedule()",
                                "Schedule.getDetails()", "ScheduleDetail.getTasks()",
                                "ScheduleDetail.setTasks(3)"};

inline const Calls scheduleLoaded{"ClientConnection.backup_set(4)",
                                  "ClientConnection.getConfigurationManager()",
                                  "ClientConfiguration.getClientNumber()",
                                  "ClientConfiguration.getAdvancedConfigNumber(\"ScheduleMiss\")",
                                  "BackupSet.getSchedule()",
                                  "Schedule.getDetails()",
                                  "Schedule.isUsingNetworkDetection()",
                                  "ScheduleDetail.getType()",
                                  "ScheduleDetail.types()",
                                  "MonthlyScheduleDetail.getScheduleDay()",
                                  "ScheduleDetail.getStartTime()",
                                  "ScheduleDetail.hasEndTime()",
                                  "ScheduleDetail.getHourlyFrequency()"};

inline const Calls scheduleAsked{"BackupSet.getID()", "BackupSet.getSchedule()",
                                 "ClientConnection.getScheduleManager()", "Schedule.getName()"};

inline const Calls scheduleCreated{"ScheduleManager.definedSchedules()",
                                   "Schedule.getName()",
                                   "Schedule.getName()",
                                   "Schedule.getName()",
                                   "ScheduleManager.createSchedule()",
                                   "Schedule.setName(\"schedule_for_set_4\")",
                                   "ScheduleManager.createMonthlyDetail()",
                                   "MonthlyScheduleDetail.setScheduleDay(1)",
                                   "ScheduleDetail.setStartTime({hour=19, minute=30, second=0})",
                                   "ScheduleDetail.setNoEndTime()",
                                   "ScheduleDetail.setHourlyFrequency(0)",
                                   "ScheduleDetail.setTasks(1)",
                                   "Schedule.getDetails()",
                                   "Schedule.addDetail(ScheduleDetail(monthly))",
                                   "Schedule.setUsingNetworkDetection(false)",
                                   "BackupSet.setSchedule(Schedule(schedule_for_set_4))"};

inline const Calls scheduleActive{
    "BackupSet.setActive(true)", "ClientConnection.getConfigurationManager()",
    "ClientConfiguration.setAdvancedConfigNumber(\"ScheduleMiss\", 4)"};

} // namespace gui
