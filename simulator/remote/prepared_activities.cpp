// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/prepared_activities.h"

#include <algorithm>
#include <utility>

#include "simulator/remote/data_source_browser.h"
#include "simulator/remote/generic_activity.h"

namespace simulator {
namespace {

using hessiancln::ActivityType;

ActivityPlan planOf(ActivityType type, World& world, const World::Set& set, const Chosen& chosen,
                    const std::string& user) {
    const StoredAmount amount = amountOf(chosen.nodes, chosen.filter);
    ActivityPlan plan;
    plan.type = type;
    plan.description = set->info.name;
    plan.user = user;
    plan.set_id = set->info.id;
    plan.files = amount.files;
    plan.bytes = amount.bytes;
    plan.duration = world.random().between(15, 40) * 1000;
    return plan;
}

bool wasStopped(const hessiancln::activity_log_info& row) {
    return row.completion == hessiancln::ActivityCompletion(Ending::Stopped);
}

void takeOut(BackupSetState& set, const Chosen& chosen) {
    const StoredAmount amount = amountOf(chosen.nodes, chosen.filter);
    erase(*set.stored, chosen.nodes, chosen.filter);
    auto& info = set.info;
    const bool nothingLeft = set.stored->root().children.empty();
    info.online_file_count = nothingLeft ? 0 : std::max(info.online_file_count - amount.files, 1);
    info.online_data_size =
        nothingLeft ? 0 : std::max<std::int64_t>(info.online_data_size - amount.bytes, 1);
    info.tarnsys_compressed_size = info.online_data_size * 58 / 100;
}

/// The way from the top down to the node; empty if it isn't there.
std::vector<const StoredNode*> wayTo(const StoredNode& top, const StoredNode& node) {
    for (const auto& child : top.children) {
        if (child.get() == &node)
            return {child.get()};
        auto way = wayTo(*child, node);
        if (!way.empty()) {
            way.insert(way.begin(), child.get());
            return way;
        }
    }
    return {};
}

} // namespace

DeleteActivityInitiator::DeleteActivityInitiator(std::shared_ptr<Session> opened, World& world,
                                                 World::Set set, Chosen chosen)
    : Servant(std::move(opened)) {
    implements("DeleteActivityInitiator");
    on("start", [this, &world, set = std::move(set), chosen = std::move(chosen)] {
        ActivityPlan plan = planOf(ActivityType::Delete, world, set, chosen, session()->user);
        plan.ended = [set, chosen](const hessiancln::activity_log_info& row) {
            if (!wasStopped(row))
                takeOut(*set, chosen);
        };
        return std::make_shared<GenericActivity>(session(), world, world.start(std::move(plan)));
    });
}

RestoreActivityInitiator::RestoreActivityInitiator(std::shared_ptr<Session> opened, World& world,
                                                   World::Set set, Chosen chosen)
    : Servant(std::move(opened))
    , set_(std::move(set))
    , chosen_(std::move(chosen)) {
    implements("RestoreActivityInitiator");
    on("selected_shares", [this] { return shares(); });
    on("setRestoreReason", [](std::int32_t) {});
    on("start", [this, &world](const Nullable<DataSourceBrowser>&, const std::string&,
                               const std::vector<hessiancln::share_mapping>&, std::int32_t) {
        ActivityPlan plan = planOf(ActivityType::Restore, world, set_, chosen_, session()->user);
        return std::make_shared<GenericActivity>(session(), world, world.start(std::move(plan)));
    });
}

std::vector<hessiancln::selected_shares> RestoreActivityInitiator::shares() const {
    std::vector<hessiancln::selected_shares> list;
    for (const auto& node : chosen_.nodes) {
        const auto way = wayTo(set_->stored->root(), *node);
        const auto share = std::find_if(way.begin(), way.end(),
                                        [](const StoredNode* one) { return !one->isGroup; });
        if (share == way.end())
            continue;
        const std::string& name = (*share)->name;
        const bool known = std::any_of(list.begin(), list.end(),
                                       [&](const auto& one) { return one.share_name == name; });
        if (known)
            continue;
        std::string path = name;
        for (auto level = share + 1; level < way.end() && level + 1 < way.end(); ++level)
            path += "\\" + (*level)->name;
        list.push_back({name, path});
    }
    return list;
}

} // namespace simulator
