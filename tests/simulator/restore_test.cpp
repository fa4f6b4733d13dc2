// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/sources.h"
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

constexpr std::int64_t hour = 3'600'000;
const std::string here = raw::text("My Computer");

std::string share(std::string_view name, std::string_view path) {
    return raw::record("selected_shares", raw::member("share_name", raw::text(name)) +
                                              raw::member("truncatable_path", raw::text(path)));
}

std::string mapping(std::string_view share, std::string_view path, std::int32_t level = 0) {
    return raw::record("share_mapping", raw::member("source_share", raw::text(share)) +
                                            raw::member("destination_path", raw::text(path)) +
                                            raw::member("truncate_level", raw::int32(level)));
}

/// A restore from a set with two drives and a share in a group.
class Restore : public AgentTest {
protected:
    void SetUp() override {
        start({});
        agent_->withWorld([](World& world) {
            auto& set = *world.set(1);
            set.stored = std::make_shared<simulator::StoredData>();
            for (const char* const path : {"C:\\Users\\ann\\a.txt", "C:\\Users\\bob\\b.txt",
                                           "D:\\x.txt", "Group\\Team\\c.txt"})
                set.stored->addFile(path, {{9, 10, 100, 50}});
            set.stored->addFolder("Group").isGroup = true;
        });
        logIn();
        set_ = setUrl(1);
        browser_ = as("DataSourceBrowser", getFrom(set_, "dataBrowser"));
        const auto no = raw::int32(0);
        view_ = getFrom(set_, "prepare_restore", no + no + no);
        // C: 1, D: 2, the group 0; Users 3; ann 4, bob 5; Team 6; a.txt 7, b.txt 8.
        for (const std::int64_t id : {-1, 1, 3, 0, 4, 5})
            callOn(view_, "getSubItems", raw::int64(id));
    }

    std::string prepared(std::initializer_list<std::int64_t> ids) {
        std::string list = "V";
        for (const std::int64_t id : ids)
            list += raw::int64(id);
        return getFrom(view_, "prepareRestore", list + "z");
    }
    /// Prepared, with a reason set.
    std::string ready(std::initializer_list<std::int64_t> ids) {
        const std::string url = prepared(ids);
        callOn(url, "setRestoreReason", raw::int32(11));
        return url;
    }
    std::string go(const std::string& ready, const std::string& computer,
                   const std::string& mappings, std::int32_t level = 0) {
        return callOn(ready, "start", browser_ + computer + mappings + raw::int32(level));
    }
    std::string shares(const std::string& ready) { return callOn(ready, "selected_shares"); }

    /// The text of the only violation, without the call before it.
    std::string violation() {
        const auto all = agent_->violations();
        if (all.size() != 1)
            return std::to_string(all.size()) + " violations";
        return all.front().substr(all.front().rfind("): ") + 3);
    }

    std::string set_, browser_, view_;
};

TEST_F(Restore, EndsInTheLogAndLeavesTheFigures) {
    agent_->clearCallLog();
    const std::string ready = prepared({4, 2});
    callOn(ready, "setRestoreReason", raw::int32(1));
    EXPECT_THAT(go(ready, here, raw::list({})), HasSubstr("GenericActivity"));
    EXPECT_THAT(
        agent_->callTexts(),
        ElementsAre("BackupSetRestoreView.prepareRestore([4, 2])",
                    "RestoreActivityInitiator.setRestoreReason(1)",
                    "RestoreActivityInitiator.start(DataSourceBrowser, \"My Computer\", [], "
                    "0)"));
    int files = 0;
    agent_->withWorld([&](World& world) { files = world.set(1)->info.online_file_count; });
    pass(hour);
    call("running_activities");
    agent_->withWorld([&](World& world) {
        const auto row = world.lastActivity(1, hessiancln::ActivityType::Restore);
        EXPECT_EQ(row.file_count, 2);
        EXPECT_EQ(row.data_size, 200);
        EXPECT_EQ(row.errors, 0);
        EXPECT_EQ(row.user, "guest");
        EXPECT_EQ(world.set(1)->info.online_file_count, files);
    });
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Restore, TakesEachReasonAndNoHeading) {
    const std::string ready = prepared({1});
    for (const std::int32_t code : {3, 1, 2, 6, 11, 4, 5, 8, 9})
        EXPECT_EQ(callOn(ready, "setRestoreReason", raw::int32(code)), raw::reply());
    EXPECT_THAT(agent_->violations(), IsEmpty());
    for (const std::int32_t code : {0, 7, 10, 12, 13, -1})
        callOn(ready, "setRestoreReason", raw::int32(code));
    EXPECT_EQ(agent_->violations().size(), 6u);
}

