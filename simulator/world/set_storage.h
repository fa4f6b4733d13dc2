// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include "simulator/world/backup_set_state.h"

/// The storage of a set, and the set's figures derived from it.
namespace simulator {

/// Generated on first access; the set's sessions are then extended as far back as its generations.
StoredData& storageOf(BackupSetState& set, std::int32_t now);

/// Copies the figures from the storage, which must exist.
void takeFigures(BackupSetState& set);

/// Adds the files of a backup that ended at that time, if the storage was accessed before.
void storeBackup(BackupSetState& set, std::int32_t time);

/// Deletes from the storage. The figures shrink in proportion, because the storage may hold only a
/// part of what they report.
void takeOut(BackupSetState& set, const std::vector<StoredNode::Pointer>& nodes,
             const StoredFilter& filter);

} // namespace simulator
