// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/stored_data.h"

#include <algorithm>
#include <array>
#include <functional>
#include <unordered_set>
#include <utility>

namespace simulator {
namespace {

using Type = hessiancln::SelectableItemType;

constexpr std::int32_t secondsADay = 86'400;

/// Visits these nodes and everything below them, in storage order.
void eachNode(const std::vector<StoredNode::Pointer>& nodes,
              const std::function<void(StoredNode&)>& visit) {
    std::vector<StoredNode*> waiting;
    const auto queue = [&waiting](const std::vector<StoredNode::Pointer>& list) {
        for (auto node = list.rbegin(); node != list.rend(); ++node)
            waiting.push_back(node->get());
    };
    queue(nodes);
    while (!waiting.empty()) {
        StoredNode& node = *waiting.back();
        waiting.pop_back();
        queue(node.children);
        visit(node);
    }
}

void prune(StoredNode& folder) {
    std::erase_if(folder.children, [](const StoredNode::Pointer& child) {
        if (child->isFile)
            return child->generations.empty();
        prune(*child);
        return child->children.empty() && child->denied.empty();
    });
}

/// Searches for nodes below a folder, and records the path to them.
class Search {
public:
    explicit Search(const std::vector<StoredNode::Pointer>& nodes) {
        for (const auto& node : nodes)
            wanted_.insert(node.get());
    }

    void look(const StoredNode& folder, bool inAnother) {
        for (const auto& child : folder.children) {
            const bool found = wanted_.count(child.get()) != 0;
            if (found)
                places.push_back({child, share_ ? *share_ : child->name, way_, inAnother});
            if (!child->children.empty())
                goInto(*child, found || inAnother);
        }
    }

    std::vector<StoredPlace> places;

private:
    void goInto(const StoredNode& child, bool inAnother) {
        const bool isShare = !child.isGroup && !share_;
        const bool isFolder = !child.isGroup && share_;
        if (isShare)
            share_ = &child.name;
        if (isFolder)
            way_.push_back(child.name);
        look(child, inAnother);
        if (isFolder)
            way_.pop_back();
        if (isShare)
            share_ = nullptr;
    }

    std::unordered_set<const StoredNode*> wanted_;
    const std::string* share_ = nullptr;
    std::vector<std::string> way_;
};

bool among(const std::vector<StoredGeneration>& generations, std::int32_t time) {
    return std::any_of(generations.begin(), generations.end(),
                       [time](const StoredGeneration& one) { return one.backup_time == time; });
}

} // namespace

std::vector<StoredGeneration> StoredFilter::generationsOf(const StoredNode& file) const {
    if (removedSince != 0 && (file.removed == 0 || file.removed < removedSince))
        return {};
    if (removedBefore != 0 && file.removed != 0 && file.removed <= removedBefore)
        return {};
    std::vector<StoredGeneration> shown;
    const auto kept = static_cast<std::size_t>(std::max(keepLast, 0));
    for (std::size_t i = 0; i + kept < file.generations.size(); ++i) {
        const std::int32_t time = file.generations[i].backup_time;
        if (time >= from && (to == 0 || time <= to))
            shown.push_back(file.generations[i]);
    }
    return shown;
}

bool StoredFilter::shows(const StoredNode& node) const {
    if (node.isFile)
        return !generationsOf(node).empty();
    return !node.denied.empty() ||
           std::any_of(node.children.begin(), node.children.end(),
                       [this](const StoredNode::Pointer& child) { return shows(*child); });
}

StoredNode& StoredNode::child(std::string_view childName, Type childType) {
    for (const auto& known : children)
        if (known->name == childName)
            return *known;
    auto made = std::make_shared<StoredNode>();
    made->name = childName;
    made->type = childType;
    return *children.emplace_back(std::move(made));
}

StoredNode& StoredData::addFolder(std::string_view path) {
    StoredNode* node = &root_;
    Type type = Type::Drive;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('\\', begin), path.size());
        node = &node->child(path.substr(begin, end - begin), type);
        type = Type::Folder;
        begin = end + 1;
    }
    return *node;
}

StoredNode& StoredData::addFile(std::string_view path, std::vector<StoredGeneration> generations) {
    const std::size_t end = path.rfind('\\');
    StoredNode& file = addFolder(path.substr(0, end)).child(path.substr(end + 1), Type::File);
    file.isFile = true;
    file.generations = std::move(generations);
    return file;
}

