// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/delete_filter.h"

#include <gtest/gtest.h>

#include "wizards/backup_time_span.h"

namespace {

using namespace wizards;

QDateTime at(qint64 seconds) {
    return QDateTime::fromSecsSinceEpoch(seconds);
}

/// An enabled filter with all fields at their limits.
DeleteFilterFields fields() {
    DeleteFilterFields fields;
    fields.on = true;
    fields.from = fields.earliest = at(1'000'000);
    fields.to = fields.latest = at(2'000'000);
    fields.removed = at(1'500'000);
    fields.keep = 3;
    return fields;
}

bool same(const DeleteFilter& filter, std::int32_t from, std::int32_t to, std::int32_t removed,
          std::int32_t keep) {
    return filter.from == from && filter.to == to && filter.removedSince == removed &&
           filter.keepLast == keep;
}

TEST(DeleteFilterTest, OnlyCheckedFieldsCount) {
    DeleteFilterFields some = fields();
    EXPECT_TRUE(same(deleteFilter(some), 0, 0, 0, 0));
    some.useFrom = some.useRemoved = true;
    EXPECT_TRUE(same(deleteFilter(some), 1'000'000, 0, 1'500'000, 0));
    some.useTo = some.useKeep = true;
    EXPECT_TRUE(same(deleteFilter(some), 1'000'000, 2'000'000, 1'500'000, 3));
    some.on = false;
    EXPECT_TRUE(same(deleteFilter(some), 0, 0, 0, 0));
}

TEST(DeleteFilterTest, ALimitOfTheFirstDayIsStillALimit) {
    DeleteFilterFields some = fields();
    some.useFrom = some.useTo = some.useRemoved = true;
    for (const qint64 second : {0, -1, -86'400}) {
        some.from = some.to = some.removed = at(second);
        EXPECT_TRUE(same(deleteFilter(some), 0, 1, 1, 0)) << second;
    }
}

TEST(DeleteFilterTest, NothingIsInForceAtFirst) {
    EXPECT_FALSE(isInForce({}));
    EXPECT_FALSE(isInForce(fields()));
}

TEST(DeleteFilterTest, TimesAtTheirLimitsAreNoFilter) {
    DeleteFilterFields some = fields();
    some.useFrom = some.useTo = true;
    EXPECT_FALSE(isInForce(some));
}

TEST(DeleteFilterTest, TimesWithinTheirLimitsAreAFilter) {
    DeleteFilterFields some = fields();
    some.useFrom = true;
    some.from = at(1'000'001);
    EXPECT_TRUE(isInForce(some));
    some = fields();
    some.useTo = true;
    some.to = at(1'999'999);
    EXPECT_TRUE(isInForce(some));
}

TEST(DeleteFilterTest, KeptGenerationsAloneAreAFilter) {
    DeleteFilterFields some = fields();
    some.useKeep = true;
    EXPECT_TRUE(isInForce(some));
}

TEST(DeleteFilterTest, RemovedFilesAloneAreAFilter) {
    DeleteFilterFields some = fields();
    some.useRemoved = true;
    EXPECT_TRUE(isInForce(some));
}

TEST(DeleteFilterTest, AGroupThatIsOffIsNone) {
    DeleteFilterFields some = fields();
    some.useKeep = some.useRemoved = true;
    some.on = false;
    EXPECT_FALSE(isInForce(some));
}

TEST(BackupTimeSpanTest, FromTheFirstStartToTheLastEnd) {
    const auto span =
        backupTimeSpan({{200, 260, 1, 1, 1}, {100, 900, 1, 1, 2}, {300, 340, 1, 1, 3}}, at(5'000));
    EXPECT_EQ(span.earliest, at(100));
    EXPECT_EQ(span.latest, at(900));
}

TEST(BackupTimeSpanTest, NeverBeginsInTheFuture) {
    EXPECT_EQ(backupTimeSpan({{9'000, 9'100, 1, 1, 1}}, at(5'000)).earliest, at(5'000));
}

TEST(BackupTimeSpanTest, TimesThatTheWireCantSay) {
    EXPECT_EQ(secondsOf(at(-5)), 0);
    EXPECT_EQ(secondsOf(at(5'000'000'000)), 2'147'483'647);
    EXPECT_EQ(secondsOf(at(77)), 77);
}

TEST(BackupTimeSpanTest, ALimitIsNeverNone) {
    EXPECT_EQ(limitOf(at(-5)), 1);
    EXPECT_EQ(limitOf(at(0)), 1);
    EXPECT_EQ(limitOf(at(77)), 77);
    EXPECT_EQ(limitOf(at(5'000'000'000)), 2'147'483'647);
}

} // namespace
