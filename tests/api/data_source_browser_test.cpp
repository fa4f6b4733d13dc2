// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/data_browser_with_set_creation.h"

#include "hessian/serialize_exception.h"
#include "tests/api/golden_data_records.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class DataSourceBrowserTest : public ReceivingTest {
protected:
    const boost::shared_ptr<DataSourceBrowser> browser = proxyAt<DataSourceBrowser>("here");
};

TEST_F(DataSourceBrowserTest, createExclusionItem) {
    expect("c 01 00 m 00 13 'createExclusionItem' S 00 09 'RECHNER-Ö' S 00 07 'C:\\Temp' z",
           "r 01 00 r t 00 20 'com.norvel.api.BackupSetFileItem' S 00 02 'x1' z");
    expectReceived(browser->createExclusionItem("RECHNER-Ö", "C:\\Temp"), "x1");
}

TEST_F(DataSourceBrowserTest, createInclusionItem) {
    expect("c 01 00 m 00 13 'createInclusionItem' S 00 02 'pc' S 00 0C 'C:\\Bücher €𝄞' I 00 00 27 "
           "0F z",
           "r 01 00 r t 00 25 'com.norvel.api.BackupSetInclusionItem' S 00 02 'i1' z");
    expectReceived(browser->createInclusionItem("pc", "C:\\Bücher €𝄞", 9999), "i1");
}

TEST_F(DataSourceBrowserTest, createRegexExclusion) {
    expect("c 01 00 m 00 14 'createRegexExclusion' S 00 02 'pc' S 00 02 'C:' S 00 08 '.*\\.tmp$' z",
           "r 01 00 r t 00 26 'com.norvel.api.BackupSetRegexExclusion' S 00 02 'e1' z");
    expectReceived(browser->createRegexExclusion("pc", "C:", ".*\\.tmp$"), "e1");
}

TEST_F(DataSourceBrowserTest, expandToFullPath) {
    expect("c 01 00 m 00 10 'expandToFullPath' S 00 03 'süd' z",
           "r 01 00 S 00 0D '\\\\süd.example' z");
    EXPECT_EQ(browser->expandToFullPath("süd"), "\\\\süd.example");
}

TEST_F(DataSourceBrowserTest, getCurrentCredentials) {
    expect("c 01 00 m 00 15 'getCurrentCredentials' z",
           "r 01 00 r t 00 2E 'com.norvel.api.UnixFS_SSH_BackupSetCredentials' S 00 04 'cred' z");
    expectReceived(browser->getCurrentCredentials(), "cred");
}

TEST_F(DataSourceBrowserTest, setCurrentCredentials) {
    expect("c 01 00 m 00 15 'setCurrentCredentials' r t 00 23 "
           "'com.norvel.api.BackupSetCredentials' S 00 04 'cred' z",
           "r 01 00 z");
    browser->setCurrentCredentials(proxyAt<BackupSetCredentials>("cred"));
}

TEST_F(DataSourceBrowserTest, setCurrentCredentialsOfANarrowerClass) {
    expect("c 01 00 m 00 15 'setCurrentCredentials' r t 00 23 "
           "'com.norvel.api.BackupSetCredentials' S 00 03 'ssh' z",
           "r 01 00 z");
    browser->setCurrentCredentials(proxyAt<UnixFS_SSH_BackupSetCredentials>("ssh"));
}

TEST_F(DataSourceBrowserTest, setCurrentCredentialsNull) {
    expect("c 01 00 m 00 15 'setCurrentCredentials' N z", "r 01 00 z");
    browser->setCurrentCredentials(nullptr);
}

TEST_F(DataSourceBrowserTest, getPredefinedItems) {
    expect("c 01 00 m 00 12 'getPredefinedItems' S 00 02 'pc' z",
           std::string("r 01 00 V ") + golden::PreDefinedBrowseItem + " z z");
    const auto items = browser->getPredefinedItems("pc");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].description, "Eigene Dateien €");
}

TEST_F(DataSourceBrowserTest, getSubItems) {
    expect("c 01 00 m 00 0B 'getSubItems' S 00 02 'pc' S 00 09 'C:\\Bücher' z",
           std::string("r 01 00 V ") + golden::browse_item_info + ' ' + golden::browse_item_info +
               " z z");
    const auto items = browser->getSubItems("pc", "C:\\Bücher");
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[1].name, "Bücher");
}

TEST_F(DataSourceBrowserTest, getSubItemsOfTheTopLevel) {
    expect("c 01 00 m 00 0B 'getSubItems' S 00 02 'pc' S 00 00 z", "r 01 00 V z z");
    EXPECT_TRUE(browser->getSubItems("pc", "").empty());
}

TEST_F(DataSourceBrowserTest, getSubItemsWithAKeyOfANewerAgent) {
    expect("c 01 00 m 00 0B 'getSubItems' S 00 02 'pc' S 00 00 z",
           "r 01 00 V M t 00 1F 'com.norvel.api.browse_item_info' S 00 04 'name' S 00 01 'n' S 00 "
           "06 'hidden' F z z z");
    EXPECT_THROW(browser->getSubItems("pc", ""), hessianser::serialize_exception);
}

TEST_F(DataSourceBrowserTest, neededCredentials) {
    expect(
        "c 01 00 m 00 11 'neededCredentials' S 00 02 'pc' z",
        "r 01 00 r t 00 33 'com.norvel.api.Win32FS_Generic_BackupSetCredentials' S 00 04 'cred' z");
    expectReceived(browser->neededCredentials("pc"), "cred");
}

TEST_F(DataSourceBrowserTest, networkDiscovery) {
    expect("c 01 00 m 00 10 'networkDiscovery' S 00 04 'BÜRO' z",
           std::string("r 01 00 V ") + golden::net_item_info + " z z");
    const auto nodes = browser->networkDiscovery("BÜRO");
    ASSERT_EQ(nodes.size(), 1u);
    EXPECT_EQ(nodes[0].name, "RECHNER-Ö");
}

TEST_F(DataSourceBrowserTest, createBackupSet) {
    expect("c 01 00 m 00 0F 'createBackupSet' S 00 09 'RECHNER-Ö' z",
           "r 01 00 r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set' z");
    expectReceived(proxyAt<DataBrowserWithSetCreation>("here")->createBackupSet("RECHNER-Ö"),
                   "set");
}

TEST_F(DataSourceBrowserTest, ABrowserThatMakesSetsIsABrowser) {
    expect("c 01 00 m 00 10 'expandToFullPath' S 00 01 'a' z", "r 01 00 S 00 01 'b' z");
    EXPECT_EQ(proxyAt<DataBrowserWithSetCreation>("here")->expandToFullPath("a"), "b");
}

} // namespace
