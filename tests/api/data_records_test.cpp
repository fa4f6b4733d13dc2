// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "api/browser_records.h"
#include "api/data_view_records.h"
#include "api/restore_records.h"
#include "api/retention_time_span.h"
#include "tests/api/golden_data_records.h"
#include "tests/api/record_checks.h"

namespace {

using namespace hessiancln;

TEST(DataRecords, browse_item_info) {
    checkRecord<browse_item_info>(golden::browse_item_info);
    const auto r = decodeRecord<browse_item_info>(golden::browse_item_info);
    EXPECT_EQ(r.type, SelectableItemType::Database);
    EXPECT_EQ(r.name, "Bücher");
    EXPECT_TRUE(r.isfile);
    EXPECT_EQ(r.datasize, 5000000000);
}

TEST(DataRecords, browse_item_infoOfANewerAgent) {
    const auto r =
        decodeRecord<browse_item_info>("M t 00 1F 'com.norvel.api.browse_item_info' S 00 04 'name' "
                                       "S 00 01 'n' S 00 04 'type' I 00 00 00 0F z");
    EXPECT_EQ(r.type, SelectableItemType{14});
    EXPECT_EQ(r.name, "n");
    EXPECT_FALSE(r.isfile);
    EXPECT_EQ(r.datasize, 0);
}

TEST(DataRecords, net_item_info) {
    checkRecord<net_item_info>(golden::net_item_info);
    const auto r = decodeRecord<net_item_info>(golden::net_item_info);
    EXPECT_EQ(r.name, "RECHNER-Ö");
    EXPECT_EQ(r.type, NetItemType::Computer);
}

TEST(DataRecords, PreDefinedBrowseItem) {
    checkRecord<PreDefinedBrowseItem>(golden::PreDefinedBrowseItem);
    const auto r = decodeRecord<PreDefinedBrowseItem>(golden::PreDefinedBrowseItem);
    EXPECT_EQ(r.path, "C:\\Users\\zoë");
    EXPECT_EQ(r.description, "Eigene Dateien €");
}

TEST(DataRecords, retention_time_span) {
    checkRecord<retention_time_span>(golden::retention_time_span);
    const auto r = decodeRecord<retention_time_span>(golden::retention_time_span);
    EXPECT_EQ(r.period, 14);
    EXPECT_EQ(r.unit, RetentionTimeUnit::Weeks);
}

TEST(DataRecords, SelectableItem) {
    checkRecord<SelectableItem>(golden::SelectableItem);
    const auto r = decodeRecord<SelectableItem>(golden::SelectableItem);
    EXPECT_EQ(r.id, 5000000003);
    EXPECT_EQ(r.name, "Übersicht 𝄞");
    EXPECT_EQ(r.data_type, SelectableItemType::File);
    EXPECT_TRUE(r.is_file);
    EXPECT_FALSE(r.is_selectable);
}

TEST(DataRecords, SelectableItemOfAGroup) {
    const auto r = decodeRecord<SelectableItem>(
        "M t 00 1D 'com.norvel.api.SelectableItem' S 00 0D 'is_selectable' T S 00 09 'data_type' I "
        "FF FF FF FF S 00 02 'id' L FF FF FF FF FF FF FF EF z");
    EXPECT_EQ(r.id, -17);
    EXPECT_EQ(r.data_type, SelectableItemType{14});
    EXPECT_TRUE(r.is_selectable);
    EXPECT_FALSE(r.is_file);
}

TEST(DataRecords, file_generations) {
    checkRecord<file_generations>(golden::file_generations);
    const auto r = decodeRecord<file_generations>(golden::file_generations);
    EXPECT_EQ(r.modification_time, 1700000000);
    EXPECT_EQ(r.backup_time, 1700000001);
    EXPECT_EQ(r.data_size, 6000000000);
    EXPECT_EQ(r.stream_size, 6000000001);
}

TEST(DataRecords, selected_shares) {
    checkRecord<selected_shares>(golden::selected_shares);
    const auto r = decodeRecord<selected_shares>(golden::selected_shares);
    EXPECT_EQ(r.share_name, "süd$");
    EXPECT_EQ(r.truncatable_path, "C:\\Users\\ann");
}

TEST(DataRecords, share_mapping) {
    checkRecord<share_mapping>(golden::share_mapping);
    const auto r = decodeRecord<share_mapping>(golden::share_mapping);
    EXPECT_EQ(r.source_share, "süd$");
    EXPECT_EQ(r.destination_path, "/srv/rück €");
    EXPECT_EQ(r.truncate_level, 2);
}

} // namespace
