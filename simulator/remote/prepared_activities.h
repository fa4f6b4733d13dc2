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

class DataSourceBrowser;

/// What was chosen in a view.
struct Chosen {
    std::vector<StoredNode::Pointer> nodes;
    std::vector<StoredPlace> places; ///< where these stand, in the order of the storage
    StoredFilter filter;
};

/// What is prepared and starts once. A set that has gone starts nothing.
class PreparedActivity : public Servant {
protected:
    PreparedActivity(std::shared_ptr<Session> opened, World& world, World::Set set, Chosen chosen);

    /// Raises `Violation` if it has started, `Refusal` if the set has gone.
    void requireReady() const;
    ActivityPlan planOf(hessiancln::ActivityType type);
    std::shared_ptr<Servant> begin(ActivityPlan plan);

    World& world_;
    World::Set set_;
    Chosen chosen_;

private:
    bool started_ = false;
};

/// A deletion that is ready to start. When its activity has ended, the data is gone and the set's
/// figures say so. With two-factor authentication it takes a code.
class DeleteActivityInitiator final : public PreparedActivity {
public:
    DeleteActivityInitiator(std::shared_ptr<Session> opened, World& world, World::Set set,
                            Chosen chosen);

private:
    std::shared_ptr<Servant> start();
};

/// A restore that is ready to start. What it can't read are its errors.
class RestoreActivityInitiator final : public PreparedActivity {
public:
    RestoreActivityInitiator(std::shared_ptr<Session> opened, World& world, World::Set set,
                             Chosen chosen);

private:
    std::shared_ptr<Servant> start(const Nullable<DataSourceBrowser>& browser,
                                   const std::string& computer,
                                   const std::vector<hessiancln::share_mapping>& mappings,
                                   std::int32_t truncateLevel);

    bool hasReason_ = false;
};

} // namespace simulator
