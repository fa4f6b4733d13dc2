// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "api/restore_records.h"
#include "simulator/objects/servant.h"
#include "simulator/world/stored_data.h"
#include "simulator/world/world.h"

namespace simulator {

/// What was chosen in a view.
struct Chosen {
    std::vector<StoredNode::Pointer> nodes;
    StoredFilter filter;
};

/// A deletion that is ready to start. When its activity has ended, the data is gone and the set's
/// figures say so.
class DeleteActivityInitiator final : public Servant {
public:
    DeleteActivityInitiator(std::shared_ptr<Session> opened, World& world, World::Set set,
                            Chosen chosen);
};

/// A restore that is ready to start.
class RestoreActivityInitiator final : public Servant {
public:
    RestoreActivityInitiator(std::shared_ptr<Session> opened, World& world, World::Set set,
                             Chosen chosen);

private:
    std::vector<hessiancln::selected_shares> shares() const;

    World::Set set_;
    Chosen chosen_;
};

} // namespace simulator
