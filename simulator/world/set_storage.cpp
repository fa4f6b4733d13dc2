// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/set_storage.h"

#include <algorithm>
#include <string>

namespace simulator {
namespace {

std::vector<std::string> storedFolders(const BackupSetState& set) {
    std::vector<std::string> folders;
    for (const ItemState& item : set.items)
        if (item.kind == ItemState::Kind::Inclusion)
            folders.push_back(item.folder);
    for (std::string& folder : folders)
        while (folder.ends_with('\\'))
            folder.pop_back();
    if (folders.empty())
        folders.emplace_back("C:\\Data");
    return folders;
}

StoredAmount allOf(StoredData& data) {
    return amountOf(data.root().children, {});
}

/// Reduces the figure in proportion to the storage; 0 only if nothing is left.
template <class Number>
Number shrunk(Number figure, Number before, Number after) {
    if (figure == before || after == 0)
        return after;
    const double share = static_cast<double>(after) / static_cast<double>(before);
    return std::max<Number>(static_cast<Number>(static_cast<double>(figure) * share), 1);
}

} // namespace

StoredData& storageOf(BackupSetState& set, std::int32_t now) {
    if (set.stored)
        return *set.stored;
    const bool holdsFiles = set.info.online_file_count != 0;
    std::vector<std::int32_t> times;
    std::vector<hessiancln::backup_sessions> older;
    for (const std::int32_t time : holdsFiles ? backupsOfTwoYears(now) : times)
        older.push_back({time - 600, time, 120, 96'000'000, 0});
    set.sessions.insert(set.sessions.begin(), older.begin(), older.end());
    for (const auto& session : set.sessions)
        times.push_back(session.end_time);
    set.stored = inventStorage(holdsFiles ? storedFolders(set) : std::vector<std::string>(), times);
    return *set.stored;
}

void takeFigures(BackupSetState& set) {
    const StoredAmount all = allOf(*set.stored);
    set.info.online_file_count = all.files;
    set.info.online_data_size = all.bytes;
    set.info.tarnsys_compressed_size = all.storedBytes;
    set.leastGenerations = all.files == 0 ? -1 : all.leastGenerations;
    set.mostGenerations = all.mostGenerations;
}

void storeBackup(BackupSetState& set, std::int32_t time) {
    if (set.stored)
        addBackup(*set.stored, storedFolders(set), time);
}

void takeOut(BackupSetState& set, const std::vector<StoredNode::Pointer>& nodes,
             const StoredFilter& filter) {
    const StoredAmount before = allOf(*set.stored);
    erase(*set.stored, nodes, filter);
    const StoredAmount after = allOf(*set.stored);
    auto& info = set.info;
    info.online_file_count = shrunk(info.online_file_count, before.files, after.files);
    info.online_data_size = shrunk(info.online_data_size, before.bytes, after.bytes);
    info.tarnsys_compressed_size =
        shrunk(info.tarnsys_compressed_size, before.storedBytes, after.storedBytes);
    set.leastGenerations = after.files == 0 ? -1 : after.leastGenerations;
    set.mostGenerations = std::min(set.mostGenerations, after.mostGenerations);
}

} // namespace simulator
