// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/share_mappings.h"

#include <algorithm>
#include <cstdio>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace wizards {

namespace {

constexpr char separator = '\\';
constexpr std::string_view notInNames = "\"*/:<>?\\|";
constexpr std::string_view nameOfNameless = ".data.";

/// Makes names unique: duplicates get as many number suffixes as necessary, "C", "C_0001",
/// "C_0001_0002".
class DirectoryNames {
public:
    std::string unusedFor(const std::string& wanted) {
        // Names rejected on the way to the last one are still in use.
        auto& [name, counter] = last_.try_emplace(wanted, Numbered{wanted, 1}).first->second;
        for (; used_.contains(name); ++counter) {
            char suffix[32];
            std::snprintf(suffix, sizeof suffix, "_%04ld", counter);
            name += suffix;
        }
        used_.insert(name);
        return name;
    }

private:
    struct Numbered {
        std::string name;
        long counter; ///< next number
    };

    std::unordered_set<std::string> used_;
    std::unordered_map<std::string, Numbered> last_; ///< by the requested name
};

} // namespace

std::int32_t truncateLevelOf(std::string_view truncatablePath) {
    return static_cast<std::int32_t>(std::ranges::count(truncatablePath, separator));
}

std::string directoryNameOf(std::string_view shareName) {
    std::string name(shareName);
    std::erase_if(
        name, [](char character) { return notInNames.find(character) != std::string_view::npos; });
    return name.empty() ? std::string(nameOfNameless) : name;
}

ShareMappings shareMappings(const std::vector<hessiancln::selected_shares>& shares,
                            const std::string& destination) {
    if (shares.size() == 1) {
        const auto& share = shares.front();
        const std::int32_t level = truncateLevelOf(share.truncatable_path);
        return {{{share.share_name, destination, level}}, level};
    }
    ShareMappings result;
    DirectoryNames names;
    for (const auto& share : shares) {
        const std::string name = names.unusedFor(directoryNameOf(share.share_name));
        std::string directory = destination;
        directory += separator;
        directory += name;
        result.mappings.push_back({share.share_name, std::move(directory), 0});
    }
    return result;
}

} // namespace wizards
