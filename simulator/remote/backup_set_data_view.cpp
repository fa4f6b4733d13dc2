// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/backup_set_data_view.h"

#include <algorithm>
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
    , filter_(filter) {
    implements(className);
    on("getSubItems", [this](std::int64_t id) { return list(id); });
    on("getItemGenerations", [this](std::int64_t id) { return filter_.generationsOf(at(id)); });
}

StoredNode& BackupSetDataView::at(std::int64_t id) const {
    if (id == topLevel)
        return set_->stored->root();
    const auto found = items_.find(id);
    if (found == items_.end())
        throw Refusal("The view has no item with the id " + std::to_string(id) + ".");
    return *found->second;
}

std::int64_t BackupSetDataView::idOf(const StoredNode::Pointer& node) {
    if (const auto known = ids_.find(node.get()); known != ids_.end())
        return known->second;
    // The first group has the id 0, and none that of the top level.
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

std::vector<StoredNode::Pointer>
BackupSetDataView::chosen(const std::vector<std::int64_t>& ids) const {
    if (ids.empty())
        throw Violation("nothing is chosen");
    std::vector<StoredNode::Pointer> nodes;
    for (const std::int64_t id : ids) {
        const auto found = items_.find(id);
        if (id < 1 || found == items_.end())
            throw Violation("the item " + std::to_string(id) + " can't be chosen");
        nodes.push_back(found->second);
    }
    return nodes;
}

BackupSetDeleteView::BackupSetDeleteView(std::shared_ptr<Session> opened, World& world,
                                         World::Set set, const StoredFilter& filter)
    : BackupSetDataView(std::move(opened), world, std::move(set), filter, "BackupSetDeleteView") {
    on("prepareDelete", [this](const std::vector<std::int64_t>& ids) {
        return std::make_shared<DeleteActivityInitiator>(session(), world_, set_,
                                                         Chosen{chosen(ids), filter_});
    });
}

BackupSetRestoreView::BackupSetRestoreView(std::shared_ptr<Session> opened, World& world,
                                           World::Set set, const StoredFilter& filter)
    : BackupSetDataView(std::move(opened), world, std::move(set), filter, "BackupSetRestoreView") {
    on("prepareRestore", [this](const std::vector<std::int64_t>& ids) {
        return std::make_shared<RestoreActivityInitiator>(session(), world_, set_,
                                                          Chosen{chosen(ids), filter_});
    });
}

StoredData& storageOf(BackupSetState& set, std::int32_t now) {
    if (set.stored)
        return *set.stored;
    std::vector<std::string> folders;
    for (const ItemState& item : set.items)
        if (item.kind == ItemState::Kind::Inclusion)
            folders.push_back(item.folder);
    while (!folders.empty() && folders.back().ends_with('\\'))
        folders.back().pop_back();
    if (folders.empty())
        folders.push_back("C:\\Data");
    if (set.info.online_file_count == 0)
        folders.clear();
    std::vector<std::int32_t> times;
    std::vector<hessiancln::backup_sessions> older;
    for (const std::int32_t time : folders.empty() ? times : backupsOfTwoYears(now))
        older.push_back({time - 600, time, 120, 96'000'000, 0});
    set.sessions.insert(set.sessions.begin(), older.begin(), older.end());
    for (const auto& session : set.sessions)
        times.push_back(session.end_time);
    set.stored = inventStorage(folders, times);
    return *set.stored;
}

} // namespace simulator
