// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/retention_units.h"

#include <gtest/gtest.h>

namespace {

using hessiancln::RetentionTimeUnit;

constexpr RetentionTimeUnit unit(int code) {
    return static_cast<RetentionTimeUnit>(code);
}

TEST(RetentionUnits, AnEntryStandsForItsUnit) {
    EXPECT_EQ(wizards::unitOfIndex(0), unit(3));
    EXPECT_EQ(wizards::unitOfIndex(1), unit(4));
    EXPECT_EQ(wizards::unitOfIndex(2), unit(5));
    EXPECT_EQ(wizards::unitOfIndex(3), unit(6));
}

TEST(RetentionUnits, AUnitIsFoundInTheList) {
    EXPECT_EQ(wizards::indexOfUnit(unit(3)), 0);
    EXPECT_EQ(wizards::indexOfUnit(unit(4)), 1);
    EXPECT_EQ(wizards::indexOfUnit(unit(5)), 2);
    EXPECT_EQ(wizards::indexOfUnit(unit(6)), 3);
}

TEST(RetentionUnits, UnitsThatNobodyChoosesHaveNoEntry) {
    for (const int code : {-1, 0, 1, 2, 7, 2147483647})
        EXPECT_EQ(wizards::indexOfUnit(unit(code)), -1) << code;
}

TEST(RetentionUnits, NoEntryIsDays) {
    EXPECT_EQ(wizards::unitOfIndex(-1), unit(3));
    EXPECT_EQ(wizards::unitOfIndex(4), unit(3));
}

void expectSpans(const wizards::IntervalRule& rule, int repeat, int validFor) {
    EXPECT_EQ(rule.repeat.period, 1);
    EXPECT_EQ(rule.repeat.unit, unit(repeat));
    EXPECT_EQ(rule.validFor.period, 1);
    EXPECT_EQ(rule.validFor.unit, unit(validFor));
}

TEST(RetentionUnits, EachIntervalHoldsForTheNextLargerUnit) {
    expectSpans(wizards::onePerDay(), 3, 4);
    expectSpans(wizards::onePerWeek(), 4, 5);
    expectSpans(wizards::onePerMonth(), 5, 6);
}

} // namespace
