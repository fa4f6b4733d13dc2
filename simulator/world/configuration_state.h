// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "api/client_configuration_records.h"
#include "api/time_in_day.h"
#include "simulator/world/backup_set_state.h"

namespace simulator {

/// Settings of the whole agent, except its registration.
struct ConfigurationState {
    hessiancln::time_in_day dailyAdmin{12, 30, 0};
    hessiancln::time_in_day weeklyAdmin{23, 15, 0};
    hessiancln::DayOfWeekCode weeklyDay = hessiancln::DayOfWeekCode::Sunday;
    /// For looking up users in a directory.
    hessiancln::ad_user_info directoryAccount{"OFFICE\\backup", "correct horse", true};
    /// Whether the object with the statistics about the customer exists.
    bool keepsCustomer = true;
    std::int32_t registrations = 0; ///< with the storage server
    /// Sets that only the storage server still knows.
    std::vector<std::shared_ptr<BackupSetState>> orphans;
};

} // namespace simulator
