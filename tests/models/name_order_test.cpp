// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/name_order.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

#include <QString>
#include <gtest/gtest.h>

namespace {

using namespace models;

using Names = std::vector<std::string>;

Names sorted(const Names& names) {
    std::vector<RankedName> ranked;
    for (const std::string& name : names)
        ranked.push_back({1, name});
    Names result;
    for (const std::size_t place : shownOrder(ranked))
        result.push_back(names[place]);
    return result;
}

QString text(const std::string& name) {
    return QString::fromUtf8(name.data(), static_cast<int>(name.size()));
}

/// The indices of the names in the order of Qt's own comparison.
std::vector<std::size_t> orderOfQt(const Names& names) {
    std::vector<QString> texts;
    for (const std::string& name : names)
        texts.push_back(text(name));
    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return QString::compare(texts[a], texts[b], Qt::CaseInsensitive) < 0;
    });
    return order;
}

std::vector<std::size_t> order(const Names& names) {
    std::vector<RankedName> ranked;
    for (const std::string& name : names)
        ranked.push_back({0, name});
    return shownOrder(ranked);
}

/// Names that a slightly wrong comparison sorts differently.
const Names& hardNames() {
    using namespace std::string_literals;
    static const Names names{"",
                             "a",
                             "A",
                             "b",
                             "B",
                             "ab",
                             "aB",
                             "AB",
                             "abcdefgh",
                             "ABCDEFGH",
                             "abcdefg",
                             "abcdefghi",
                             "a b",
                             "a-b",
                             "a_b",
                             "a.b",
                             "[",
                             "_",
                             "`",
                             "{",
                             "Z",
                             "z",
                             "@",
                             "0",
                             "9",
                             "10",
                             "2",
                             "ä",
                             "Ä",
                             "a\u0308",
                             "A\u0308",
                             "ae",
                             "ß",
                             "ẞ",
                             "ss",
                             "SS",
                             "s",
                             "ſ",
                             "S",
                             "K",
                             "k",
                             "\u212a",
                             "ı",
                             "I",
                             "i",
                             "İ",
                             "i\u0307",
                             "ǆ",
                             "ǅ",
                             "Ǆ",
                             "σ",
                             "ς",
                             "Σ",
                             "µ",
                             "μ",
                             "ŉ",
                             "ﬁ",
                             "fi",
                             "Ω",
                             "Ω",
                             "ω",
                             "Å",
                             "Å",
                             "å",
                             "ᾳ",
                             "ᾼ",
                             "ΐ",
                             "ᏸ",
                             "Ᏸ",
                             "ა",
                             "Ა",
                             "\U00010400",
                             "\U00010428",
                             "\U00010401",
                             "\U0001E900",
                             "\U0001E922",
                             "\U0001F600",
                             "\U0010FFFF",
                             "\uFFFD",
                             "\uFFFF",
                             "\uE000",
                             "\uD7FF",
                             "\uFB00",
                             "豈",
                             "漢字",
                             "\uFEFFa",
                             "a\uFEFF",
                             "\U00010400a",
                             "\U00010428A",
                             "a\U00010400",
                             "A\U00010428b",
                             "\x7f",
                             "\u0080",
                             "\u07ff",
                             "\u0800",
                             "a\u0080",
                             "a\x7f",
                             "\0"s,
                             "\0\0"s,
                             "a\0"s,
                             "a\0b"s,
                             "A\0B"s,
                             "a\1"s,
                             "\n",
                             "\t",
                             " ",
                             "a\n",
                             "abcdefg\0"s,
                             "abcdefgh\0"s,
                             "ABCDEFG\0\0"s,
                             "\xff",
                             "\xc3",
                             "a\xc3(",
                             "\xed\xa0\x80",
                             "\xed\xb0\x80",
                             "\xf4\x90\x80\x80",
                             "\xc0\x80",
                             "file (1).txt",
                             "File (10).txt",
                             "file (2).TXT",
                             ".",
                             "..",
                             ".hidden",
                             ".Hidden"};
    return names;
}

