// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Enforces the direction of includes, where a folder may include only folders below it, and
// what forms and file dialogs have in common.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path root = TARN_SOURCE_DIR;

using Folders = std::set<std::string>;

/// Folders that may include fewer than those below them in the table, and the one beside `src`.
const std::map<std::string, Folders> narrower{
    {"resources", {}},
    {"api", {"base", "hessian", "transport"}},
    {"transport", {"base", "platform"}},
    {"hessian", {"base"}},
    {"platform", {}},
    {"simulator", {"base", "hessian", "platform", "api"}},
};

/// The folders of `src` in the order of the table in README.md, topmost first.
std::vector<std::string> foldersOfReadme() {
    static const std::regex row(R"(^\| `src/(\w+)/` \|)");
    std::vector<std::string> folders;
    std::ifstream in(root / "README.md");
    for (std::string line; std::getline(in, line);) {
        std::smatch match;
        if (std::regex_search(line, match, row))
            folders.push_back(match[1]);
    }
    return folders;
}

/// The project folders that each folder may include besides itself.
const std::map<std::string, Folders> allowed = [] {
    std::map<std::string, Folders> table;
    auto folders = foldersOfReadme();
    std::reverse(folders.begin(), folders.end());
    Folders below;
    for (const std::string& folder : folders) {
        table[folder] = below;
        below.insert(folder);
    }
    for (const auto& [folder, others] : narrower)
        table[folder] = others;
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
        // The expression alone takes seconds for all lines.
        if (line.find("include") == std::string::npos)
            continue;
        std::smatch match;
        if (std::regex_search(line, match, pattern))
            found.push_back({file, folderOf(file), match[2]});
    }
    return found;
}

bool isSource(const fs::path& file) {
    return file.extension() == ".h" || file.extension() == ".cpp";
}

std::vector<Include> includesBelow(std::initializer_list<const char*> tops) {
    std::vector<Include> all;
    for (const char* top : tops)
        for (const auto& entry : fs::recursive_directory_iterator(root / top))
            if (entry.is_regular_file() && isSource(entry.path()))
                for (auto& include : includesOf(entry.path()))
                    all.push_back(std::move(include));
    return all;
}

std::vector<Include> allIncludes() {
    return includesBelow({"src", "simulator"});
}

/// The first component of an include's path if it is a project folder.
std::string ourFolder(const std::string& target) {
    const std::string first = target.substr(0, target.find('/'));
    return target.find('/') != std::string::npos && allowed.count(first) ? first : std::string();
}

TEST(Layout, TheTableOfTheReadmeHasEachFolderOnce) {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(root / "src"))
        if (entry.is_directory())
            found.push_back(entry.path().filename().string());
    EXPECT_THAT(foldersOfReadme(), testing::UnorderedElementsAreArray(found));
}

TEST(Layout, AFolderWithANarrowerRuleIncludesOnlyThoseBelowIt) {
    const auto folders = foldersOfReadme();
    const auto place = [&](const std::string& folder) {
        return std::find(folders.begin(), folders.end(), folder);
    };
    for (const auto& [folder, others] : narrower)
        for (const std::string& other : others) {
            EXPECT_NE(place(other), folders.end()) << other;
            EXPECT_TRUE(place(folder) == folders.end() || place(folder) < place(other))
                << folder << " is below " << other;
        }
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

TEST(Layout, TestsShareOnlyWhatIsInSupport) {
    static const std::regex pattern(R"(^tests/(\w+)/)");
    for (const Include& include : includesBelow({"tests"})) {
        const std::string own = fs::relative(include.file, root / "tests").begin()->string();
        std::smatch folder;
        if (std::regex_search(include.target, folder, pattern)) {
            EXPECT_THAT(folder[1].str(), testing::AnyOf(own, "support"))
                << include.file << " includes " << include.target;
        }
    }
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

TEST(Layout, AFieldThatHidesItsTextIsASecretField) {
    // Qt announces to screen readers what is typed into any other.
    static const std::string widget = "<widget class=\"";
    int found = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root / "src")) {
        if (entry.path().extension() != ".ui")
            continue;
        std::ifstream in(entry.path());
        const std::string text(std::istreambuf_iterator<char>(in), {});
        for (auto at = text.find("\"echoMode\""); at != std::string::npos;
             at = text.find("\"echoMode\"", at + 1)) {
            ++found;
            const auto begin = text.rfind(widget, at) + widget.size();
            EXPECT_EQ(text.substr(begin, text.find('"', begin) - begin), "ui::SecretField")
                << entry.path();
        }
    }
    EXPECT_GE(found, 5);
}

TEST(Layout, AnIconIsNamedWithItsSuffix) {
    // Without one Qt loads the MIME database, which takes a fifth of the program's start.
    static const std::regex bare(R"((<normaloff>:/\w+|QStringLiteral\(":/(button|icons))/\w+["<])");
    static const std::regex named(
        R"((<normaloff>:/\w+|QStringLiteral\(":/(button|icons))/\w+\.png["<])");
    int found = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root / "src")) {
        if (!isSource(entry.path()) && entry.path().extension() != ".ui")
            continue;
        std::ifstream in(entry.path());
        for (std::string line; std::getline(in, line);) {
            if (line.find(":/") == std::string::npos)
                continue;
            EXPECT_FALSE(std::regex_search(line, bare)) << entry.path() << ": " << line;
            found += std::regex_search(line, named);
        }
    }
    EXPECT_GT(found, 50);
}

} // namespace
