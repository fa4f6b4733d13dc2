// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_delete_view.h"
#include "api/backup_set_restore_view.h"
#include "api/data_browser_with_set_creation.h"
#include "hessian/serialize_exception.h"
#include "tests/api/golden_data_records.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class RestoreDeleteTest : public ReceivingTest {
protected:
    const boost::shared_ptr<BackupSetRestoreView> restoreView =
        proxyAt<BackupSetRestoreView>("here");
    const boost::shared_ptr<BackupSetDeleteView> deleteView = proxyAt<BackupSetDeleteView>("here");
    const boost::shared_ptr<RestoreActivityInitiator> restore =
        proxyAt<RestoreActivityInitiator>("here");
};

TEST_F(RestoreDeleteTest, getSubItems) {
    expect("c 01 00 m 00 0B 'getSubItems' L 00 00 00 01 2A 05 F2 03 z",
           std::string("r 01 00 V ") + golden::SelectableItem + " z z");
    const auto items = restoreView->getSubItems(5000000003);
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].name, "Übersicht 𝄞");
}

TEST_F(RestoreDeleteTest, OneTreeServesBothViews) {
    const boost::shared_ptr<BackupSetDataView> views[] = {restoreView, deleteView};
    for (const auto& view : views) {
        expect("c 01 00 m 00 0B 'getSubItems' L FF FF FF FF FF FF FF FF z", "r 01 00 V z z");
        EXPECT_TRUE(view->getSubItems(-1).empty());
    }
}

TEST_F(RestoreDeleteTest, getSubItemsWithAKeyOfANewerAgent) {
    expect(
        "c 01 00 m 00 0B 'getSubItems' L FF FF FF FF FF FF FF FF z",
        "r 01 00 V M t 00 1D 'com.norvel.api.SelectableItem' S 00 06 'colour' I 00 00 00 01 z z z");
    try {
        deleteView->getSubItems(-1);
        ADD_FAILURE() << "Nothing raised";
    } catch (const hessianser::serialize_exception& e) {
        EXPECT_STREQ(e.what(), "Unknown map field type");
    }
}

TEST_F(RestoreDeleteTest, getItemGenerations) {
    expect("c 01 00 m 00 12 'getItemGenerations' L 00 00 00 00 00 00 00 0C z",
           std::string("r 01 00 V ") + golden::file_generations + " z z");
    const auto generations = restoreView->getItemGenerations(12);
    ASSERT_EQ(generations.size(), 1u);
    EXPECT_EQ(generations[0].stream_size, 6000000001);
}

TEST_F(RestoreDeleteTest, prepareRestore) {
    expect("c 01 00 m 00 0E 'prepareRestore' V L 00 00 00 00 00 00 00 01 L 00 00 00 01 2A 05 F2 03 "
           "z z",
           "r 01 00 r t 00 27 'com.norvel.api.RestoreActivityInitiator' S 00 02 'ri' z");
    expectReceived(restoreView->prepareRestore({1, 5000000003}), "ri");
}

TEST_F(RestoreDeleteTest, prepareDelete) {
    expect("c 01 00 m 00 0D 'prepareDelete' V L 00 00 00 00 00 00 00 07 z z",
           "r 01 00 r t 00 26 'com.norvel.api.DeleteActivityInitiator' S 00 02 'di' z");
    expectReceived(deleteView->prepareDelete({7}), "di");
}

TEST_F(RestoreDeleteTest, AnEmptyListOfIdsIsTwoBytes) {
    expect("c 01 00 m 00 0D 'prepareDelete' V z z", "r 01 00 N z");
    EXPECT_FALSE(deleteView->prepareDelete({}));
}

TEST_F(RestoreDeleteTest, selected_shares) {
    expect("c 01 00 m 00 0F 'selected_shares' z",
           std::string("r 01 00 V ") + golden::selected_shares + " z z");
    const auto shares = restore->selected_shares();
    ASSERT_EQ(shares.size(), 1u);
    EXPECT_EQ(shares[0].truncatable_path, "C:\\Users\\ann");
}

