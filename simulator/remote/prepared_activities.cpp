// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/prepared_activities.h"

#include <utility>

#include "simulator/remote/data_source_browser.h"
#include "simulator/remote/generic_activity.h"
#include "simulator/remote/restore_destination.h"
#include "simulator/world/set_storage.h"

namespace simulator {
namespace {

using hessiancln::ActivityType;

bool wasStopped(const hessiancln::activity_log_info& row) {
    return row.completion == hessiancln::ActivityCompletion(Ending::Stopped);
}

std::vector<std::string> directoriesOf(const std::vector<StoredPlace>& places) {
    std::vector<std::string> directories;
    for (const StoredPlace& place : places) {
        std::string path = place.share;
        for (const std::string& folder : place.folders)
            path += "\\" + folder;
        if (directories.empty() || directories.back() != path)
            directories.push_back(std::move(path));
    }
    return directories;
}

} // namespace

PreparedActivity::PreparedActivity(std::shared_ptr<Session> opened, World& world, World::Set set,
                                   Chosen chosen)
    : Servant(std::move(opened))
    , world_(world)
    , set_(std::move(set))
    , chosen_(std::move(chosen)) {}

void PreparedActivity::requireReady() const {
    if (started_)
        throw Violation("it has started already");
    if (world_.set(set_->info.id) != set_)
        throw Refusal("The backup set '" + set_->info.name + "' has gone.");
}

ActivityPlan PreparedActivity::planOf(ActivityType type) {
    const StoredAmount amount = amountOf(chosen_.nodes, chosen_.filter);
    ActivityPlan plan;
    plan.type = type;
    plan.description = set_->info.name;
    plan.user = session()->user;
    plan.set_id = set_->info.id;
    plan.files = amount.files;
    plan.bytes = amount.bytes;
    plan.directories = directoriesOf(chosen_.places);
    plan.duration = world_.random().between(15, 40) * 1000;
    return plan;
}

std::shared_ptr<Servant> PreparedActivity::begin(ActivityPlan plan) {
    started_ = true;
    return std::make_shared<GenericActivity>(session(), world_, world_.start(std::move(plan)));
}

DeleteActivityInitiator::DeleteActivityInitiator(std::shared_ptr<Session> opened, World& world,
                                                 World::Set set, Chosen chosen)
    : PreparedActivity(std::move(opened), world, std::move(set), std::move(chosen)) {
    implements("DeleteActivityInitiator");
    on("start", [this] { return start(); });
}

std::shared_ptr<Servant> DeleteActivityInitiator::start() {
    requireReady();
    world_.spendCode();
    ActivityPlan plan = planOf(ActivityType::Delete);
    plan.ended = [set = set_, chosen = chosen_](const hessiancln::activity_log_info& row) {
        if (!wasStopped(row))
            takeOut(*set, chosen.nodes, chosen.filter);
    };
    return begin(std::move(plan));
}

RestoreActivityInitiator::RestoreActivityInitiator(std::shared_ptr<Session> opened, World& world,
                                                   World::Set set, Chosen chosen)
    : PreparedActivity(std::move(opened), world, std::move(set), std::move(chosen)) {
    implements("RestoreActivityInitiator");
    on("selected_shares", [this] { return sharesOf(chosen_.places); });
    on("setRestoreReason", [this](std::int32_t code) {
        checkReason(code);
        hasReason_ = true;
    });
    on("start",
       [this](const Nullable<DataSourceBrowser>& browser, const std::string& computer,
              const std::vector<hessiancln::share_mapping>& mappings, std::int32_t truncateLevel) {
           return start(browser, computer, mappings, truncateLevel);
       });
}

std::shared_ptr<Servant> RestoreActivityInitiator::start(
    const Nullable<DataSourceBrowser>& browser, const std::string& computer,
    const std::vector<hessiancln::share_mapping>& mappings, std::int32_t truncateLevel) {
    requireReady();
    if (!hasReason_)
        throw Violation("a restore needs a reason");
    if (!browser.object)
        throw Violation("a restore needs a browser");
    if (browser.object->session() != session())
        throw Violation("the browser belongs to another session");
    checkMappings(sharesOf(chosen_.places), mappings, truncateLevel);
    const std::string& source = set_->source.empty() ? set_->info.computer : set_->source;
    if (mappings.empty() && !world_.network.same(computer, source))
        throw Violation("a restore to '" + computer + "' needs to know where");
    if (!mappings.empty())
        browser.object->requireAccess(computer);
    for (const auto& mapping : mappings)
        checkDestination(*world_.network.computer(computer), mapping.destination_path);
    ActivityPlan plan = planOf(ActivityType::Restore);
    plan.errors = amountOf(chosen_.nodes, chosen_.filter).closedFolders;
    return begin(std::move(plan));
}

} // namespace simulator
