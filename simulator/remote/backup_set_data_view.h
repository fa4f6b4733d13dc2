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

/// The content of a set for one choice of filter values. Each view assigns its own ids in the order
/// of listing; the world decides whether they continue those of the previous view.
class BackupSetDataView : public Servant {
protected:
    BackupSetDataView(std::shared_ptr<Session> opened, World& world, World::Set set,
                      const StoredFilter& filter, const std::string& className);

    /// Throws `Violation` for an id that can't be selected, for an item selected twice or inside
    /// another selected one, and for an empty selection. Throws `Refusal` for items that no longer
    /// exist.
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
