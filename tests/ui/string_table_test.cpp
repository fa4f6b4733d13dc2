// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "ui/string_table.h"

namespace {

using ui::StringTable;

StringTable tableOf(const char* text, StringTable table = {}) {
    ui::readStringTable(QByteArray(text), table);
    return table;
}

StringTable entry(const char* key, const char* value) {
    return {{QString::fromUtf8(key), QString::fromUtf8(value)}};
}

TEST(StringTable, KeysAreInUpperCaseWithoutBlanks) {
    EXPECT_EQ(tableOf("  DescripTION \t: A company\r\n"), entry("DESCRIPTION", "A company"));
}

TEST(StringTable, AValueKeepsItsColons) {
    EXPECT_EQ(tableOf("HomePageUrl: https://a.example:8443/b"),
              entry("HOMEPAGEURL", "https://a.example:8443/b"));
}

TEST(StringTable, ACommentCutsAValue) {
    EXPECT_EQ(tableOf("homepageurl: https://a.example/#top"),
              entry("HOMEPAGEURL", "https://a.example/"));
}

TEST(StringTable, ACommentBeforeTheColonHidesIt) {
    EXPECT_EQ(tableOf("# key: value\nkey # : value"), StringTable());
}

TEST(StringTable, ALineThatBeginsWithAColonIsSkipped) {
    EXPECT_EQ(tableOf(": value"), StringTable());
}

TEST(StringTable, AKeyOfBlanksIsSkipped) {
    EXPECT_EQ(tableOf(" \t : value"), StringTable());
}

TEST(StringTable, ALineWithoutAColonIsSkipped) {
    EXPECT_EQ(tableOf("a line\n\nkey: value\nanother"), entry("KEY", "value"));
}

TEST(StringTable, AnEmptyValueReplaces) {
    EXPECT_EQ(tableOf("DESCRIPTION:", entry("DESCRIPTION", "built in")), entry("DESCRIPTION", ""));
}

TEST(StringTable, TheLastOfTwoLinesCounts) {
    EXPECT_EQ(tableOf("key: one\nKEY: two\n"), entry("KEY", "two"));
}

TEST(StringTable, TextIsUtf8) {
    EXPECT_EQ(tableOf("schl\xC3\xBCssel: Gr\xC3\xBC\xC3\x9F"
                      "e"),
              entry("SCHL\xC3\x9CSSEL", "Gr\xC3\xBC\xC3\x9F"
                                        "e"));
}

TEST(StringTable, BytesThatAreNoTextDoNoHarm) {
    const StringTable table = tableOf("key: \xff\xfe\nother: fine");
    EXPECT_EQ(table.at(QStringLiteral("OTHER")), QStringLiteral("fine"));
}

} // namespace
