// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/storages.h"

#include <algorithm>
#include <set>

#include "simulator/world/scenario.h"
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::Scenario;
using simulator::StoredFilter;
using simulator::StoredNode;
using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

constexpr std::int32_t day = 86'400;

std::vector<std::string> names(const StoredNode& folder) {
    std::vector<std::string> list;
    for (const auto& child : folder.children)
        list.push_back(child->name);
    return list;
}

const StoredNode& at(const StoredNode& top, std::initializer_list<const char*> path) {
    const StoredNode* node = &top;
    for (const char* const name : path) {
        const auto found = std::find_if(node->children.begin(), node->children.end(),
                                        [name](const auto& one) { return one->name == name; });
        if (found == node->children.end())
            throw std::out_of_range(name);
        node = found->get();
    }
    return *node;
}

class Storages : public AgentTest {
protected:
    /// The scenario's only set.
    simulator::BackupSetState& open(Scenario scenario) {
        start({.scenario = scenario});
        simulator::BackupSetState* set = nullptr;
        agent_->withWorld([&](World& world) {
            EXPECT_EQ(world.sets().size(), 1u);
            set = world.sets().at(0).get();
        });
        return *set;
    }
    /// The content of a scenario's only set.
    StoredNode& root(Scenario scenario) { return open(scenario).stored->root(); }

