// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <utility>

#include "simulator/world/sources.h"
#include "simulator/world/world.h"
#include "tests/simulator/agent_test.h"

using simulator::World;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
namespace sources = simulator::sources;

namespace {

class Browser : public AgentTest {
protected:
    void SetUp() override { open({}); }
    void TearDown() override { EXPECT_THAT(agent_->violations(), IsEmpty()); }

    void open(simulator::Options options) {
        start(std::move(options));
        logIn();
        browser_ = get("createBrowser", raw::int32(0));
        agent_->clearCallLog();
    }

    std::string subItems(std::string_view computer, std::string_view path) {
        return callOn(browser_, "getSubItems", raw::text(computer) + raw::text(path));
    }

    static std::string item(std::int32_t type, std::string_view name, bool isFile,
                            std::int64_t size) {
        return raw::record("browse_item_info", raw::member("type", raw::int32(type)) +
                                                   raw::member("name", raw::text(name)) +
                                                   raw::member("isfile", raw::boolean(isFile)) +
                                                   raw::member("datasize", raw::int64(size)));
    }
    static std::string node(std::string_view name, std::int32_t type) {
        return raw::record("net_item_info", raw::member("name", raw::text(name)) +
                                                raw::member("type", raw::int32(type)));
    }

    std::string browser_;
};

TEST_F(Browser, MakesSetsIfTheRootGivesIt) {
    EXPECT_EQ(callOn(browser_, "types"),
              raw::reply(raw::list(
                  {raw::text("DataSourceBrowser"), raw::text("DataBrowserWithSetCreation")})));
}

TEST_F(Browser, MakesNoSetsIfASetGivesIt) {
    EXPECT_EQ(callOn(getFrom(setUrl(1), "dataBrowser"), "types"),
              raw::reply(raw::list({raw::text("DataSourceBrowser")})));
}

TEST_F(Browser, IsOfOneKind) {
    EXPECT_EQ(refusalOf(call("createBrowser", raw::int32(1))),
              "There are no browsers of the kind 1.");
}

TEST_F(Browser, ListsDrives) {
    EXPECT_EQ(subItems("My Computer", ""),
              raw::reply(raw::list(
                  {item(0, "C:", false, 0), item(0, "D:", false, 0), item(0, "E:", false, 0)})));
    EXPECT_THAT(agent_->callTexts(),
                ElementsAre("DataSourceBrowser.getSubItems(\"My Computer\", \"\")"));
}

TEST_F(Browser, ListsFoldersAndFilesWithTheirSizes) {
    EXPECT_EQ(
        subItems("My Computer", "C:\\Users\\anna\\Documents\\Reports"),
        raw::reply(raw::list({item(1, "2023", false, 0), item(3, "Template.dotx", true, 92'160)})));
}

TEST_F(Browser, ListsOtherKinds) {
    EXPECT_THAT(subItems("My Computer", "C:\\Users\\anna"),
                HasSubstr(item(2, "OneDrive", false, 0)));
    EXPECT_THAT(subItems("My Computer", "D:\\Databases"),
                HasSubstr(item(7, "Inventory", true, 62'914'560)));
    EXPECT_THAT(subItems("My Computer", "C:"),
                HasSubstr(item(9, "pagefile.sys", true, 4'294'967'296)));
}

TEST_F(Browser, LooksPastTheCaseOnWindows) {
    EXPECT_EQ(subItems("My Computer", "c:\\USERS\\Anna\\Music"), raw::reply(raw::list({})));
}

TEST_F(Browser, ReportsTheCaseOnUnix) {
    open({.scenario = simulator::Scenario::Unix});
    EXPECT_EQ(subItems("Tarn-Client Computer", ""),
              raw::reply(raw::list({item(0, "/", false, 0)})));
    EXPECT_THAT(subItems("Tarn-Client Computer", "/\\home\\anna"),
                ::testing::AllOf(HasSubstr(item(1, "Music", false, 0)),
                                 HasSubstr(item(1, "music", false, 0))));
    EXPECT_EQ(refusalOf(subItems("Tarn-Client Computer", "/\\HOME")),
              "There is no folder '/\\HOME'.");
}

TEST_F(Browser, RefusesAClosedFolder) {
    EXPECT_THAT(subItems("My Computer", "C:"),
                HasSubstr(item(1, "System Volume Information", false, 0)));
    EXPECT_EQ(refusalOf(subItems("My Computer", sources::closedFolder)), "Access is denied.");
}

TEST_F(Browser, RefusesToLookIntoAFileOrIntoNothing) {
    EXPECT_EQ(refusalOf(subItems("My Computer", "D:\\Tax\\2022.pdf")),
              "There is no folder 'D:\\Tax\\2022.pdf'.");
    EXPECT_EQ(refusalOf(subItems("My Computer", "Z:")), "There is no folder 'Z:'.");
}

TEST_F(Browser, RefusesAnUnknownComputer) {
    EXPECT_EQ(refusalOf(subItems("my computer", "")),
              "The computer 'my computer' can't be reached.");
}

TEST_F(Browser, ListsAFullFolder) {
    const std::string reply = subItems("My Computer", sources::largeFolder);
    std::size_t count = 0;
    for (std::size_t at = reply.find("browse_item_info"); at != std::string::npos;
         at = reply.find("browse_item_info", at + 1))
        ++count;
    EXPECT_EQ(count, 100'000u);
}

TEST_F(Browser, ListsTheNetwork) {
    EXPECT_EQ(callOn(browser_, "networkDiscovery", raw::text("")),
              raw::reply(raw::list({node("UNIX-SSH", 0), node("Unix Hosts", 2),
                                    node("Microsoft Windows Network", 0), node("NFS", 0),
                                    node("My Computer", 1)})));
    EXPECT_EQ(callOn(browser_, "networkDiscovery", raw::text("Microsoft Windows Network\\OFFICE")),
              raw::reply(raw::list({node("HP-8200", 1), node("FILESRV", 1)})));
}

TEST_F(Browser, RefusesNetworksThatCantBeLookedInto) {
    EXPECT_EQ(refusalOf(callOn(browser_, "networkDiscovery", raw::text(sources::brokenNetwork))),
              "The network path was not found.");
    EXPECT_EQ(refusalOf(callOn(browser_, "networkDiscovery", raw::text("My Computer"))),
              "There is no network 'My Computer'.");
}

TEST_F(Browser, ExpandsNames) {
    const std::pair<std::string_view, std::string_view> names[] = {
        {"My Computer", "My Computer"},
        {"Tarn-Client Computer", "My Computer"},
        {"anna-laptop", "My Computer"},
        {"my computer", "my computer"},
        {"filesrv", "Microsoft Windows Network\\OFFICE\\FILESRV"},
        {"nas01", "Unix Hosts\\nas01"},
        {"Unix Hosts\\nas01", "Unix Hosts\\nas01"},
        {"nowhere", "nowhere"},
        {"", ""},
    };
    for (const auto& [typed, full] : names)
        EXPECT_EQ(callOn(browser_, "expandToFullPath", raw::text(typed)),
                  raw::reply(raw::text(full)));
}

TEST_F(Browser, ExpandsItsOwnNameOnUnix) {
    open({.scenario = simulator::Scenario::Unix});
    EXPECT_EQ(callOn(browser_, "expandToFullPath", raw::text("My Computer")),
              raw::reply(raw::text("Tarn-Client Computer")));
}

TEST_F(Browser, OffersPresetsWhereThereAreSome) {
    const auto preset = [](std::string_view path, std::string_view description) {
        return raw::record("PreDefinedBrowseItem",
                           raw::member("path", raw::text(path)) +
                               raw::member("description", raw::text(description)));
    };
    EXPECT_EQ(callOn(browser_, "getPredefinedItems", raw::text("nas01")),
              raw::reply(raw::list({preset("/\\volume1", "First volume")})));
    EXPECT_THAT(callOn(browser_, "getPredefinedItems", raw::text("My Computer")),
                HasSubstr(preset("D:\\Mail", "Mail")));
    EXPECT_EQ(callOn(browser_, "getPredefinedItems", raw::text("FILESRV")),
              raw::reply(raw::list({})));
}

TEST_F(Browser, MakesInclusions) {
    const std::string item =
        getFrom(browser_, "createInclusionItem",
                raw::text("My Computer") + raw::text("D:\\Mail") + raw::int32(9999));
    EXPECT_EQ(callOn(item, "types"), raw::reply(raw::list({raw::text("BackupSetItem"),
                                                           raw::text("BackupSetInclusionItem")})));
    EXPECT_EQ(callOn(item, "getType"), raw::reply(raw::int32(0)));
    EXPECT_EQ(callOn(item, "getFolder"), raw::reply(raw::text("D:\\Mail")));
}

TEST_F(Browser, MakesExclusions) {
    const std::string item = getFrom(browser_, "createExclusionItem",
                                     raw::text("My Computer") + raw::text("D:\\Mail\\old"));
    EXPECT_EQ(callOn(item, "types"),
              raw::reply(raw::list({raw::text("BackupSetItem"), raw::text("BackupSetFileItem")})));
    EXPECT_EQ(callOn(item, "getType"), raw::reply(raw::int32(1)));
}

TEST_F(Browser, MakesRegularExpressions) {
    const std::string item =
        getFrom(browser_, "createRegexExclusion",
                raw::text("My Computer") + raw::text("D:") + raw::text(".*\\.(tmp)"));
    EXPECT_EQ(callOn(item, "types"), raw::reply(raw::list({raw::text("BackupSetItem"),
                                                           raw::text("BackupSetRegexExclusion")})));
    EXPECT_EQ(callOn(item, "getType"), raw::reply(raw::int32(2)));
    EXPECT_EQ(callOn(item, "getExpression"), raw::reply(raw::text(".*\\.(tmp)")));
    EXPECT_EQ(callOn(item, "getInclusion"), raw::reply("F"));
    for (const char* const setter :
         {"setInclusion", "setNegate", "setCaseSensitive", "setMatchDirectories"})
        EXPECT_EQ(callOn(item, setter, "T"), raw::reply());
    EXPECT_EQ(callOn(item, "getInclusion"), raw::reply("T"));
}

TEST_F(Browser, RefusesItemsThatMakeNoSense) {
    const std::string local = raw::text("My Computer");
    const auto refusal = [this](std::string_view method, const std::string& arguments) {
        return refusalOf(callOn(browser_, method, arguments));
    };
    EXPECT_EQ(refusal("createInclusionItem", local + raw::text("") + raw::int32(1)),
              "An item needs a path.");
    EXPECT_EQ(refusal("createExclusionItem", local + raw::text("")), "An item needs a path.");
    EXPECT_EQ(refusal("createInclusionItem", local + raw::text("C:") + raw::int32(0)),
              "No item keeps 0 generations.");
    EXPECT_EQ(refusal("createInclusionItem", local + raw::text("C:") + raw::int32(10'000)),
              "No item keeps 10000 generations.");
    EXPECT_EQ(refusal("createRegexExclusion", local + raw::text("C:") + raw::text("")),
              "A regular expression is needed.");
    EXPECT_EQ(refusal("createExclusionItem", raw::text("nowhere") + raw::text("C:")),
              "The computer 'nowhere' can't be reached.");
}

} // namespace
