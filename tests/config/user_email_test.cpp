// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

#include <QBuffer>
#include <QTextCodec>
#include <gmock/gmock.h>

#include "config/user_email_csv.h"
#include "config/user_email_rules.h"

using hessiancln::user_email;
using Rows = std::vector<std::string>;

namespace {

const QString badAddress = QStringLiteral("Not a valid Email address.");

QString problem(const char* email) {
    return config::problemOf({"ada", "", email});
}

std::string text(const user_email& row) {
    return row.username + ";" + row.domain + ";" + row.email;
}

Rows texts(const std::vector<user_email>& rows) {
    Rows result;
    for (const user_email& row : rows)
        result.push_back(text(row));
    return result;
}

std::vector<user_email> readBytes(QByteArray bytes) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    return config::readUserEmails(file).rows;
}

Rows read(const QByteArray& bytes) {
    return texts(readBytes(bytes));
}

// Rules

TEST(UserEmailRules, AskForAUserNameFirst) {
    EXPECT_EQ(config::problemOf({"", "", ""}), QStringLiteral("Username is required."));
}

TEST(UserEmailRules, AskForAnAddress) {
    EXPECT_EQ(config::problemOf({"ada", "home", ""}), QStringLiteral("Email is required."));
}

TEST(UserEmailRules, AllowAnEmptyDomain) {
    EXPECT_EQ(config::problemOf({"ada", "", "ada@example.org"}), QString());
}

TEST(UserEmailRules, TakeAddressesInAnyCase) {
    for (const char* good :
         {"a@b.cd", "ADA@EXAMPLE.ORG", "a.b_c%d+e-f@x-y.sub.Info", "1@2.de", "_@a.fr", "a@..fr"})
        EXPECT_EQ(problem(good), QString()) << good;
}

TEST(UserEmailRules, RefuseWhatIsNoAddress) {
    for (const char* bad : {"ada", "ada.example.org", "@example.org", "ada@", "ada@example",
                            "ada@example.", "ada@example.o", "a da@example.org", "ada@exam_ple.org",
                            "ada@example.c0m", "\xC3\xA4@example.org"})
        EXPECT_EQ(problem(bad), badAddress) << bad;
}

TEST(UserEmailRules, RefuseALastPartOfMoreThanFourLetters) {
    EXPECT_EQ(problem("ada@example.info"), QString());
    EXPECT_EQ(problem("ada@example.photo"), badAddress);
}

TEST(UserEmailRules, WantTheWholeTextToBeTheAddress) {
    for (const char* bad : {" ada@example.org", "ada@example.org ", "ada@example.org\n",
                            "Ada <ada@example.org>", "ada@example.org, bob@example.org"})
        EXPECT_EQ(problem(bad), badAddress) << bad;
}

TEST(UserEmailRules, WantALetterADigitOrAnUnderscoreFirst) {
    for (const char* bad : {"+ada@example.org", ".ada@example.org", "-ada@example.org"})
        EXPECT_EQ(problem(bad), badAddress) << bad;
}

TEST(UserEmailRules, TellUsersApartByNameAndDomainWithoutCase) {
    const QString ada = config::userKey({"Ada", "Home", "one@example.org"});
    EXPECT_EQ(config::userKey({"aDA", "hOME", "other@example.org"}), ada);
    EXPECT_NE(config::userKey({"ada", "", "one@example.org"}), ada);
    EXPECT_NE(config::userKey({"adah", "ome", "one@example.org"}), ada);
    EXPECT_EQ(config::userKey({"\xC3\x84", "", ""}), config::userKey({"\xC3\xA4", "", ""}));
}

// Lines

TEST(UserEmailLine, IsSplitAtEachOfTheThreeSeparators) {
    for (const char* line :
         {"ada,home,a@b.cd", "ada|home|a@b.cd", "ada\thome\ta@b.cd", "ada,home|a@b.cd",
          "ada\thome,a@b.cd|", "ada|home\ta@b.cd,rest\trest"}) {
        const auto row = config::userEmailOf(QString::fromLatin1(line));
        ASSERT_TRUE(row) << line;
        EXPECT_EQ(text(*row), "ada;home;a@b.cd") << line;
    }
}

TEST(UserEmailLine, KeepsEmptyFieldsAndBlanks) {
    const auto row = config::userEmailOf(QStringLiteral(" ada ,, a@b.cd"));
    ASSERT_TRUE(row);
    EXPECT_EQ(text(*row), " ada ;; a@b.cd");
}

TEST(UserEmailLine, KnowsNoOtherSeparatorAndNoQuotes) {
    EXPECT_FALSE(config::userEmailOf(QStringLiteral("ada;home;a@b.cd")));
    EXPECT_FALSE(config::userEmailOf(QStringLiteral("ada\\home\\a@b.cd")));
    const auto row = config::userEmailOf(QStringLiteral("\"ada,home\",a@b.cd"));
    ASSERT_TRUE(row);
    EXPECT_EQ(text(*row), "\"ada;home\";a@b.cd");
}

