// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/backup_set_data_view.h"

#include <algorithm>
#include <set>
#include <utility>

#include "simulator/remote/prepared_activities.h"

namespace simulator {
namespace {

constexpr std::int64_t topLevel = -1;

} // namespace

BackupSetDataView::BackupSetDataView(std::shared_ptr<Session> opened, World& world, World::Set set,
                                     const StoredFilter& filter, const std::string& className)
    : Servant(std::move(opened))
    , world_(world)
    , set_(std::move(set))
    , filter_(filter)
    , lastId_(world.idsPerView * ++world.views) {
    implements(className);
    on("getSubItems", [this](std::int64_t id) { return list(id); });
    on("getItemGenerations", [this](std::int64_t id) { return generations(id); });
}

StoredNode& BackupSetDataView::at(std::int64_t id) const {
    if (id == topLevel)
        return set_->stored->root();
    const auto found = items_.find(id);
    if (found == items_.end())
        throw Violation("the view has no item with the id " + std::to_string(id));
    return *found->second;
}

std::int64_t BackupSetDataView::idOf(const StoredNode::Pointer& node) {
    if (const auto known = ids_.find(node.get()); known != ids_.end())
        return known->second;
    // The first group has id 0; no group has the id of the top level.
    std::int64_t id = ++lastId_;
    if (node->isGroup) {
        --lastId_;
        id = nextGroup_;
        nextGroup_ -= 2;
    }
    ids_.emplace(node.get(), id);
    items_.emplace(id, node);
    return id;
}

std::vector<hessiancln::SelectableItem> BackupSetDataView::list(std::int64_t id) {
    const StoredNode& folder = at(id);
    if (folder.isFile)
        throw Violation("a file is asked for what it holds");
    if (!folder.denied.empty())
        throw Refusal(folder.denied);
    std::vector<hessiancln::SelectableItem> list;
    for (const auto& child : folder.children)
        if (filter_.shows(*child))
            list.push_back({idOf(child), child->name, child->type, child->isFile, !child->isGroup});
    return list;
}

std::vector<StoredGeneration> BackupSetDataView::generations(std::int64_t id) const {
    const StoredNode& file = at(id);
    if (!file.isFile)
        throw Violation("a folder is asked for its generations");
    if (!file.denied.empty())
        throw Refusal(file.denied);
    // All of them, whatever the view shows, and unordered, as in an agent's database.
    auto list = file.generations;
    std::rotate(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(list.size() / 2),
                list.end());
    return list;
}

Chosen BackupSetDataView::chosen(const std::vector<std::int64_t>& ids) const {
    if (ids.empty())
        throw Violation("nothing is chosen");
    Chosen chosen{{}, {}, filter_};
    std::set<std::int64_t> seen;
    for (const std::int64_t id : ids) {
        const auto found = items_.find(id);
        if (id < 1 || found == items_.end())
            throw Violation("the item " + std::to_string(id) + " can't be chosen");
        if (!seen.insert(id).second)
            throw Violation("the item " + std::to_string(id) + " is chosen twice");
        chosen.nodes.push_back(found->second);
    }
    chosen.places = placesOf(set_->stored->root(), chosen.nodes);
    for (const StoredPlace& place : chosen.places)
        if (place.inAnother)
            throw Violation("'" + place.node->name + "' lies in something that is chosen as well");
    if (chosen.places.size() != chosen.nodes.size())
        throw Refusal("Something that was chosen is no longer there.");
    return chosen;
}

BackupSetDeleteView::BackupSetDeleteView(std::shared_ptr<Session> opened, World& world,
                                         World::Set set, const StoredFilter& filter)
    : BackupSetDataView(std::move(opened), world, std::move(set), filter, "BackupSetDeleteView") {
    on("prepareDelete", [this](const std::vector<std::int64_t>& ids) {
        return std::make_shared<DeleteActivityInitiator>(session(), world_, set_, chosen(ids));
    });
}

BackupSetRestoreView::BackupSetRestoreView(std::shared_ptr<Session> opened, World& world,
                                           World::Set set, const StoredFilter& filter)
    : BackupSetDataView(std::move(opened), world, std::move(set), filter, "BackupSetRestoreView") {
    on("prepareRestore", [this](const std::vector<std::int64_t>& ids) {
        return std::make_shared<RestoreActivityInitiator>(session(), world_, set_, chosen(ids));
    });
}

} // namespace simulator
