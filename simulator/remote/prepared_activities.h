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

/// What was selected in a view.
struct Chosen {
    std::vector<StoredNode::Pointer> nodes;
    std::vector<StoredPlace> places; ///< their places, in storage order
    StoredFilter filter;
};

/// A prepared activity that can start once. If the set no longer exists, it can't start.
class PreparedActivity : public Servant {
protected:
    PreparedActivity(std::shared_ptr<Session> opened, World& world, World::Set set, Chosen chosen);

    /// Throws `Violation` if it has started, `Refusal` if the set no longer exists.
    void requireReady() const;
    ActivityPlan planOf(hessiancln::ActivityType type);
    std::shared_ptr<Servant> begin(ActivityPlan plan);

    World& world_;
    World::Set set_;
    Chosen chosen_;

private:
    bool started_ = false;
};

/// A deletion that is ready to start. When its activity has ended, the data is deleted and the
/// set's figures reflect it. With two-factor authentication it requires a code.
class DeleteActivityInitiator final : public PreparedActivity {
public:
    DeleteActivityInitiator(std::shared_ptr<Session> opened, World& world, World::Set set,
                            Chosen chosen);

private:
    std::shared_ptr<Servant> start();
};

/// A restore that is ready to start. Unreadable items count as its errors.
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