TEST_F(RestoreDeleteTest, setRestoreReason) {
    expect("c 01 00 m 00 10 'setRestoreReason' I 00 00 00 03 z", "r 01 00 z");
    restore->setRestoreReason(3);
}

TEST_F(RestoreDeleteTest, startToTheOriginalLocation) {
    expect("c 01 00 m 00 05 'start' r t 00 20 'com.norvel.api.DataSourceBrowser' S 00 01 'b' S 00 "
           "09 'RECHNER-Ö' V z I 00 00 00 00 z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    expectReceived(restore->start(proxyAt<DataSourceBrowser>("b"), "RECHNER-Ö", {}, 0), "act");
}

TEST_F(RestoreDeleteTest, startWithoutABrowser) {
    expect("c 01 00 m 00 05 'start' N S 00 00 V z I 00 00 00 00 z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    expectReceived(restore->start(nullptr, "", {}, 0), "act");
}

TEST_F(RestoreDeleteTest, startToOtherPlacesWithALevelOf0Everywhere) {
    expect("c 01 00 m 00 05 'start' r t 00 20 'com.norvel.api.DataSourceBrowser' S 00 01 'b' S 00 "
           "02 'pc' V "
           "M t 00 1C 'com.norvel.api.share_mapping' S 00 0C 'source_share' S 00 04 'süd$' S 00 10 "
           "'destination_path' S 00 08 '/srv/süd' "
           "S 00 0E 'truncate_level' I 00 00 00 00 z "
           "M t 00 1C 'com.norvel.api.share_mapping' S 00 0C 'source_share' S 00 02 'C:' S 00 10 "
           "'destination_path' S 00 06 '/srv/C' "
           "S 00 0E 'truncate_level' I 00 00 00 00 z "
           "z I 00 00 00 00 z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    expectReceived(restore->start(proxyAt<DataBrowserWithSetCreation>("b"), "pc",
                                  {{"süd$", "/srv/süd", 0}, {"C:", "/srv/C", 0}}, 0),
                   "act");
}

TEST_F(RestoreDeleteTest, startOfOneShareToAnotherPlace) {
    expect(std::string("c 01 00 m 00 05 'start' r t 00 20 'com.norvel.api.DataSourceBrowser' S 00 "
                       "01 'b' S 00 02 'pc' V ") +
               golden::share_mapping + " z I 00 00 00 02 z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    expectReceived(
        restore->start(proxyAt<DataSourceBrowser>("b"), "pc", {{"süd$", "/srv/rück €", 2}}, 2),
        "act");
}

TEST_F(RestoreDeleteTest, startOfADeletion) {
    expect("c 01 00 m 00 05 'start' z",
           "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    expectReceived(proxyAt<DeleteActivityInitiator>("here")->start(), "act");
}

TEST_F(RestoreDeleteTest, ADeletionFromBeginningToEnd) {
    expect("c 01 00 m 00 0B 'getSubItems' L FF FF FF FF FF FF FF FF z",
           std::string("r 01 00 V ") + golden::SelectableItem + " z z");
    expect("c 01 00 m 00 0D 'prepareDelete' V L 00 00 00 01 2A 05 F2 03 z z",
           "r 01 00 r t 00 26 'com.norvel.api.DeleteActivityInitiator' S 00 02 'di' z");
    agent->expect("di", "c 01 00 m 00 05 'start' z",
                  "r 01 00 r t 00 1E 'com.norvel.api.GenericActivity' S 00 03 'act' z");
    agent->expectRelease("act");
    agent->expectRelease("di");

    const auto items = deleteView->getSubItems(-1);
    ASSERT_EQ(items.size(), 1u);
    const auto initiator = deleteView->prepareDelete({items[0].id});
    const auto activity = initiator->start();
}

} // namespace
