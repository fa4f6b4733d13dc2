// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/world/sources.h"
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
namespace sources = simulator::sources;

namespace {

/// Creation of sets, and changes to their content.
class SetCreation : public AgentTest {
protected:
    void SetUp() override { open({}); }
    void TearDown() override { EXPECT_THAT(agent_->violations(), IsEmpty()); }

    void open(simulator::Options options) {
        start(std::move(options));
        logIn();
        browser_ = get("createBrowser", raw::int32(0));
        agent_->clearCallLog();
    }

    std::string newSet(std::string_view computer = "My Computer") {
        return getFrom(browser_, "createBackupSet", raw::text(computer));
    }
    std::string newItem(std::string_view path, std::string_view computer = "My Computer") {
        return getFrom(browser_, "createInclusionItem",
                       raw::text(computer) + raw::text(path) + raw::int32(9999));
    }
    std::string setItems(const std::string& set, std::initializer_list<std::string> items) {
        std::string list = "V";
        for (const std::string& item : items)
            list += as("BackupSetItem", item);
        return callOn(set, "setItems", list + "z");
    }
    std::string add(const std::string& set) { return call("addBackupSet", as("BackupSet", set)); }
    std::string named(const std::string& set, std::string_view name) {
        return callOn(set, "setName", raw::text(name));
    }
    std::size_t setCount() {
        std::size_t count = 0;
        agent_->withWorld([&count](World& world) { count = world.sets().size(); });
        return count;
    }

