// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/described_set.h"

#include "simulator/world/plans.h"
#include "simulator/world/world.h"

namespace simulator {

using hessiancln::ClientOSType;

BackupSetState describedSet(const World& world, const SetDescription& described) {
    BackupSetState set;
    const std::string& computer = world.network.local()->name;
    set.source = computer;
    set.ofWindows = world.system == ClientOSType::Windows;
    set.credentials.kind = world.network.local()->kind;
    auto& info = set.info;
    info.computer = world.computer;
    info.name = described.name;
    info.is_active = true;
    info.in_sync = true;
    info.has_items = !described.folders.empty();
    info.owner_id = 1;
    info.owner_name = "anna";
    info.retention_rule_id = plans::standardRetention;
    info.schedule_id = plans::everyEvening;
    info.online_data_size = described.size;
    info.online_file_count = described.files;
    info.tarnsys_compressed_size = described.size * 58 / 100;
    set.credentials.usingClientAccount = true;
    set.leastGenerations = described.folders.empty() ? -1 : 1;
    set.mostGenerations = described.folders.empty() ? 0 : 30;
    for (const std::string& folder : described.folders)
        set.items.push_back({ItemState::Kind::Inclusion, computer, folder});
    return set;
}

} // namespace simulator
