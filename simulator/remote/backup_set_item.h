// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/world/backup_set_state.h"

namespace simulator {

/// An item, in a set or not yet added to one. It is a copy; the set keeps what was last set.
class BackupSetItem : public Servant {
public:
    static constexpr std::string_view family = "BackupSetItem";

    BackupSetItem(std::shared_ptr<Session> opened, ItemState state);

    const ItemState& state() const { return state_; }
    std::string label() const override;

protected:
    ItemState state_;
};

/// Creates an item of the class for its kind.
std::shared_ptr<BackupSetItem> makeItem(const std::shared_ptr<Session>& opened, ItemState state);

} // namespace simulator
