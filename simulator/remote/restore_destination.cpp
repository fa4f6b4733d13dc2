// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/remote/restore_destination.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <utility>

#include "simulator/objects/failures.h"
#include "simulator/world/names.h"

namespace simulator {
namespace {

using hessiancln::selected_shares;
using hessiancln::share_mapping;

void keepCommon(std::vector<std::string>& folders, const std::vector<std::string>& others) {
    const auto end =
        std::mismatch(folders.begin(), folders.end(), others.begin(), others.end()).first;
    folders.erase(end, folders.end());
}

std::ptrdiff_t levelsOf(const selected_shares& share) {
    const std::string& path = share.truncatable_path;
    return std::count(path.begin(), path.end(), '\\');
}

void checkLevel(const std::vector<selected_shares>& shares, const share_mapping& mapping,
                std::int32_t truncateLevel) {
    const std::ptrdiff_t most = shares.size() == 1 ? levelsOf(shares.front()) : 0;
    if (mapping.truncate_level < 0 || mapping.truncate_level > most)
        throw Violation(std::to_string(mapping.truncate_level) + " levels of the share '" +
                        mapping.source_share + "' can't be dropped");
    if (mapping.truncate_level != truncateLevel)
        throw Violation("the share '" + mapping.source_share + "' drops " +
                        std::to_string(mapping.truncate_level) + " levels, and the restore " +
                        std::to_string(truncateLevel));
}

bool beginsWith(const std::string& path, const std::string& drive) {
    if (!agreeWithoutCase(path.substr(0, drive.size()), drive))
        return false;
    const std::string rest = path.substr(drive.size());
    return drive == "/" || rest.empty() || rest.front() == '\\' || rest.front() == '/';
}

} // namespace

std::vector<selected_shares> sharesOf(const std::vector<StoredPlace>& places) {
    std::vector<std::pair<std::string, std::vector<std::string>>> found;
    for (const StoredPlace& place : places) {
        const auto known = std::find_if(found.begin(), found.end(),
                                        [&](const auto& one) { return one.first == place.share; });
        if (known == found.end())
            found.emplace_back(place.share, place.folders);
        else
            keepCommon(known->second, place.folders);
    }
    std::vector<selected_shares> shares;
    for (const auto& [name, folders] : found) {
        std::string path = name;
        for (const std::string& folder : folders)
            path += "\\" + folder;
        shares.push_back({name, std::move(path)});
    }
    return shares;
}

void checkMappings(const std::vector<selected_shares>& shares,
                   const std::vector<share_mapping>& mappings, std::int32_t truncateLevel) {
    if (mappings.empty() && truncateLevel != 0)
        throw Violation("a restore to where it came from drops no levels");
    std::set<std::string> mapped, paths;
    for (const share_mapping& mapping : mappings) {
        const std::string& name = mapping.source_share;
        if (std::none_of(shares.begin(), shares.end(),
                         [&](const auto& share) { return share.share_name == name; }))
            throw Violation("nothing of the share '" + name + "' is restored");
        if (!mapped.insert(name).second)
            throw Violation("the share '" + name + "' is mapped twice");
        if (mapping.destination_path.empty())
            throw Violation("the share '" + name + "' goes to no path");
        if (!paths.insert(mapping.destination_path).second)
            throw Violation("two shares go to '" + mapping.destination_path + "'");
        checkLevel(shares, mapping, truncateLevel);
    }
    if (!mappings.empty() && mapped.size() != shares.size())
        throw Violation("only " + std::to_string(mapped.size()) + " of " +
                        std::to_string(shares.size()) + " shares are mapped");
}

void checkDestination(const SourceComputer& computer, const std::string& path) {
    const auto drives = computer.folders.list("");
    if (std::none_of(drives.begin(), drives.end(),
                     [&path](const auto& drive) { return beginsWith(path, drive.name); }))
        throw Refusal("There is no path '" + path + "' on the computer '" + computer.name + "'.");
}

void checkReason(std::int32_t code) {
    constexpr std::array<std::int32_t, 9> reasons{1, 2, 3, 4, 5, 6, 8, 9, 11};
    if (std::find(reasons.begin(), reasons.end(), code) == reasons.end())
        throw Violation("there is no reason " + std::to_string(code) + " to restore");
}

} // namespace simulator
