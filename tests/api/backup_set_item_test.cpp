// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set_item.h"

#include "api/backup_set.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class BackupSetItemTest : public ReceivingTest {
protected:
    const boost::shared_ptr<BackupSetItem> item = proxyAt<BackupSetItem>("here");
    const boost::shared_ptr<BackupSetRegexExclusion> filter =
        proxyAt<BackupSetRegexExclusion>("here");
};

TEST_F(BackupSetItemTest, getFolder) {
    expect("c 01 00 m 00 09 'getFolder' z", "r 01 00 S 00 09 'C:\\Bücher' z");
    EXPECT_EQ(item->getFolder(), "C:\\Bücher");
}

TEST_F(BackupSetItemTest, getType) {
    expect("c 01 00 m 00 07 'getType' z", "r 01 00 I 00 00 00 02 z");
    EXPECT_EQ(item->getType(), BackupSetItemType::RegularExpression);
    expect("c 01 00 m 00 07 'getType' z", "r 01 00 I FF FF FF FF z");
    EXPECT_EQ(item->getType(), BackupSetItemType{3});
}

TEST_F(BackupSetItemTest, getExpression) {
    expect("c 01 00 m 00 0D 'getExpression' z", "r 01 00 S 00 08 '.*\\.tmp$' z");
    EXPECT_EQ(filter->getExpression(), ".*\\.tmp$");
}

TEST_F(BackupSetItemTest, getInclusion) {
    expect("c 01 00 m 00 0C 'getInclusion' z", "r 01 00 T z");
    EXPECT_TRUE(filter->getInclusion());
}

TEST_F(BackupSetItemTest, SwitchesOfAFilter) {
    expect("c 01 00 m 00 0C 'setInclusion' T z", "r 01 00 z");
    filter->setInclusion(true);
    expect("c 01 00 m 00 09 'setNegate' F z", "r 01 00 z");
    filter->setNegate(false);
    expect("c 01 00 m 00 10 'setCaseSensitive' F z", "r 01 00 z");
    filter->setCaseSensitive(false);
    expect("c 01 00 m 00 13 'setMatchDirectories' T z", "r 01 00 z");
    filter->setMatchDirectories(true);
}

TEST_F(BackupSetItemTest, AFilterIsAnItem) {
    expect("c 01 00 m 00 09 'getFolder' z", "r 01 00 S 00 02 'C:' z");
    EXPECT_EQ(filter->getFolder(), "C:");
}

TEST_F(BackupSetItemTest, EveryClassIsWrittenUnderTheNameOfTheFamily) {
    expect("c 01 00 m 00 08 'setItems' V r t 00 1C 'com.norvel.api.BackupSetItem' S 00 02 'in' r t "
           "00 1C 'com.norvel.api.BackupSetItem' S 00 03 'out' r t 00 1C "
           "'com.norvel.api.BackupSetItem' S 00 04 'expr' N z z",
           "r 01 00 z");
    proxyAt<BackupSet>("here")->setItems({proxyAt<BackupSetInclusionItem>("in"),
                                          proxyAt<BackupSetFileItem>("out"),
                                          proxyAt<BackupSetRegexExclusion>("expr"), nullptr});
}

} // namespace