    std::string browser_;
};

TEST_F(SetCreation, StartsWithNothing) {
    const std::string set = newSet();
    EXPECT_EQ(callOn(set, "getComputerName"), raw::reply(raw::text("My Computer")));
    EXPECT_EQ(callOn(set, "getDataType"), raw::reply(raw::int32(0)));
    EXPECT_EQ(callOn(set, "getName"), raw::reply(raw::text("")));
    EXPECT_EQ(callOn(set, "items"), raw::reply(raw::list({})));
    EXPECT_EQ(callOn(set, "getSchedule"), raw::reply("N"));
    EXPECT_EQ(callOn(set, "getRetentionRule"), raw::reply("N"));
    EXPECT_EQ(callOn(set, "isUsingLocalStorage"), raw::reply("F"));
}

TEST_F(SetCreation, ChangesNoListBeforeTheSetIsAdded) {
    const std::size_t before = setCount();
    const std::string set = newSet();
    named(set, "New");
    setItems(set, {newItem("D:\\Tax")});
    EXPECT_EQ(setCount(), before);
    EXPECT_EQ(add(set), raw::reply());
    EXPECT_EQ(setCount(), before + 1);
    EXPECT_EQ(callOn(set, "getID"), raw::reply(raw::int32(static_cast<std::int32_t>(before) + 1)));
    EXPECT_THAT(call("backup_sets_info"), HasSubstr(raw::member("name", raw::text("New")) +
                                                    raw::member("data_type", raw::int32(0))));
}

TEST_F(SetCreation, ShowsTheComputerAsListsDo) {
    const std::string set = newSet("filesrv");
    EXPECT_EQ(callOn(set, "getComputerName"),
              raw::reply(raw::text("Microsoft Windows Network\\OFFICE\\FILESRV")));
    named(set, "New");
    add(set);
    EXPECT_THAT(call("backup_sets_info"), HasSubstr(raw::member("computer", raw::text("FILESRV")) +
                                                    raw::member("name", raw::text("New"))));
}

TEST_F(SetCreation, RefusesAnUnknownComputer) {
    EXPECT_EQ(refusalOf(callOn(browser_, "createBackupSet", raw::text("nowhere"))),
              "The computer 'nowhere' can't be reached.");
}

TEST_F(SetCreation, RefusesToAddASetTwice) {
    const std::string set = newSet();
    EXPECT_EQ(refusalOf(add(set)), "A backup set needs a name.");
    named(set, "documents");
    EXPECT_EQ(refusalOf(add(set)), "There is a backup set 'documents' already.");
    named(set, "New");
    EXPECT_EQ(add(set), raw::reply());
    EXPECT_EQ(refusalOf(add(set)), "The backup set is already there.");
}

TEST_F(SetCreation, GivesASetTheClassOfItsComputer) {
    const std::string base = raw::text("BackupSet");
    EXPECT_EQ(callOn(newSet("FILESRV"), "types"),
              raw::reply(raw::list({base, raw::text("Win32FS_BackupSet")})));
    EXPECT_EQ(callOn(newSet("nas01"), "types"), raw::reply(raw::list({base})));
    EXPECT_EQ(callOn(newSet(), "setUseVSS", "T"), raw::reply());
    EXPECT_EQ(agent_->callTexts().back(), "Win32FS_BackupSet.setUseVSS(true)");
}

TEST_F(SetCreation, GivesASetTheLoginOfTheBrowser) {
    const std::string login = getFrom(browser_, "neededCredentials", raw::text("nas01"));
    callOn(login, "setCredentials", raw::text("anna") + raw::text(sources::password));
    callOn(browser_, "setCurrentCredentials", as("BackupSetCredentials", login));
    const std::string set = newSet("nas01");
    EXPECT_EQ(callOn(getFrom(set, "getCredentials"), "check", raw::text("nas01")), raw::reply());
    EXPECT_THAT(callOn(getFrom(set, "dataBrowser"), "getSubItems",
                       raw::text("nas01") + raw::text("/\\volume1")),
                HasSubstr(raw::text("photos")));
}

TEST_F(SetCreation, TakesItemsOfEachKind) {
    const std::string set = newSet();
    const std::string out = getFrom(browser_, "createExclusionItem",
                                    raw::text("My Computer") + raw::text("D:\\Mail\\old"));
    const std::string only =
        getFrom(browser_, "createRegexExclusion",
                raw::text("My Computer") + raw::text("D:") + raw::text(".*\\.(pst)"));
    callOn(only, "setInclusion", "T");
    EXPECT_EQ(setItems(set, {newItem("D:\\Mail"), out, only}), raw::reply());
    EXPECT_EQ(agent_->callTexts().back(), "BackupSet.setItems([BackupSetItem(D:\\Mail), "
                                          "BackupSetItem(D:\\Mail\\old, excluded), "
                                          "BackupSetItem(D:, only .*\\.(pst))])");
    const auto items = raw::referencesIn(callOn(set, "items"));
    ASSERT_THAT(items, SizeIs(3));
    EXPECT_EQ(callOn(items[2], "getExpression"), raw::reply(raw::text(".*\\.(pst)")));
    EXPECT_EQ(callOn(items[2], "getInclusion"), raw::reply("T"));
}

TEST_F(SetCreation, KeepsItsItemsUntilTheyAreSetAgain) {
    const auto items = raw::referencesIn(callOn(setUrl(4), "items"));
    ASSERT_THAT(items, SizeIs(3));
    callOn(items[2], "setInclusion", "T");
    const auto again = raw::referencesIn(callOn(setUrl(4), "items"));
    EXPECT_EQ(callOn(again[2], "getInclusion"), raw::reply("F"));
}

TEST_F(SetCreation, RefusesItemsOfAnotherComputer) {
    EXPECT_EQ(refusalOf(setItems(newSet(), {newItem("D:"), newItem("/\\volume1", "nas01")})),
              "The item '/\\volume1' is of the computer 'Unix Hosts\\nas01', and not of "
              "'My Computer'.");
    EXPECT_EQ(setItems(newSet("nas01"), {newItem("/\\volume1", "NAS01")}), raw::reply());
}

TEST_F(SetCreation, RefusesItemsThatWereReleased) {
    const std::string set = newSet();
    const std::string item = newItem("D:");
    callOn(item, "Release");
    EXPECT_THAT(setItems(set, {item}), HasSubstr("the object was released"));
    EXPECT_THAT(agent_->violations(), ElementsAre(HasSubstr("the object was released")));
    open({}); // starts afresh, without that violation
}

TEST_F(SetCreation, LeavesTheLoginOfASetAloneUntilItIsSet) {
    const std::string set = setUrl(1);
    const std::string login = getFrom(set, "getCredentials");
    callOn(login, "setUsingClientCredentials", "F");
    EXPECT_EQ(callOn(getFrom(set, "getCredentials"), "isUsingClientCredentials"), raw::reply("T"));
    EXPECT_EQ(callOn(set, "setCredentials", as("BackupSetCredentials", login)), raw::reply());
    EXPECT_EQ(callOn(getFrom(set, "getCredentials"), "isUsingClientCredentials"), raw::reply("F"));
}

TEST_F(SetCreation, NeedsAPathForLocalStorage) {
    const std::string set = newSet();
    for (const char* const setter : {"setUsingLocalStorage", "setUsingLocalTransmissionCache"}) {
        EXPECT_EQ(callOn(set, setter, "F"), raw::reply());
        EXPECT_EQ(refusalOf(callOn(set, setter, "T")), "The local storage needs a path.");
    }
    EXPECT_EQ(callOn(set, "setLocalStoragePath", raw::text("E:\\Copy\\")), raw::reply());
    EXPECT_EQ(callOn(set, "setUsingLocalStorage", "T"), raw::reply());
    EXPECT_EQ(callOn(set, "setUsingLocalTransmissionCache", "T"), raw::reply());
    EXPECT_EQ(callOn(set, "getLocalStoragePath"), raw::reply(raw::text("E:\\Copy\\")));
    EXPECT_EQ(callOn(set, "isUsingLocalStorage"), raw::reply("T"));
    EXPECT_EQ(callOn(set, "isUsingLocalTransmissionCache"), raw::reply("T"));
}

TEST_F(SetCreation, LeavesNothingBehindThatWasReleased) {
    const std::string set = newSet();
    const std::string item = newItem("D:");
    const std::string login = getFrom(browser_, "getCurrentCredentials");
    EXPECT_THAT(agent_->liveObjects(),
                ElementsAre("ClientConnection " + root_, "DataSourceBrowser " + browser_,
                            "BackupSet(0) " + set, "BackupSetItem(D:) " + item,
                            "BackupSetCredentials(guest) " + login));
    for (const std::string& url : {set, item, login, browser_, root_})
        callOn(url, "Release");
    EXPECT_THAT(agent_->liveObjects(), IsEmpty());
}

TEST_F(SetCreation, FindsSetsOfOtherComputersAndKinds) {
    EXPECT_EQ(callOn(setUrl(1), "getComputerName"), raw::reply(raw::text("My Computer")));
    EXPECT_EQ(callOn(setUrl(7), "getDataType"), raw::reply(raw::int32(1)));
    open({.scenario = simulator::Scenario::Unix});
    EXPECT_EQ(callOn(setUrl(1), "types"), raw::reply(raw::list({raw::text("BackupSet")})));
    const std::string login = getFrom(setUrl(3), "getCredentials");
    EXPECT_EQ(callOn(login, "getSudoUser"), raw::reply(raw::text("root")));
    EXPECT_EQ(callOn(login, "check", raw::text(sources::webServer)), raw::reply());
}

/// The agent's settings requested by wizards, and codes sent by mail.
class Settings : public SetCreation {
protected:
    std::string configuration() { return get("getConfigurationManager"); }
    static std::string codeAndMode(std::string_view code, std::int32_t mode) {
        return raw::text(code) + raw::int32(mode);
    }
    static std::string row(std::string_view user, std::string_view domain,
                           std::string_view address) {
        return raw::record("user_email", raw::member("username", raw::text(user)) +
                                             raw::member("domain", raw::text(domain)) +
                                             raw::member("email", raw::text(address)));
    }
};

TEST_F(Settings, ReportsToolsAndNumbers) {
    const std::string settings = configuration();
    EXPECT_EQ(callOn(settings, "isTarnToolEnabled", raw::int32(8)), raw::reply("T"));
    EXPECT_EQ(callOn(settings, "isTarnToolEnabled", raw::int32(7)), raw::reply("F"));
    EXPECT_EQ(callOn(settings, "getClientNumber"), raw::reply(raw::text("A4C100931700")));
    EXPECT_EQ(callOn(settings, "getClientOSType"), raw::reply(raw::int32(0)));
    const std::string key = raw::text("ScheduleMiss");
    EXPECT_EQ(callOn(settings, "getAdvancedConfigNumber", key), raw::reply(raw::int32(4)));
    EXPECT_EQ(callOn(settings, "setAdvancedConfigNumber", key + raw::int32(16)), raw::reply());
    EXPECT_EQ(callOn(settings, "getAdvancedConfigNumber", key), raw::reply(raw::int32(16)));
    EXPECT_EQ(refusalOf(callOn(settings, "setAdvancedConfigNumber", key + raw::int32(-1))),
              "The setting 'ScheduleMiss' can't be -1.");
    EXPECT_EQ(refusalOf(callOn(settings, "getAdvancedConfigNumber", raw::text("Other"))),
              "There is no setting 'Other'.");
}

TEST_F(Settings, FollowsTheOptions) {
    open({.clientType = 14, .osType = 2, .disabledTools = {8}, .twoFactorCode = "007"});
    EXPECT_EQ(call("getTarnClientType"), raw::reply(raw::int32(14)));
    const std::string settings = configuration();
    EXPECT_EQ(callOn(settings, "isTarnToolEnabled", raw::int32(8)), raw::reply("F"));
    EXPECT_EQ(callOn(settings, "getClientOSType"), raw::reply(raw::int32(2)));
    EXPECT_EQ(callOn(browser_, "expandToFullPath", raw::text("My Computer")),
              raw::reply(raw::text("Tarn-Client Computer")));
    EXPECT_EQ(callOn(get("getTFAManager"), "is2FAEnabled"), raw::reply("T"));
}

TEST_F(Settings, TakesTheCodeOnce) {
    open({.twoFactorCode = "007"});
    const std::string manager = get("getTFAManager");
    EXPECT_EQ(refusalOf(callOn(manager, "validateCode", codeAndMode("007", 2))),
              "No authentication code was asked for.");
    EXPECT_EQ(callOn(manager, "requestCode", raw::int32(2)),
              raw::reply(raw::text("administrator@example.net")));
    EXPECT_EQ(refusalOf(callOn(manager, "validateCode", codeAndMode("7", 2))),
              "The authentication code is wrong.");
    EXPECT_EQ(refusalOf(callOn(manager, "validateCode", codeAndMode("007", 1))),
              "No authentication code was asked for.");
    EXPECT_EQ(callOn(manager, "validateCode", codeAndMode("007", 2)), raw::reply());
    EXPECT_EQ(refusalOf(callOn(manager, "validateCode", codeAndMode("007", 2))),
              "No authentication code was asked for.");
}

TEST_F(Settings, SendsTheCodeToTheAddressOfTheUser) {
    open({.twoFactorCode = "007"});
    const std::string manager = get("getTFAManager");
    agent_->withWorld([](World& world) { world.userEmails = {{"Guest", "", "g@example.net"}}; });
    EXPECT_EQ(callOn(manager, "requestCode", raw::int32(1)),
              raw::reply(raw::text("g@example.net")));
    EXPECT_EQ(refusalOf(callOn(manager, "requestCode", raw::int32(3))),
              "There are no codes of the mode 3.");
}

TEST_F(Settings, HasNoCodesIfTheyAreSwitchedOff) {
    EXPECT_EQ(refusalOf(callOn(get("getTFAManager"), "requestCode", raw::int32(1))),
              "Two-factor authentication is switched off.");
}

TEST_F(Settings, TakesTheListOfAddressesBehindACode) {
    open({.twoFactorCode = "007"});
    const std::string manager = get("getTFAManager");
    const std::string rows =
        raw::list({row("anna", "OFFICE", "a@b.net"), row("bo", "", "b@b.net")});
    EXPECT_EQ(refusalOf(callOn(manager, "setUserEmails", rows)),
              "The list of addresses needs an authentication code.");
    callOn(manager, "requestCode", raw::int32(1));
    callOn(manager, "validateCode", codeAndMode("007", 1));
    EXPECT_EQ(callOn(manager, "setUserEmails", rows), raw::reply());
    EXPECT_EQ(callOn(manager, "getUserEmails"), raw::reply(rows));
    EXPECT_EQ(refusalOf(callOn(manager, "setUserEmails", rows)),
              "The list of addresses needs an authentication code.");
}

TEST_F(Settings, RefusesAListOfAddressesThatMakesNoSense) {
    const std::string manager = get("getTFAManager");
    const auto refusal = [&](std::initializer_list<std::string> rows) {
        return refusalOf(callOn(manager, "setUserEmails", raw::list(rows)));
    };
    EXPECT_EQ(refusal({row("", "", "a@b.net")}), "Each row needs a user and an e-mail address.");
    EXPECT_EQ(refusal({row("anna", "", "")}), "Each row needs a user and an e-mail address.");
    EXPECT_EQ(refusal({row("anna", "O", "a@b.net"), row("ANNA", "o", "b@b.net")}),
              "There are two rows for the user 'ANNA'.");
    EXPECT_EQ(callOn(manager, "setUserEmails", raw::list({})), raw::reply());
}

} // namespace
