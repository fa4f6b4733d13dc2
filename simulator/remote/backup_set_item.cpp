// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/backup_set_item.h"

namespace simulator {

BackupSetItem::BackupSetItem(std::shared_ptr<Session> opened, ItemState state)
    : Servant(std::move(opened))
    , state_(std::move(state)) {
    implements("BackupSetItem");
    on("getFolder", [this] { return state_.folder; });
    on("getType", [this] { return static_cast<std::int32_t>(state_.kind); });
    if (state_.kind == ItemState::Kind::Inclusion)
        implements("BackupSetInclusionItem");
    else if (state_.kind == ItemState::Kind::Exclusion)
        implements("BackupSetFileItem");
}

} // namespace simulator