StoredAmount amountOf(const std::vector<StoredNode::Pointer>& nodes, const StoredFilter& filter) {
    StoredAmount amount;
    eachNode(nodes, [&](const StoredNode& node) {
        amount.closedFolders += node.isFile || node.denied.empty() ? 0 : 1;
        const auto generations = filter.generationsOf(node);
        if (generations.empty())
            return;
        const auto count = static_cast<std::int32_t>(generations.size());
        amount.leastGenerations =
            amount.files == 0 ? count : std::min(amount.leastGenerations, count);
        amount.mostGenerations = std::max(amount.mostGenerations, count);
        ++amount.files;
        for (const auto& one : generations) {
            amount.bytes += one.data_size;
            amount.storedBytes += one.stream_size;
        }
    });
    return amount;
}

std::vector<StoredPlace> placesOf(const StoredNode& root,
                                  const std::vector<StoredNode::Pointer>& nodes) {
    Search search(nodes);
    search.look(root, false);
    return std::move(search.places);
}

void erase(StoredData& data, const std::vector<StoredNode::Pointer>& nodes,
           const StoredFilter& filter) {
    eachNode(nodes, [&](StoredNode& node) {
        if (!node.isFile && filter == StoredFilter())
            node.denied.clear();
        const auto doomed = filter.generationsOf(node);
        std::erase_if(node.generations,
                      [&](const StoredGeneration& one) { return among(doomed, one.backup_time); });
    });
    prune(data.root());
}

std::vector<std::int32_t> backupsOfTwoYears(std::int32_t now) {
    std::vector<std::int32_t> times;
    for (const int daysAgo : {730, 540, 365, 240, 180, 120, 90, 60})
        times.push_back(now - daysAgo * secondsADay);
    return times;
}

namespace {

/// Growing versions, one for every `step`th backup before `end`.
std::vector<StoredGeneration> versions(const std::vector<std::int32_t>& backups, std::size_t step,
                                       std::size_t end, std::int64_t size) {
    std::vector<StoredGeneration> list;
    for (std::size_t i = 0; i < std::min(end, backups.size()); i += step) {
        const std::int64_t data = size + size * static_cast<std::int64_t>(i) / 40;
        list.push_back({backups[i] - 5'400, backups[i], data, data * 58 / 100});
    }
    return list;
}

void addFiles(StoredData& data, const std::string& folder,
              const std::vector<std::int32_t>& backups) {
    const std::size_t all = backups.size();
    data.addFile(folder + "\\Annual report.odt", versions(backups, 1, all, 284'112));
    data.addFile(folder + "\\Budget.ods", versions(backups, 3, all, 91'338));
    data.addFile(folder + "\\empty.lock", versions(backups, 4, all, 0));
    data.addFile(folder + "\\Größenliste.txt", versions(backups, 2, all, 4'127));
    data.addFile(folder + "\\Photos\\IMG_0412.jpg", versions(backups, all, all, 3'870'221));
    data.addFile(folder + "\\Photos\\IMG_0413.jpg", versions(backups, all, all, 4'011'907));
    data.addFile(folder + "\\Letters\\2025\\Offer.docx", versions(backups, 2, all, 61'440));
    if (all < 2)
        return;
    // Files removed halfway through.
    const std::size_t half = (all + 1) / 2;
    for (const char* const name : {"\\Draft.odt", "\\Letters\\Old offer.docx"})
        data.addFile(folder + name, versions(backups, 1, half, 48'200)).removed =
            backups[half - 1] + secondsADay;
}

} // namespace

void addBackup(StoredData& data, const std::vector<std::string>& folders, std::int32_t time) {
    if (data.root().children.empty())
        for (const std::string& folder : folders)
            addFiles(data, folder, {time});
    eachNode(data.root().children, [time](StoredNode& node) {
        if (node.generations.size() < 2 || node.removed != 0)
            return;
        StoredGeneration next = node.generations.back();
        next.modification_time = time - 5'400;
        next.backup_time = time;
        node.generations.push_back(next);
    });
}

std::shared_ptr<StoredData> inventStorage(const std::vector<std::string>& folders,
                                          const std::vector<std::int32_t>& backups) {
    auto data = std::make_shared<StoredData>();
    if (backups.empty())
        return data;
    for (const std::string& folder : folders)
        addFiles(*data, folder, backups);
    if (folders.empty())
        return data;
    data->addFolder(folders.front() + "\\Locked").denied = "The stored folder can't be read.";
    if (folders.size() > 1) {
        StoredNode& group = data->addFolder("Shares");
        group.isGroup = true;
        group.type = Type(9);
        addFiles(*data, "Shares\\Team", backups);
    }
    return data;
}

} // namespace simulator