TEST(ShownOrderTest, CaseIsIgnored) {
    EXPECT_EQ(sorted({"b", "C", "a", "B2", "A1"}), (Names{"a", "A1", "b", "B2", "C"}));
}

TEST(ShownOrderTest, NamesThatDifferOnlyInCaseStayInTheirOrder) {
    EXPECT_EQ(sorted({"b", "A", "a", "A", "aa", "AA", "B"}),
              (Names{"A", "a", "A", "aa", "AA", "b", "B"}));
}

TEST(ShownOrderTest, AShorterNameComesFirst) {
    using namespace std::string_literals;
    EXPECT_EQ(sorted({"ab\0"s, "abc", "ab", "AB\0\0"s, ""}),
              (Names{"", "ab", "ab\0"s, "AB\0\0"s, "abc"}));
}

TEST(ShownOrderTest, LowerRanksComeFirst) {
    const std::vector<RankedName> names{{1, "a"}, {0, "z"}, {2, "A"}, {0, "B"}, {255, ""}};
    EXPECT_EQ(shownOrder(names), (std::vector<std::size_t>{3, 1, 0, 2, 4}));
}

TEST(ShownOrderTest, UpperCaseComesBeforeTheSignsBetweenTheAlphabets) {
    EXPECT_EQ(sorted({"_", "Z", "z", "{", "["}), (Names{"[", "_", "Z", "z", "{"}));
}

TEST(ShownOrderTest, NothingIsSorted) {
    EXPECT_TRUE(shownOrder({}).empty());
}

TEST(ShownOrderTest, HardNamesAreOrderedAsQtDoes) {
    EXPECT_EQ(order(hardNames()), orderOfQt(hardNames()));
    Names reversed(hardNames().rbegin(), hardNames().rend());
    EXPECT_EQ(order(reversed), orderOfQt(reversed));
}

TEST(ShownOrderTest, EachPairOfHardNamesIsOrderedAsQtDoes) {
    for (const std::string& a : hardNames())
        for (const std::string& b : hardNames())
            ASSERT_EQ(order({a, b}), orderOfQt({a, b})) << a << " and " << b;
}

TEST(ShownOrderTest, EachCodePointStandsWhereQtPutsIt) {
    Names names;
    for (char32_t point = 0; point <= 0x10ffff; ++point) {
        if (point == 0xd800)
            point = 0xe000;
        if (point >= 0x20000 && point < 0xe0000)
            point = 0xe0000; // only ideographs and unassigned code points; keeps the test short
        names.push_back(QString::fromUcs4(&point, 1).toStdString());
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    EXPECT_EQ(order(names), orderOfQt(names));
}

TEST(ShownOrderTest, NamesMadeByChanceAreOrderedAsQtDoes) {
    std::mt19937 chance(2);
    const auto upTo = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(chance);
    };
    Names names;
    for (int i = 0; i < 20000; ++i) {
        std::string& name = names.emplace_back();
        for (std::size_t parts = upTo(4); parts > 0; --parts)
            name += hardNames()[upTo(hardNames().size())];
    }
    EXPECT_EQ(order(names), orderOfQt(names));
}

TEST(SameNameTest, CaseIsIgnored) {
    EXPECT_TRUE(sameName("C:", "c:"));
    EXPECT_TRUE(sameName("", ""));
    EXPECT_TRUE(sameName("Übung", "ÜBUNG"));
    EXPECT_FALSE(sameName("a", "ab"));
    EXPECT_FALSE(sameName("ab", "a"));
    EXPECT_FALSE(sameName("a", ""));
    EXPECT_FALSE(sameName("[", "{"));
    EXPECT_FALSE(sameName("@", "`"));
}

TEST(SameNameTest, EachPairOfHardNamesIsJudgedAsQtDoes) {
    for (const std::string& a : hardNames())
        for (const std::string& b : hardNames())
            ASSERT_EQ(sameName(a, b), QString::compare(text(a), text(b), Qt::CaseInsensitive) == 0)
                << a << " and " << b;
}

} // namespace
