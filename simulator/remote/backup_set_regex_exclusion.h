// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>

#include "simulator/remote/backup_set_item.h"

namespace simulator {

/// An item that selects or rejects files below its folder by their names.
class BackupSetRegexExclusion final : public BackupSetItem {
public:
    BackupSetRegexExclusion(std::shared_ptr<Session> opened, ItemState item)
        : BackupSetItem(std::move(opened), std::move(item)) {
        implements("BackupSetRegexExclusion");
        on("getExpression", [this] { return state_.expression; });
        on("getInclusion", [this] { return state_.inclusion; });
        on("setInclusion", [this](bool value) { state_.inclusion = value; });
        on("setNegate", [this](bool value) { state_.negate = value; });
        on("setCaseSensitive", [this](bool value) { state_.caseSensitive = value; });
        on("setMatchDirectories", [this](bool value) { state_.matchDirectories = value; });
    }
};

} // namespace simulator
