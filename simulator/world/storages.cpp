// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/storages.h"

#include <string>
#include <utility>

namespace simulator {
namespace {

using Type = hessiancln::SelectableItemType;
using Times = std::vector<std::int32_t>;

constexpr std::int32_t secondsADay = 86'400;
constexpr auto unknownType = static_cast<Type>(9);

/// One generation of a file that was modified an hour and a half before the backup.
StoredGeneration version(std::int32_t time, std::int64_t size) {
    return {time - 5'400, time, size, size * 58 / 100};
}

/// Every `step`th backup has the file, from the newest one back. The file grows over time.
std::vector<StoredGeneration> versions(const Times& backups, std::size_t step, std::int64_t size) {
    std::vector<StoredGeneration> list;
    for (std::size_t i = (backups.size() - 1) % step; i < backups.size(); i += step)
        list.push_back(version(backups[i], size + size * static_cast<std::int64_t>(i) / 30));
    return list;
}

std::string below(std::string_view folder, std::string_view path) {
    return std::string(folder) + "\\" + std::string(path);
}

void addHome(StoredData& data, const Times& backups) {
    data.addFile(below(storages::home, "Diary.odt"), versions(backups, 1, 48'212));
    data.addFile(below(storages::home, R"(Letters\Offer.docx)"), versions(backups, 6, 61'440));
}

/// A file that existed for the first `count` backups and was removed the day after.
void addRemoved(StoredData& data, std::string_view path, const Times& backups, std::size_t count) {
    const Times seen(backups.begin(), backups.begin() + static_cast<std::ptrdiff_t>(count));
    data.addFile(below(storages::home, path), versions(seen, 1, 30'720)).removed =
        seen.back() + secondsADay / 2;
}

void addGenerations(StoredData& data, const Times& backups) {
    addHome(data, backups);
    data.addFile(below(storages::home, "Accounts.ods"), versions(backups, 3, 91'338));
    data.addFile(below(storages::home, "Born today.txt"), {version(backups.back(), 12)});
    data.addFile(below(storages::home, "empty.lock"), versions(backups, 10, 0));
    data.addFile(below(storages::home, R"(Photos\Größe.jpg)"),
                 {version(backups.front(), 4'011'907)});
    addRemoved(data, R"(Attic\First draft.odt)", backups, 1);
    addRemoved(data, R"(Attic\Old lease.pdf)", backups, backups.size() / 4);
    addRemoved(data, R"(Letters\Old offer.docx)", backups, backups.size() / 2);
    addRemoved(data, "Removed yesterday.txt", backups, backups.size() - 1);
}

StoredNode& addGroup(StoredNode& parent, std::string_view name) {
    StoredNode& group = parent.child(name, unknownType);
    group.isGroup = true;
    return group;
}

void addFile(StoredNode& folder, std::string_view name, const Times& backups,
             Type type = Type::File) {
    StoredNode& file = folder.child(name, type);
    file.isFile = true;
    file.generations = versions(backups, 4, 20'480);
}

void addGroups(StoredData& data, const Times& backups) {
    StoredNode& servers = addGroup(data.root(), "File servers");
    StoredNode& office = addGroup(servers, "Office");
    for (const char* const share : {"Team", "Sales"}) {
        StoredNode& folder = office.child(share, Type::Drive);
        addFile(folder, "Plan.odt", backups);
        addFile(folder.child("Minutes", Type::Folder), "2026.odt", backups);
    }
    addFile(servers.child("Archive", Type::Drive), "Readme.txt", backups);
    addFile(addGroup(data.root(), "Databases"), "INVENTORY", backups, Type::Database);
    addHome(data, backups);
    StoredNode& drive = data.addFolder("C:");
    addFile(addGroup(drive, "System state"), "Registry", backups, unknownType);
}

void addShares(StoredData& data, const Times& backups) {
    for (const std::string_view name : storages::shares) {
        StoredNode& share = data.root().child(name, Type::Drive);
        addFile(share, "Notes.txt", backups);
        StoredNode& home = share.child("Users", Type::Folder).child("ann", Type::OtherFolder);
        addFile(home, "Letter.odt", backups);
    }
}

void addFailing(StoredData& data, const Times& backups) {
    addHome(data, backups);
    for (const std::string& path :
         {std::string(R"(C:\Locked)"), below(storages::home, "Locked too"), std::string("E:")})
        data.addFolder(path).denied = storages::refusal;
    addGroup(data.root(), "Lost servers").denied = "The server doesn't answer.";
    data.addFile(below(storages::home, "Unreadable.db"), versions(backups, 5, 4'096)).denied =
        "The generations can't be read.";
}

/// Spreads neighbours; names are unique.
void addManyFiles(StoredData& data, const Times& backups) {
    constexpr std::size_t stride = 7'919;
    constexpr std::size_t removedEvery = 1'000;
    constexpr std::array<std::string_view, 3> heads{"Scan ", "SCAN ", "scan "};
    StoredNode& folder = data.addFolder(storages::largeFolder);
    folder.children.reserve(storages::largeCount);
    for (std::size_t i = 0; i < storages::largeCount; ++i) {
        std::string digits = std::to_string(i * stride % storages::largeCount);
        digits.insert(0, 6 - digits.size(), '0');
        auto file = std::make_shared<StoredNode>();
        file->name = std::string(heads[i % heads.size()]) + digits + ".tif";
        file->type = Type::File;
        file->isFile = true;
        const std::int32_t time = backups[i % backups.size()];
        file->generations = {version(time, static_cast<std::int64_t>(i) * 64)};
        file->removed = i % removedEvery == 0 ? time + secondsADay : 0;
        folder.children.push_back(std::move(file));
    }
    data.addFile(R"(D:\Notes.txt)", versions(backups, 3, 2'048));
}

void addDeep(StoredData& data, const Times& backups) {
    StoredNode* folder = &data.addFolder("C:");
    for (int level = 1; level <= storages::depth; ++level) {
        const std::string number = std::to_string(level);
        addFile(*folder, "Above level " + number + ".txt", backups);
        folder = &folder->child("Level " + number, Type::Folder);
    }
    addFile(*folder, "Bottom.txt", backups);
}

} // namespace

std::string_view nameOf(Storage storage) {
    switch (storage) {
    case Storage::Generations:
        return "Two years of generations";
    case Storage::Groups:
        return "Groups";
    case Storage::Shares:
        return "Shares of one name";
    case Storage::Failing:
        return "Folders that fail";
    case Storage::ManyFiles:
        return "Many files";
    case Storage::Deep:
        return "Deep folders";
    }
    return {};
}

std::vector<std::int32_t> backupTimes(std::int32_t now) {
    constexpr int days = 730;
    constexpr int daysOfMonth = 30;
    constexpr int daily = 14;
    Times times;
    for (int daysAgo = days; daysAgo > daily; daysAgo -= daysOfMonth)
        times.push_back(now - daysAgo * secondsADay);
    for (int daysAgo = daily; daysAgo > 0; --daysAgo)
        times.push_back(now - daysAgo * secondsADay);
    return times;
}

std::shared_ptr<StoredData> makeStorage(Storage storage, const std::vector<std::int32_t>& backups) {
    auto data = std::make_shared<StoredData>();
    switch (storage) {
    case Storage::Generations:
        addGenerations(*data, backups);
        break;
    case Storage::Groups:
        addGroups(*data, backups);
        break;
    case Storage::Shares:
        addShares(*data, backups);
        break;
    case Storage::Failing:
        addFailing(*data, backups);
        break;
    case Storage::ManyFiles:
        addManyFiles(*data, backups);
        break;
    case Storage::Deep:
        addDeep(*data, backups);
        break;
    }
    return data;
}

} // namespace simulator
