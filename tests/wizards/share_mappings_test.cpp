// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/share_mappings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using hessiancln::selected_shares;
using hessiancln::share_mapping;
using testing::ElementsAre;
using testing::IsEmpty;
using wizards::directoryNameOf;
using wizards::shareMappings;
using wizards::truncateLevelOf;

constexpr char target[] = "D:\\Back/restore_now/";

std::vector<std::string> directoriesOf(const std::vector<std::string>& shares) {
    std::vector<selected_shares> selected;
    for (const std::string& share : shares)
        selected.push_back({share, "C:\\Users\\ann"});
    std::vector<std::string> directories;
    for (const share_mapping& mapping : shareMappings(selected, "T").mappings)
        directories.push_back(mapping.destination_path);
    return directories;
}

TEST(TruncateLevelTest, IsTheNumberOfBackslashes) {
    EXPECT_EQ(truncateLevelOf(""), 0);
    EXPECT_EQ(truncateLevelOf("C:"), 0);
    EXPECT_EQ(truncateLevelOf("C:\\Users\\ann"), 2);
    EXPECT_EQ(truncateLevelOf("\\\\server\\"), 3);
    EXPECT_EQ(truncateLevelOf("/home/ann"), 0);
}

TEST(DirectoryNameTest, DropsWhatNoSystemTakes) {
    EXPECT_EQ(directoryNameOf("C:"), "C");
    EXPECT_EQ(directoryNameOf("\\\\server\\share"), "servershare");
    EXPECT_EQ(directoryNameOf("a\"b*c/d:e<f>g?h\\i|j"), "abcdefghij");
    EXPECT_EQ(directoryNameOf("it's 100% (mine).d"), "it's 100% (mine).d");
    EXPECT_EQ(directoryNameOf("Größe:"), "Größe");
}

TEST(DirectoryNameTest, OfDroppedCharactersOnlyIsData) {
    EXPECT_EQ(directoryNameOf("/"), ".data.");
    EXPECT_EQ(directoryNameOf("\"*/:<>?\\|"), ".data.");
    EXPECT_EQ(directoryNameOf(""), ".data.");
}

TEST(ShareMappingsTest, OneShareGoesToTheDestinationItself) {
    const auto made = shareMappings({{"C:", "C:\\Users\\ann"}}, target);
    EXPECT_EQ(made.truncateLevel, 2);
    ASSERT_EQ(made.mappings.size(), 1u);
    EXPECT_EQ(made.mappings[0].source_share, "C:");
    EXPECT_EQ(made.mappings[0].destination_path, "D:\\Back/restore_now/");
    EXPECT_EQ(made.mappings[0].truncate_level, 2);
}

TEST(ShareMappingsTest, OneShareWithoutDirectoriesKeepsItsLevels) {
    const auto made = shareMappings({{"/", ""}}, "/back/restore_now/");
    EXPECT_EQ(made.truncateLevel, 0);
    ASSERT_EQ(made.mappings.size(), 1u);
    EXPECT_EQ(made.mappings[0].destination_path, "/back/restore_now/");
    EXPECT_EQ(made.mappings[0].truncate_level, 0);
}

TEST(ShareMappingsTest, OfSeveralSharesEachHasItsDirectory) {
    const auto made = shareMappings({{"C:", "C:\\Users\\ann"}, {"D:", "D:\\x\\y"}}, target);
    EXPECT_EQ(made.truncateLevel, 0);
    ASSERT_EQ(made.mappings.size(), 2u);
    EXPECT_EQ(made.mappings[0].source_share, "C:");
    EXPECT_EQ(made.mappings[0].destination_path, "D:\\Back/restore_now/\\C");
    EXPECT_EQ(made.mappings[0].truncate_level, 0);
    EXPECT_EQ(made.mappings[1].source_share, "D:");
    EXPECT_EQ(made.mappings[1].destination_path, "D:\\Back/restore_now/\\D");
    EXPECT_EQ(made.mappings[1].truncate_level, 0);
}

TEST(ShareMappingsTest, NoShareMapsNothing) {
    const auto made = shareMappings({}, target);
    EXPECT_EQ(made.truncateLevel, 0);
    EXPECT_THAT(made.mappings, IsEmpty());
}

TEST(ShareMappingsTest, NamesThatCollideAreNumbered) {
    EXPECT_THAT(directoriesOf({"C:", "C"}), ElementsAre("T\\C", "T\\C_0001"));
}

TEST(ShareMappingsTest, AThirdOneGetsBothNumbers) {
    EXPECT_THAT(directoriesOf({"C:", "C", "C*"}),
                ElementsAre("T\\C", "T\\C_0001", "T\\C_0001_0002"));
}

TEST(ShareMappingsTest, EachShareCountsFromZero) {
    EXPECT_THAT(directoriesOf({"a", "a", "b", "b"}),
                ElementsAre("T\\a", "T\\a_0001", "T\\b", "T\\b_0001"));
}

TEST(ShareMappingsTest, ANumberedNameMayBeTakenToo) {
    EXPECT_THAT(directoriesOf({"a_0001", "a", "a"}),
                ElementsAre("T\\a_0001", "T\\a", "T\\a_0001_0002"));
}

TEST(ShareMappingsTest, ThousandsOfOneNameAreNumberedAtOnce) {
    const std::vector<hessiancln::selected_shares> shares(5000, {"C:", "C:"});
    const auto made = shareMappings(shares, "T");
    ASSERT_EQ(made.mappings.size(), shares.size());
    const std::string& last = made.mappings.back().destination_path;
    EXPECT_EQ(last.size(), std::string("T\\C").size() + 4999 * 5);
    EXPECT_THAT(last, testing::EndsWith("_4998_4999"));
}

TEST(ShareMappingsTest, NamesAreComparedByteByByte) {
    EXPECT_THAT(directoriesOf({"data", "Data"}), ElementsAre("T\\data", "T\\Data"));
}

TEST(ShareMappingsTest, NamelessSharesAreNumberedToo) {
    EXPECT_THAT(directoriesOf({"/", "\\"}), ElementsAre("T\\.data.", "T\\.data._0001"));
}

} // namespace
