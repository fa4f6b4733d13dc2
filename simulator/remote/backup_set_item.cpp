// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/backup_set_item.h"

#include <utility>

#include "simulator/remote/backup_set_regex_exclusion.h"

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

std::string BackupSetItem::label() const {
    const std::string start = "BackupSetItem(" + state_.folder;
    if (state_.kind == ItemState::Kind::Exclusion)
        return start + ", excluded)";
    if (state_.kind == ItemState::Kind::Regex)
        return start + (state_.inclusion ? ", only " : ", without ") + state_.expression + ")";
    return start + ")";
}

std::shared_ptr<BackupSetItem> makeItem(const std::shared_ptr<Session>& opened, ItemState state) {
    if (state.kind == ItemState::Kind::Regex)
        return std::make_shared<BackupSetRegexExclusion>(opened, std::move(state));
    return std::make_shared<BackupSetItem>(opened, std::move(state));
}

} // namespace simulator
