// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/generation_choice.h"

#include <gtest/gtest.h>

namespace {

using namespace models;

Generations backedUpAt(std::initializer_list<std::int32_t> times) {
    Generations generations;
    for (const std::int32_t time : times)
        generations.push_back({.backup_time = time});
    return generations;
}

std::string times(const Generations& generations) {
    std::string text;
    for (const auto& one : generations)
        text += std::to_string(one.backup_time) + ' ';
    return text;
}

TEST(GenerationChoiceTest, TheNewestStandsFirst) {
    EXPECT_EQ(times(newestFirst(backedUpAt({20, 30, 10, 40}))), "40 30 20 10 ");
    EXPECT_EQ(times(newestFirst({})), "");
}

TEST(GenerationChoiceTest, ThoseOfOneTimeStayInTheirOrder) {
    const auto sorted = newestFirst({{1, 20, 0, 0}, {2, 30, 0, 0}, {3, 20, 0, 0}});
    EXPECT_EQ(sorted[1].modification_time, 1);
    EXPECT_EQ(sorted[2].modification_time, 3);
}

TEST(GenerationChoiceTest, TheNewestInASpan) {
    const auto generations = backedUpAt({40, 30, 20, 10});
    EXPECT_EQ(newestInRange(generations, 0, 0), 0);
    EXPECT_EQ(newestInRange(generations, 0, 35), 1);
    EXPECT_EQ(newestInRange(generations, 0, 30), 1);
    EXPECT_EQ(newestInRange(generations, 40, 0), 0);
    EXPECT_EQ(newestInRange(generations, 15, 29), 2);
}

TEST(GenerationChoiceTest, NoneInASpan) {
    const auto generations = backedUpAt({40, 30});
    EXPECT_EQ(newestInRange(generations, 41, 0), -1);
    EXPECT_EQ(newestInRange(generations, 0, 29), -1);
    EXPECT_EQ(newestInRange(generations, 31, 39), -1);
    EXPECT_EQ(newestInRange({}, 0, 0), -1);
}

TEST(GenerationChoiceTest, TheFirstOfOneTimeIsTaken) {
    EXPECT_EQ(newestInRange(backedUpAt({10, 30, 30}), 0, 0), 1);
}

TEST(GenerationChoiceTest, WithoutAnEndNoneIsTheNewestWithin) {
    EXPECT_FALSE(isNewestWithin(backedUpAt({40}), 0, 40));
}

TEST(GenerationChoiceTest, AnEndBeforeTheChosenOne) {
    EXPECT_FALSE(isNewestWithin(backedUpAt({40, 30}), 39, 40));
}

TEST(GenerationChoiceTest, ANewerOneWithinTheEnd) {
    const auto generations = backedUpAt({40, 30, 20});
    EXPECT_FALSE(isNewestWithin(generations, 40, 30));
    EXPECT_TRUE(isNewestWithin(generations, 39, 30));
    EXPECT_TRUE(isNewestWithin(generations, 30, 30));
    EXPECT_TRUE(isNewestWithin(generations, 99, 40));
}

} // namespace
