// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include "simulator/world/backup_set_state.h"

/// What a set holds in storage, and how the set's figures follow it.
namespace simulator {

/// It is made up when somebody first asks; the set's sessions then reach back as far as its
/// generations.
StoredData& storageOf(BackupSetState& set, std::int32_t now);

/// The figures are those of the storage, which must be there.
void takeFigures(BackupSetState& set);

/// A backup that ended at that time has its files in the storage, if somebody asked for it before.
void storeBackup(BackupSetState& set, std::int32_t time);

/// Deletes from the storage. The figures shrink as the storage does, as it may hold only a part of
/// what they tell.
void takeOut(BackupSetState& set, const std::vector<StoredNode::Pointer>& nodes,
             const StoredFilter& filter);

} // namespace simulator
