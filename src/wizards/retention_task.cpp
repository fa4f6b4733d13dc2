// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/retention_task.h"

#include "api/backup_set.h"
#include "session/required.h"

namespace wizards {

void syncRetentionTask(hessiancln::BackupSet& set) {
    const bool hasRule = set.getRetentionRule() != nullptr;
    const auto schedule = set.getSchedule();
    if (!schedule)
        return;
    for (const auto& each : schedule->getDetails()) {
        const auto detail = session::required(each);
        const std::int32_t tasks = detail->getTasks();
        detail->setTasks(hasRule ? tasks | hessiancln::taskRetention
                                 : tasks & ~hessiancln::taskRetention);
    }
}

} // namespace wizards
