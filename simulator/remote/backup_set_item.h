// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "simulator/objects/servant.h"
#include "simulator/world/backup_set_state.h"

namespace simulator {

/// An item, within a set or on its way into one. It is a copy: a set has what it was last given.
class BackupSetItem : public Servant {
public:
    static constexpr std::string_view family = "BackupSetItem";

    BackupSetItem(std::shared_ptr<Session> opened, ItemState state);

    const ItemState& state() const { return state_; }
    std::string label() const override;

protected:
    ItemState state_;
};

/// An item of the class that its kind asks for.
std::shared_ptr<BackupSetItem> makeItem(const std::shared_ptr<Session>& opened, ItemState state);

} // namespace simulator
