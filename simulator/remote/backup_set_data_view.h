// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "simulator/objects/servant.h"
#include "simulator/world/stored_data.h"
#include "simulator/world/world.h"

namespace simulator {

/// What a set holds, for one choice of filter values. Each view gives ids of its own, in the order
/// in which things are listed.
class BackupSetDataView : public Servant {
protected:
    BackupSetDataView(std::shared_ptr<Session> opened, World& world, World::Set set,
                      const StoredFilter& filter, const std::string& className);

    /// Raises `Refusal` for an id that names nothing to choose, and if there are none.
    std::vector<StoredNode::Pointer> chosen(const std::vector<std::int64_t>& ids) const;

    World& world_;
    World::Set set_;
    StoredFilter filter_;

private:
    std::vector<hessiancln::SelectableItem> list(std::int64_t id);
    StoredNode& at(std::int64_t id) const;
    std::int64_t idOf(const StoredNode::Pointer& node);

    std::map<std::int64_t, StoredNode::Pointer> items_;
    std::map<const StoredNode*, std::int64_t> ids_;
    std::int64_t lastId_ = 0;
    std::int64_t nextGroup_ = 0;
};

class BackupSetDeleteView final : public BackupSetDataView {
public:
    BackupSetDeleteView(std::shared_ptr<Session> opened, World& world, World::Set set,
                        const StoredFilter& filter);
};

class BackupSetRestoreView final : public BackupSetDataView {
public:
    BackupSetRestoreView(std::shared_ptr<Session> opened, World& world, World::Set set,
                         const StoredFilter& filter);
};

/// What the set holds in storage. It is made up when somebody first asks; the set's sessions then
/// reach back as far as its generations.
StoredData& storageOf(BackupSetState& set, std::int32_t now);

} // namespace simulator
