// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "api/activity_records.h"
#include "api/backup_set_records.h"

namespace app {

/// Texts of the panel beside the list about a backup set; named after its labels.
struct SetDetails {
    QString valLastBackup;
    QString valFileGens;
    QString valSize;
    QString valItems;
    QString valSchedule;
    QString valRetention;
};

SetDetails setDetails(const hessiancln::activity_log_info& lastBackup,
                      const hessiancln::backup_set_overview_info& overview);

} // namespace app
