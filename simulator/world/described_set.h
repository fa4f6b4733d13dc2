// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "simulator/world/backup_set_state.h"

namespace simulator {

class World;

/// Basic data of a set, from which the rest is derived.
struct SetDescription {
    std::string name;
    std::vector<std::string> folders;
    std::int64_t size;
    std::int32_t files;
};

/// A set of the agent's own computer.
BackupSetState describedSet(const World& world, const SetDescription& described);

} // namespace simulator