TEST(UserEmailLine, OfTwoFieldsHoldsNoRow) {
    for (const char* line : {"", "ada", "ada,a@b.cd", ","})
        EXPECT_FALSE(config::userEmailOf(QString::fromLatin1(line))) << line;
}

// Files

TEST(UserEmailCsv, GivesTheRowsInOrder) {
    EXPECT_EQ(read("ada,home,a@b.cd\nbob|work|b@b.cd\n"),
              (Rows{"ada;home;a@b.cd", "bob;work;b@b.cd"}));
}

TEST(UserEmailCsv, SkipsALineOfTwoFields) {
    EXPECT_EQ(read("ada,a@b.cd\nbob,work,b@b.cd"), Rows{"bob;work;b@b.cd"});
}

TEST(UserEmailCsv, DropsAnAddressWithoutAnAtSign) {
    EXPECT_EQ(read("ada,home,a.b.cd\nbob,work,b@b.cd"), Rows{"bob;work;b@b.cd"});
}

TEST(UserEmailCsv, DropsARowWithoutAUser) {
    EXPECT_EQ(read(",home,a@b.cd\nbob,,b@b.cd"), Rows{"bob;;b@b.cd"});
}

TEST(UserEmailCsv, EndsLinesWithAndWithoutCarriageReturn) {
    EXPECT_EQ(read("ada,home,a@b.cd\r\nbob,work,b@b.cd\ncy,,c@b.cd\r\n"),
              (Rows{"ada;home;a@b.cd", "bob;work;b@b.cd", "cy;;c@b.cd"}));
}

TEST(UserEmailCsv, ReadsEmptyFilesAndEmptyLines) {
    EXPECT_EQ(read(""), Rows{});
    EXPECT_EQ(read("\n\r\n\n"), Rows{});
    EXPECT_EQ(read("\n\nada,,a@b.cd\n\n"), Rows{"ada;;a@b.cd"});
}

TEST(UserEmailCsv, IsUtf8WithoutAMark) {
    EXPECT_EQ(read("\xC3\x84"
                   "da,B\xC3\xBCro,a@b.cd"),
              Rows{"\xC3\x84"
                   "da;B\xC3\xBCro;a@b.cd"});
}

TEST(UserEmailCsv, IsUtf8WhateverTheSystemWritesIn) {
    QTextCodec* const system = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1252"));
    const Rows rows = read("\xC3\x84"
                           "da,,a@b.cd");
    QTextCodec::setCodecForLocale(system);
    EXPECT_EQ(rows, Rows{"\xC3\x84"
                         "da;;a@b.cd"});
}

TEST(UserEmailCsv, IsUtf8WithAMark) {
    EXPECT_EQ(read("\xEF\xBB\xBF\xC3\x84"
                   "da,home,a@b.cd"),
              Rows{"\xC3\x84"
                   "da;home;a@b.cd"});
}

TEST(UserEmailCsv, KnowsUtf16ByItsMark) {
    QByteArray bytes("\xFF\xFE");
    for (const char letter : QByteArray("ada,home,a@b.cd\r\n"))
        bytes.append(letter).append('\0');
    EXPECT_EQ(read(bytes), Rows{"ada;home;a@b.cd"});
}

TEST(UserEmailCsv, IsLatin1WhereItIsNotUtf8) {
    EXPECT_EQ(read("\xC4"
                   "da,B\xFCro,a@b.cd"),
              Rows{"Äda;Büro;a@b.cd"});
}

TEST(UserEmailCsv, CountsWhatWasTaken) {
    QByteArray bytes("ada,home,a@b.cd\n\n \nbob,b@b.cd\ncy,home,c.cd\ndan,,d@b.cd\n");
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    const config::UserEmailList list = config::readUserEmails(file);
    EXPECT_EQ(list.lines.taken, 2);
    EXPECT_EQ(list.lines.skipped, 2);
}

// A reader that rescans what it has already read would exceed the time limit.
TEST(UserEmailCsv, ReadsALineOfOneMegabyte) {
    const QByteArray name(1024 * 1024, 'x');
    const QByteArray separators(1024 * 1024, ',');
    const Rows rows = read(name + ",home,a@b.cd\n" + "ada,home," + name + "\n" + separators +
                           "\nbob,,b@b.cd\ncy,,c@b.cd" + separators);
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0], name.toStdString() + ";home;a@b.cd");
    EXPECT_EQ(rows[1], "bob;;b@b.cd");
    EXPECT_EQ(rows[2], "cy;;c@b.cd");
}

TEST(UserEmailCsv, ReadsAHundredThousandLines) {
    QByteArray bytes;
    for (int line = 0; line < 100000; ++line)
        bytes += "user" + QByteArray::number(line) + ",home,u" + QByteArray::number(line) +
                 "@example.org\r\n";
    const std::vector<user_email> rows = readBytes(bytes);
    ASSERT_EQ(rows.size(), 100000u);
    EXPECT_EQ(text(rows.back()), "user99999;home;u99999@example.org");
}

} // namespace
