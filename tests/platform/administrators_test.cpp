// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/administrators.h"

#include <cerrno>
#include <map>

#include <gmock/gmock.h>
#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include "platform/posix/account_database.h"

namespace {

using platform::isAdministrator;

class FewAccounts final : public platform::AccountDatabase {
public:
    std::map<std::string, platform::Account> accounts{
        {"root", {0, 0}}, {"toor", {0, 0}}, {"ada", {1000, 1000}}, {"eve", {1001, 10}}};
    std::map<std::string, platform::Group> groups{{"users", {1000, {"ada"}}}};
    std::vector<std::string> asked;

    std::optional<platform::Account> account(const std::string& name) override {
        asked.push_back(name);
        const auto found = accounts.find(name);
        return found == accounts.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<platform::Group> group(const std::string& name) override {
        const auto found = groups.find(name);
        return found == groups.end() ? std::nullopt : std::optional(found->second);
    }
};

TEST(Administrators, RootIsOneUnderAnyName) {
    FewAccounts accounts;
    EXPECT_TRUE(isAdministrator("root", accounts));
    EXPECT_TRUE(isAdministrator("toor", accounts));
}

TEST(Administrators, AreTheMembersOfThreeGroups) {
    for (const char* name : {"sudo", "wheel", "admin"}) {
        FewAccounts accounts;
        accounts.groups[name] = {27, {"bob", "ada"}};
        EXPECT_TRUE(isAdministrator("ada", accounts)) << name;
        EXPECT_FALSE(isAdministrator("eve", accounts)) << name;
    }
}

TEST(Administrators, AreNotTheMembersOfOtherGroups) {
    FewAccounts accounts;
    EXPECT_FALSE(isAdministrator("ada", accounts));
    accounts.groups["administrators"] = {28, {"ada"}};
    EXPECT_FALSE(isAdministrator("ada", accounts));
}

TEST(Administrators, HaveSuchAGroupAsTheirPrimaryOne) {
    FewAccounts accounts;
    accounts.groups["wheel"] = {10, {}};
    EXPECT_TRUE(isAdministrator("eve", accounts));
    EXPECT_FALSE(isAdministrator("ada", accounts));
}

TEST(Administrators, DifferByCaseAndWhole) {
    FewAccounts accounts;
    accounts.accounts["Ada"] = {1002, 1002};
    accounts.accounts["ad"] = {1003, 1003};
    accounts.groups["sudo"] = {27, {"ada"}};
    EXPECT_FALSE(isAdministrator("Ada", accounts));
    EXPECT_FALSE(isAdministrator("ad", accounts));
}

TEST(Administrators, NobodyWithoutAnAccountIsOne) {
    FewAccounts accounts;
    accounts.groups["sudo"] = {27, {"gone"}};
    EXPECT_FALSE(isAdministrator("gone", accounts));
}

TEST(Administrators, TheEmptyNameIsNoneAndNobodyIsAsked) {
    FewAccounts accounts;
    accounts.accounts[""] = {0, 0};
    EXPECT_FALSE(isAdministrator("", accounts));
    EXPECT_THAT(accounts.asked, testing::IsEmpty());
    EXPECT_FALSE(isAdministrator(""));
}

TEST(Administrators, ANameWithAZeroInsideIsNone) {
    FewAccounts accounts;
    const std::string name("root\0x", 6);
    accounts.accounts[name] = {0, 0};
    EXPECT_FALSE(isAdministrator(name, accounts));
    EXPECT_FALSE(isAdministrator(name));
}

TEST(Administrators, OfThisSystemHoldRootAndNoStranger) {
    ASSERT_NE(getpwnam("root"), nullptr);
    EXPECT_TRUE(isAdministrator("root"));
    EXPECT_FALSE(isAdministrator("no such account \xF0\x9F\x8C\xB2"));
}

TEST(SystemAccounts, AreTheSystemsOwn) {
    const passwd* here = getpwuid(geteuid());
    ASSERT_NE(here, nullptr);
    const platform::Account expected{here->pw_uid, here->pw_gid};
    const auto account = platform::systemAccounts().account(here->pw_name);
    ASSERT_TRUE(account);
    EXPECT_EQ(account->id, expected.id);
    EXPECT_EQ(account->primaryGroup, expected.primaryGroup);
}

TEST(SystemAccounts, KnowTheMembersOfEveryGroup) {
    std::map<std::string, std::vector<std::string>> expected;
    setgrent();
    while (const group* entry = getgrent()) {
        auto& members = expected[entry->gr_name];
        for (char** member = entry->gr_mem; *member; ++member)
            members.emplace_back(*member);
    }
    endgrent();
    ASSERT_FALSE(expected.empty());
    for (const auto& [name, members] : expected) {
        const auto group = platform::systemAccounts().group(name);
        ASSERT_TRUE(group) << name;
        EXPECT_EQ(group->members, members) << name;
    }
    EXPECT_FALSE(platform::systemAccounts().group("no such group"));
}

TEST(ReadWithRoom, GrowsTheRoomUntilTheTextsFit) {
    std::vector<char> texts;
    std::vector<std::size_t> rooms;
    const int failure = platform::readWithRoom(texts, [&] {
        rooms.push_back(texts.size());
        return texts.size() < 100000 ? ERANGE : 0;
    });
    EXPECT_EQ(failure, 0);
    EXPECT_THAT(rooms, testing::ElementsAre(4096, 16384, 65536, 262144));
}

TEST(ReadWithRoom, GivesUpOnADatabaseThatIsNeverContent) {
    std::vector<char> texts;
    EXPECT_EQ(platform::readWithRoom(texts, [] { return ERANGE; }), ERANGE);
    EXPECT_EQ(texts.size(), std::size_t{16 * 1024 * 1024});
}

TEST(ReadWithRoom, ReadsAgainAfterAnInterruption) {
    std::vector<char> texts;
    int calls = 0;
    EXPECT_EQ(platform::readWithRoom(texts, [&] { return ++calls < 3 ? EINTR : 0; }), 0);
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(texts.size(), std::size_t{4096});
}

TEST(ReadWithRoom, PassesOnAnyOtherFailure) {
    std::vector<char> texts;
    EXPECT_EQ(platform::readWithRoom(texts, [] { return EIO; }), EIO);
}

} // namespace