TEST_F(Restore, NeedsAReason) {
    go(prepared({1}), here, raw::list({}));
    EXPECT_EQ(violation(), "a restore needs a reason");
}

TEST_F(Restore, StartsOnce) {
    const std::string once = ready({1});
    go(once, here, raw::list({}));
    go(once, here, raw::list({}));
    EXPECT_EQ(violation(), "it has started already");
}

TEST_F(Restore, MayBeTriedAgainAfterARefusal) {
    const std::string again = ready({2});
    const std::string far = raw::list({mapping("D:", "C:/back/")});
    EXPECT_EQ(refusalOf(go(again, raw::text("nowhere"), far)),
              "The computer 'nowhere' can't be reached.");
    EXPECT_THAT(go(again, here, far), HasSubstr("GenericActivity"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Restore, NeedsABrowser) {
    callOn(ready({1}), "start", "N" + here + raw::list({}) + raw::int32(0));
    EXPECT_EQ(violation(), "a restore needs a browser");
}

TEST_F(Restore, TakesNoBrowserOfAnotherSession) {
    const std::string first = ready({1});
    const std::string other =
        raw::referenceIn(post(raw::call("login", loginArguments("demo", "demo", 1))));
    browser_ = as("DataSourceBrowser", getFrom(other, "createBrowser", raw::int32(0)));
    go(first, here, raw::list({}));
    EXPECT_EQ(violation(), "the browser belongs to another session");
}

TEST_F(Restore, ReportsWhatThePlacesInAShareHaveInCommon) {
    EXPECT_EQ(shares(prepared({7})), raw::reply(raw::list({share("C:", "C:\\Users\\ann")})));
    EXPECT_EQ(shares(prepared({7, 8})), raw::reply(raw::list({share("C:", "C:\\Users")})));
    EXPECT_EQ(shares(prepared({4})), raw::reply(raw::list({share("C:", "C:\\Users")})));
    EXPECT_EQ(shares(prepared({1})), raw::reply(raw::list({share("C:", "C:")})));
    // A group is not a share, and shares are in storage order.
    EXPECT_EQ(shares(prepared({6, 2, 7})),
              raw::reply(raw::list(
                  {share("C:", "C:\\Users\\ann"), share("D:", "D:"), share("Team", "Team")})));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Restore, DropsNoMoreThanMayBeDropped) {
    EXPECT_THAT(go(ready({7}), here, raw::list({mapping("C:", "D:/back/", 2)}), 2),
                HasSubstr("GenericActivity"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
    go(ready({7}), here, raw::list({mapping("C:", "D:/back/", 3)}), 3);
    EXPECT_EQ(violation(), "3 levels of the share 'C:' can't be dropped");
}

TEST_F(Restore, DropsTheSameInBothPlaces) {
    go(ready({7}), here, raw::list({mapping("C:", "D:/back/", 2)}), 1);
    EXPECT_EQ(violation(), "the share 'C:' drops 2 levels, and the restore 1");
}

TEST_F(Restore, DropsNothingOfSeveralShares) {
    go(ready({7, 2}), here,
       raw::list({mapping("C:", "D:/back/\\C", 1), mapping("D:", "D:/back/\\D")}));
    EXPECT_EQ(violation(), "1 levels of the share 'C:' can't be dropped");
}

TEST_F(Restore, DropsNothingWhereItCameFrom) {
    go(ready({7}), here, raw::list({}), 2);
    EXPECT_EQ(violation(), "a restore to where it came from drops no levels");
}

TEST_F(Restore, MapsNoShareThatIsNotChosen) {
    go(ready({7}), here, raw::list({mapping("D:", "D:/back/")}));
    EXPECT_EQ(violation(), "nothing of the share 'D:' is restored");
}

TEST_F(Restore, MapsEachShareOnce) {
    go(ready({7, 2}), here, raw::list({mapping("C:", "D:/a/"), mapping("C:", "D:/b/")}));
    EXPECT_EQ(violation(), "the share 'C:' is mapped twice");
}

TEST_F(Restore, MapsAllShares) {
    go(ready({7, 2}), here, raw::list({mapping("C:", "D:/a/")}));
    EXPECT_EQ(violation(), "only 1 of 2 shares are mapped");
}

TEST_F(Restore, PutsNoTwoSharesInOnePlace) {
    go(ready({7, 2}), here, raw::list({mapping("C:", "D:/a/"), mapping("D:", "D:/a/")}));
    EXPECT_EQ(violation(), "two shares go to 'D:/a/'");
}

TEST_F(Restore, NeedsAPath) {
    go(ready({7}), here, raw::list({mapping("C:", "")}));
    EXPECT_EQ(violation(), "the share 'C:' goes to no path");
}

TEST_F(Restore, RefusesAPathThatIsOnNoDrive) {
    for (const char* const path : {"X:\\back", "back", "/home", "D:back"})
        EXPECT_EQ(refusalOf(go(ready({7}), here, raw::list({mapping("C:", path)}))),
                  "There is no path '" + std::string(path) + "' on the computer 'My Computer'.");
    for (const char* const path : {"d:\\back", "C:", "C:/"})
        EXPECT_THAT(go(ready({7}), here, raw::list({mapping("C:", path)})),
                    HasSubstr("GenericActivity"))
            << path;
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Restore, NeedsToKnowWhereOnAnotherComputer) {
    go(ready({7}), raw::text(simulator::sources::storage), raw::list({}));
    EXPECT_EQ(violation(), "a restore to 'Unix Hosts\\nas01' needs to know where");
}

TEST_F(Restore, LogsInToAnotherComputer) {
    const std::string computer = raw::text(simulator::sources::storage);
    const std::string browser = get("createBrowser", raw::int32(0));
    browser_ = as("DataSourceBrowser", browser);
    const std::string once = ready({7});
    const std::string mappings = raw::list({mapping("C:", "/volume1/back/")});
    EXPECT_NE(refusalOf(go(once, computer, mappings)), "no refusal");
    const std::string login = getFrom(browser, "neededCredentials", computer);
    callOn(login, "setCredentials", raw::text("backup") + raw::text(simulator::sources::password));
    callOn(browser, "setCurrentCredentials", as("BackupSetCredentials", login));
    EXPECT_THAT(go(once, computer, mappings), HasSubstr("GenericActivity"));
    EXPECT_THAT(agent_->violations(), IsEmpty());
}

TEST_F(Restore, EndsWithAnErrorForEachFolderThatCannotBeRead) {
    agent_->withWorld(
        [](World& world) { world.set(1)->stored->addFolder("C:\\Locked").denied = "Keep out."; });
    go(ready({1}), here, raw::list({}));
    pass(hour);
    call("running_activities");
    agent_->withWorld([](World& world) {
        const auto row = world.lastActivity(1, hessiancln::ActivityType::Restore);
        EXPECT_EQ(row.errors, 1);
        EXPECT_EQ(row.completion, hessiancln::ActivityCompletion(simulator::Ending::WithErrors));
    });
}

} // namespace
