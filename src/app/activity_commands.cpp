// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_commands.h"

#include "api/client_connection.h"
#include "app/open_backup_set.h"
#include "session/connection.h"
#include "session/required.h"

namespace app {

using hessiancln::GenericActivity;

boost::shared_ptr<GenericActivity> startBackup(std::int32_t setId) {
    const auto set = openBackupSet(setId);
    const auto items = set->items();
    const auto parameters = session::required(set->createDefaultBackupParameters());
    parameters->setDoRetentionAfter(true);
    parameters->setPreScanSource(true);
    return set->start_backup(items, parameters);
}

boost::shared_ptr<GenericActivity> startSync(std::int32_t setId) {
    return openBackupSet(setId)->start_sync(false);
}

boost::shared_ptr<GenericActivity> startDailyAdmin() {
    return session::required(session::getConnection()->getConfigurationManager())
        ->start_daily_admin();
}

std::int32_t stopActivity(std::int32_t activityId) {
    const auto activity = session::required(session::getConnection()->activity(activityId));
    activity->Stop();
    return activity->getID();
}

} // namespace app
