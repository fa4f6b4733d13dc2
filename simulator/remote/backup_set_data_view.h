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

struct Chosen;

/// What a set holds, for one choice of filter values. Each view gives ids of its own, in the order
/// in which things are listed; they follow those of the view before only if the world wants it.
class BackupSetDataView : public Servant {
protected:
    BackupSetDataView(std::shared_ptr<Session> opened, World& world, World::Set set,
                      const StoredFilter& filter, const std::string& className);

    /// Raises `Violation` for an id that names nothing to choose, for what is chosen twice or lies
    /// in something else that is, and if there are none. Raises `Refusal` for what has gone.
    Chosen chosen(const std::vector<std::int64_t>& ids) const;

    World& world_;
    World::Set set_;
    StoredFilter filter_;

private:
    std::vector<hessiancln::SelectableItem> list(std::int64_t id);
    std::vector<StoredGeneration> generations(std::int64_t id) const;
    StoredNode& at(std::int64_t id) const;
    std::int64_t idOf(const StoredNode::Pointer& node);

    std::map<std::int64_t, StoredNode::Pointer> items_;
    std::map<const StoredNode*, std::int64_t> ids_;
    std::int64_t lastId_;
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

} // namespace simulator
