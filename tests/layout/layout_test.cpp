// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Enforces the direction of includes: a folder may include only folders below it.

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path root = TARN_SOURCE_DIR;

/// The project folders that each folder may include besides itself.
const std::map<std::string, std::set<std::string>> allowed = [] {
    std::map<std::string, std::set<std::string>> table{
        {"base", {}},
        {"platform", {}},
        {"hessian", {"base"}},
        {"transport", {"base", "platform"}},
        {"api", {"base", "hessian", "transport"}},
    };
    std::set<std::string> below{"base", "platform", "hessian", "transport", "api"};
    for (const char* folder :
         {"resources", "session", "ui", "models", "config", "wizards", "insight", "app"}) {
        table[folder] = below;
        below.insert(folder);
    }
    table["resources"] = {};
    table["simulator"] = {"base", "hessian", "platform", "api"};
    return table;
}();

struct Include {
    fs::path file;
    std::string folder;
    std::string target;
};

/// The project folder of a file, as in "hessian" or "simulator".
std::string folderOf(const fs::path& file) {
    const fs::path relative = fs::relative(file, root);
    auto part = relative.begin();
    return *part == "src" ? (++part)->string() : part->string();
}

std::vector<Include> includesOf(const fs::path& file) {
    static const std::regex pattern(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> found;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        std::smatch match;
        if (std::regex_search(line, match, pattern))
            found.push_back({file, folderOf(file), match[2]});
    }
    return found;
}

bool isSource(const fs::path& file) {
    return file.extension() == ".h" || file.extension() == ".cpp";
}

std::vector<Include> allIncludes() {
    std::vector<Include> all;
    for (const char* top : {"src", "simulator"})
        for (const auto& entry : fs::recursive_directory_iterator(root / top))
            if (entry.is_regular_file() && isSource(entry.path()))
                for (auto& include : includesOf(entry.path()))
                    all.push_back(std::move(include));
    return all;
}

/// The first component of an include's path if it is a project folder.
std::string ourFolder(const std::string& target) {
    const std::string first = target.substr(0, target.find('/'));
    return target.find('/') != std::string::npos && allowed.count(first) ? first : std::string();
}

TEST(Layout, EveryFolderIsInTheTable) {
    for (const auto& entry : fs::directory_iterator(root / "src"))
        if (entry.is_directory())
            EXPECT_TRUE(allowed.count(entry.path().filename().string())) << entry.path();
}

TEST(Layout, NoFolderIncludesOneAboveIt) {
    const auto includes = allIncludes();
    ASSERT_GT(includes.size(), 100u);
    for (const Include& include : includes) {
        const std::string target = ourFolder(include.target);
        if (target.empty() || target == include.folder)
            continue;
        EXPECT_TRUE(allowed.at(include.folder).count(target))
            << include.file << " includes " << include.target;
    }
}

TEST(Layout, NothingOfOursIncludesTests) {
    for (const Include& include : allIncludes())
        EXPECT_NE(include.target.substr(0, 6), "tests/") << include.file;
}

TEST(Layout, TheWireKnowsNoQt) {
    static const std::regex qt(R"(^Q([A-Z]|t))");
    for (const Include& include : allIncludes())
        for (const char* folder : {"base", "hessian", "platform", "transport", "api", "simulator"})
            if (include.folder == folder) {
                EXPECT_FALSE(std::regex_search(include.target, qt))
                    << include.file << " includes " << include.target;
            }
}

TEST(Layout, HeadersThatOthersIncludeKeepTheNetworkLibraryOut) {
    // A header that needs the network library is included only by sources in its own folder.
    static const std::regex network(R"(^boost/(asio|beast))");
    const auto includes = allIncludes();
    std::set<std::string> heavy;
    for (std::size_t before = 1; before != heavy.size();) {
        before = heavy.size();
        for (const Include& include : includes)
            if (include.file.extension() == ".h" &&
                (std::regex_search(include.target, network) || heavy.count(include.target)))
                heavy.insert(include.folder + "/" + include.file.filename().string());
        if (heavy.empty())
            break;
    }
    for (const Include& include : includes)
        if (heavy.count(include.target)) {
            EXPECT_EQ(ourFolder(include.target), include.folder)
                << include.file << " includes " << include.target;
        }
}

} // namespace
