// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/file_name_filter.h"

#include <gtest/gtest.h>

namespace {

bool matches(const char* pattern, const char* name) {
    return models::FileNameFilter(QString::fromUtf8(pattern)).matches(QString::fromUtf8(name));
}

TEST(FileNameFilterTest, AnEmptyOneMatchesAll) {
    EXPECT_TRUE(matches("", "a.txt"));
    EXPECT_TRUE(matches("", ""));
    EXPECT_TRUE(matches("*", "a.txt"));
    EXPECT_TRUE(matches("**", ""));
}

TEST(FileNameFilterTest, ATextStandsAnywhereInTheName) {
    EXPECT_TRUE(matches("port", "report.txt"));
    EXPECT_TRUE(matches("*.txt", "a.txt.bak"));
    EXPECT_FALSE(matches("*.txt", "a_txt"));
    EXPECT_TRUE(matches("größe*", "Schuhgröße.odt"));
}

TEST(FileNameFilterTest, CaseMatters) {
    EXPECT_FALSE(matches("Report", "report.txt"));
}

TEST(FileNameFilterTest, WildcardsWithin) {
    EXPECT_TRUE(matches("a*c", "xabbcx"));
    EXPECT_FALSE(matches("a*c", "cba"));
    EXPECT_TRUE(matches("a?c", "abc"));
    EXPECT_FALSE(matches("a?c", "ac"));
    EXPECT_TRUE(matches("[ab]1", "xb1"));
    EXPECT_FALSE(matches("[ab]1", "c1"));
    EXPECT_TRUE(matches("[*]", "a*b"));
    EXPECT_FALSE(matches("[*]", "ab"));
}

TEST(FileNameFilterTest, SignsOfExpressionsAreLetters) {
    EXPECT_TRUE(matches("(1)+$", "copy (1)+$.doc"));
    EXPECT_FALSE(matches("a.c", "abc"));
    EXPECT_FALSE(matches("a.c*d", "abc_d"));
}

TEST(FileNameFilterTest, BehindABackslashAnAsteriskIsALetter) {
    EXPECT_TRUE(matches("\\*", "a\\*b"));
    EXPECT_FALSE(matches("\\*", "a\\b"));
    EXPECT_FALSE(matches("a\\*", "a\\b"));
    EXPECT_TRUE(matches("\\", "a\\b"));
    EXPECT_TRUE(matches("*\\", "a\\b"));
}

TEST(FileNameFilterTest, AnOpenBracketMatchesNothing) {
    EXPECT_FALSE(matches("[a", "[a"));
}

} // namespace
