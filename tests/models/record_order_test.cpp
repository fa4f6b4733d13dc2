// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "models/record_order.h"

namespace {

using testing::ElementsAre;

struct Record {
    std::int64_t number = 0;
    std::string text;
    std::int32_t kind = 0;
    char mark = ' '; ///< distinguishes records with equal keys
};

using Key = models::SortKey<Record>;

const Key byNumber = [](const Record& record) { return record.number; };
const Key byText = &Record::text;
const Key byLabel =
    models::LabelKey<Record>{[](const Record& record) { return record.kind; },
                             [](const Record& record) {
                                 const char* labels[] = {"beta", "Zeta", "alpha", "beta"};
                                 return QString::fromLatin1(labels[record.kind]);
                             }};

std::string order(std::vector<Record> records, const Key& key,
                  Qt::SortOrder order = Qt::AscendingOrder) {
    models::sortRecords(records, key, order);
    std::string marks;
    for (const Record& record : records)
        marks += record.mark;
    return marks;
}

TEST(RecordOrder, NumbersGoBothWays) {
    const std::vector<Record> records{
        {5, {}, 0, 'c'}, {-1, {}, 0, 'a'}, {INT64_MAX, {}, 0, 'd'}, {0, {}, 0, 'b'}};
    EXPECT_EQ(order(records, byNumber), "abcd");
    EXPECT_EQ(order(records, byNumber, Qt::DescendingOrder), "dcba");
}

TEST(RecordOrder, EqualKeysKeepTheirOrder) {
    const std::vector<Record> records{{1, {}, 0, 'a'}, {0, {}, 0, 'x'}, {1, {}, 0, 'b'}};
    EXPECT_EQ(order(records, byNumber), "xab");
    EXPECT_EQ(order(records, byNumber, Qt::DescendingOrder), "abx");
}

TEST(RecordOrder, TextGoesByItsBytes) {
    const std::vector<Record> records{
        {0, "\xC3\xA4", 0, 'd'}, {0, "a", 0, 'b'}, {0, "Z", 0, 'a'}, {0, "ab", 0, 'c'}};
    EXPECT_EQ(order(records, byText), "abcd");
    EXPECT_EQ(order(records, byText, Qt::DescendingOrder), "dcba");
}

TEST(RecordOrder, LabelsGoByWhatPeopleSee) {
    // Upper case comes first, and equal labels with different numbers compare equal.
    const std::vector<Record> records{
        {0, {}, 3, 'c'}, {0, {}, 2, 'b'}, {0, {}, 0, 'd'}, {0, {}, 1, 'a'}};
    EXPECT_EQ(order(records, byLabel), "abcd");
}

TEST(RecordOrder, AColumnWithoutAKeyLeavesTheList) {
    const std::vector<Record> records{{2, {}, 0, 'a'}, {1, {}, 0, 'b'}};
    EXPECT_EQ(order(records, Key()), "ab");
}

TEST(RecordOrder, AnEmptyListStaysEmpty) {
    for (const Key& key : {byNumber, byText, byLabel})
        EXPECT_EQ(order({}, key), "");
}

TEST(RecordOrder, RecordsMoveWhole) {
    const std::string longText(100, 'x');
    std::vector<Record> records{{2, longText, 1, 'a'}, {1, "short", 2, 'b'}};
    models::sortRecords(records, byNumber, Qt::AscendingOrder);
    EXPECT_EQ(records[0].text, "short");
    EXPECT_EQ(records[1].text, longText);
    EXPECT_EQ(records[1].kind, 1);
}

} // namespace