    std::int32_t now() const { return static_cast<std::int32_t>(now_.load() / 1'000); }
};

TEST_F(Storages, HaveSetsWhoseFiguresAreThoseOfTheFiles) {
    start({.scenario = Scenario::Storages});
    agent_->withWorld([](World& world) {
        EXPECT_EQ(world.sets().size(), simulator::allStorages.size());
        for (const auto& set : world.sets()) {
            std::int64_t files = 0, bytes = 0;
            std::vector<const StoredNode*> waiting{&set->stored->root()};
            while (!waiting.empty()) {
                const StoredNode* const node = waiting.back();
                waiting.pop_back();
                files += node->isFile ? 1 : 0;
                for (const auto& one : node->generations)
                    bytes += one.data_size;
                for (const auto& child : node->children)
                    waiting.push_back(child.get());
            }
            EXPECT_EQ(set->info.online_file_count, files) << set->info.name;
            EXPECT_EQ(set->info.online_data_size, bytes) << set->info.name;
            EXPECT_GT(files, 0) << set->info.name;
            EXPECT_EQ(set->stored->root().children.empty(), false);
            EXPECT_EQ(set->info.last_backup, set->sessions.back().end_time);
        }
    });
}

TEST_F(Storages, GenerationsReachBackTwoYears) {
    auto& set = open(Scenario::Generations);
    const auto& diary = at(set.stored->root(), {"C:", "Users", "ann", "Diary.odt"}).generations;
    EXPECT_EQ(diary.front().backup_time, now() - 730 * day);
    EXPECT_EQ(diary.back().backup_time, now() - day);
    EXPECT_EQ(diary.size(), set.sessions.size());
    EXPECT_EQ(set.mostGenerations, static_cast<std::int32_t>(diary.size()));
    EXPECT_EQ(set.leastGenerations, 1);
    EXPECT_EQ(set.sessions.front().end_time, diary.front().backup_time);
    const auto& empty = at(set.stored->root(), {"C:", "Users", "ann", "empty.lock"}).generations;
    EXPECT_EQ(empty.back().data_size, 0);
}

TEST_F(Storages, FilesThatAreGoneCanBeHidden) {
    StoredNode& top = root(Scenario::Generations);
    const StoredNode& attic = at(top, {"C:", "Users", "ann", "Attic"});
    StoredFilter hidden;
    hidden.removedBefore = now();
    EXPECT_TRUE(StoredFilter().shows(attic));
    EXPECT_FALSE(hidden.shows(attic));
    const StoredNode& late = at(top, {"C:", "Users", "ann", "Removed yesterday.txt"});
    EXPECT_FALSE(hidden.shows(late));
    hidden.removedBefore = now() - 10 * day;
    EXPECT_TRUE(hidden.shows(late));
    EXPECT_FALSE(hidden.shows(attic));
}

TEST_F(Storages, GroupsHaveIdsBelowOne) {
    open(Scenario::Groups);
    logIn();
    const auto no = raw::int32(0);
    const std::string view = getFrom(setUrl(1), "prepare_restore", no + no + no);
    const auto listed = [&](std::int64_t id) {
        return callOn(view, "getSubItems", raw::int64(id));
    };
    const auto named = [](std::int64_t id, const char* name) {
        return raw::member("id", raw::int64(id)) + raw::member("name", raw::text(name));
    };
    const std::string top = listed(-1);
    EXPECT_THAT(top, HasSubstr(named(0, "File servers")));
    EXPECT_THAT(top, HasSubstr(named(-2, "Databases")));
    // Entry ids exceed 32 bits.
    constexpr std::int64_t first = (std::int64_t{1} << 32) + 1;
    EXPECT_THAT(top, HasSubstr(named(first, "C:")));
    EXPECT_THAT(listed(0), HasSubstr(named(-4, "Office")));
    EXPECT_THAT(listed(-4), HasSubstr(named(first + 2, "Team")));
    EXPECT_THAT(listed(first), HasSubstr(named(-6, "System state")));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Storages, SharesCollideOrVanish) {
    StoredNode& top = root(Scenario::Shares);
    EXPECT_THAT(names(top), ElementsAre("C:", "C", "C|", "\"*/:<>?\\|", "/", "Büro"));
    logIn();
    const auto no = raw::int32(0);
    const std::string view = getFrom(setUrl(1), "prepare_restore", no + no + no);
    callOn(view, "getSubItems", raw::int64(-1));
    constexpr std::int64_t base = std::int64_t{1} << 32;
    std::string ids = "V";
    for (std::int64_t number = 1; number <= 6; ++number)
        ids += raw::int64(base + number);
    const std::string ready = getFrom(view, "prepareRestore", ids + "z");
    const std::string shares = callOn(ready, "selected_shares");
    for (const std::string_view name : {"C:", "C", "C|", "\"*/:<>?\\|", "/"})
        EXPECT_THAT(shares, HasSubstr(raw::member("share_name", raw::text(name)) +
                                      raw::member("truncatable_path", raw::text(name))));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Storages, WhatFailsSaysWhy) {
    StoredNode& top = root(Scenario::Failing);
    EXPECT_EQ(at(top, {"E:"}).denied, "The stored folder can't be read.");
    EXPECT_EQ(at(top, {"C:", "Locked"}).denied, "The stored folder can't be read.");
    EXPECT_EQ(at(top, {"C:", "Users", "ann", "Locked too"}).denied,
              "The stored folder can't be read.");
    EXPECT_TRUE(at(top, {"Lost servers"}).isGroup);
    EXPECT_EQ(at(top, {"Lost servers"}).denied, "The server doesn't answer.");
    EXPECT_EQ(at(top, {"C:", "Users", "ann", "Unreadable.db"}).denied,
              "The generations can't be read.");
}

TEST_F(Storages, AllOfWhatFailsCanBeDeleted) {
    auto& set = open(Scenario::Failing);
    logIn();
    const auto no = raw::int32(0);
    const std::string view = getFrom(setUrl(1), "prepare_delete", no + no + no + no + no);
    callOn(view, "getSubItems", raw::int64(-1));
    agent_->withWorld([&](World&) {
        std::erase_if(set.stored->root().children,
                      [](const auto& child) { return child->isGroup; });
    });
    constexpr std::int64_t base = std::int64_t{1} << 32;
    callOn(getFrom(view, "prepareDelete", raw::list({raw::int64(base + 1), raw::int64(base + 2)})),
           "start");
    pass(3'600'000);
    call("running_activities");
    agent_->withWorld([&](World&) {
        EXPECT_THAT(names(set.stored->root()), IsEmpty());
        EXPECT_EQ(set.info.online_file_count, 0);
        EXPECT_EQ(set.info.online_data_size, 0);
        EXPECT_EQ(set.leastGenerations, -1);
        EXPECT_EQ(set.mostGenerations, 0);
    });
}

TEST_F(Storages, AFolderHasAHundredThousandFiles) {
    StoredNode& top = root(Scenario::ManyFiles);
    const StoredNode& scans = at(top, {"D:", "Scans"});
    EXPECT_EQ(scans.children.size(), 100'000u);
    std::set<std::string> different;
    for (const auto& file : scans.children)
        different.insert(file->name);
    EXPECT_EQ(different.size(), 100'000u);
    logIn();
    const auto no = raw::int32(0);
    const std::string view = getFrom(setUrl(1), "prepare_restore", no + no + no);
    constexpr std::int64_t base = std::int64_t{1} << 32;
    callOn(view, "getSubItems", raw::int64(-1));
    callOn(view, "getSubItems", raw::int64(base + 1));
    const std::string reply = callOn(view, "getSubItems", raw::int64(base + 2));
    const std::string entry = raw::member("is_file", raw::boolean(true));
    std::size_t count = 0;
    for (std::size_t pos = reply.find(entry); pos != std::string::npos;
         pos = reply.find(entry, pos + 1))
        ++count;
    EXPECT_EQ(count, 100'000u);
}

TEST_F(Storages, AFolderLiesSixtyFoldersDeep) {
    const StoredNode* folder = &at(root(Scenario::Deep), {"C:"});
    int depth = 0;
    while (true) {
        const auto next = std::find_if(folder->children.begin(), folder->children.end(),
                                       [](const auto& child) { return !child->isFile; });
        if (next == folder->children.end())
            break;
        folder = next->get();
        ++depth;
    }
    EXPECT_EQ(depth, 60);
    EXPECT_THAT(names(*folder), ElementsAre("Bottom.txt"));
}

} // namespace
