// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/set_removal.h"

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/required.h"

namespace wizards {

namespace {

// The agent keeps a schedule or a rule that is still used by a set, so each is detached first.

void removeSchedule(hessiancln::BackupSet& set) {
    const auto schedule = set.getSchedule();
    if (!schedule)
        return;
    set.setSchedule(nullptr);
    session::required(session::getConnection()->getScheduleManager())->removeSchedule(schedule);
}

void removeRetentionRule(hessiancln::BackupSet& set) {
    const auto rule = set.getRetentionRule();
    if (!rule)
        return;
    set.setRetentionRule(nullptr);
    session::required(session::getConnection()->getRetentionRuleManager())->removeRule(rule);
}

} // namespace

boost::shared_ptr<hessiancln::GenericActivity>
removeSet(const boost::shared_ptr<hessiancln::BackupSet>& set) {
    removeSchedule(*set);
    removeRetentionRule(*set);
    return session::getConnection()->removeBackupSet(set);
}

} // namespace wizards
