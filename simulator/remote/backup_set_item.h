// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/world/backup_set_state.h"

namespace simulator {

/// An item, within a set or on its way into one.
class BackupSetItem : public Servant {
public:
    static constexpr std::string_view family = "BackupSetItem";

    BackupSetItem(std::shared_ptr<Session> opened, ItemState state);

    const ItemState& state() const { return state_; }
    std::string label() const override { return "BackupSetItem(" + state_.folder + ")"; }

private:
    ItemState state_;
};

} // namespace simulator
