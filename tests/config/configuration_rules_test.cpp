// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QTime>
#include <gmock/gmock.h>

#include "api/client_configuration_records.h"
#include "config/ad_account.h"
#include "config/admin_times.h"
#include "config/chosen_file.h"
#include "config/system_address_list.h"

using hessiancln::DayOfWeekCode;
using hessiancln::time_in_day;

namespace {

QString q(const char* text) {
    return QString::fromUtf8(text);
}

std::string problem(const char* user, const char* password, const char* confirm,
                    const char* domain) {
    return config::problemOf(
               config::AdAccountEntries{{q(domain), q(user)}, q(password), q(confirm)})
        .toStdString();
}

std::vector<int> parts(const time_in_day& time) {
    return {time.hour, time.minute, time.second};
}

} // namespace

TEST(AdminDays, BeginWithSunday) {
    EXPECT_EQ(config::rowOfDay(DayOfWeekCode::Sunday), 0);
    EXPECT_EQ(config::dayOfRow(0), DayOfWeekCode::Sunday);
    EXPECT_EQ(static_cast<int>(config::dayOfRow(0)), 6);
}

TEST(AdminDays, FollowTheWeek) {
    for (int code = 0; code <= 5; ++code) {
        EXPECT_EQ(config::rowOfDay(DayOfWeekCode(code)), code + 1);
        EXPECT_EQ(static_cast<int>(config::dayOfRow(code + 1)), code);
    }
}

TEST(AdminDays, OfNoNameAreSundays) {
    EXPECT_EQ(config::rowOfDay(DayOfWeekCode(7)), 0);
    EXPECT_EQ(config::rowOfDay(DayOfWeekCode(-1)), 0);
    EXPECT_EQ(config::dayOfRow(-1), DayOfWeekCode::Sunday);
}

TEST(AdminRunTime, IsHourAndMinute) {
    EXPECT_EQ(parts(config::runTime(true, QTime(23, 59, 58))), (std::vector{23, 59, 0}));
    EXPECT_EQ(parts(config::runTime(true, QTime(0, 0))), (std::vector{0, 0, 0}));
}

TEST(AdminRunTime, OfARunThatIsOffSaysSo) {
    const time_in_day off = config::runTime(false, QTime(23, 59));
    EXPECT_EQ(parts(off), (std::vector{-1, 0, 0}));
    EXPECT_TRUE(hessiancln::isRunOff(off));
}

TEST(AdAccountName, StandsAroundTheBackslash) {
    const auto name = config::adAccountNameOf("OFFICE\\J\xC3\xBCrgen");
    ASSERT_TRUE(name);
    EXPECT_EQ(name->domain, q("OFFICE"));
    EXPECT_EQ(name->user, q("Jürgen"));
}

TEST(AdAccountName, EndsItsDomainAtTheFirstBackslash) {
    const auto name = config::adAccountNameOf("a\\b\\c");
    ASSERT_TRUE(name);
    EXPECT_EQ(name->domain, q("a"));
    EXPECT_EQ(name->user, q("b\\c"));
}

TEST(AdAccountName, MayBeEmpty) {
    const auto name = config::adAccountNameOf("\\");
    ASSERT_TRUE(name);
    EXPECT_EQ(name->domain, QString());
    EXPECT_EQ(name->user, QString());
}

TEST(AdAccountName, NeedsABackslash) {
    EXPECT_FALSE(config::adAccountNameOf(""));
    EXPECT_FALSE(config::adAccountNameOf("anna@example.org"));
}

TEST(AdAccountName, IsSentWithoutBlanks) {
    EXPECT_EQ(config::adUsernameOf({q(" OFFICE\t"), q("  Jürgen K ")}), "OFFICE\\J\xC3\xBCrgen K");
    EXPECT_EQ(config::adUsernameOf({}), "\\");
}

TEST(AdAccountEntries, MayAllBeEmpty) {
    EXPECT_EQ(problem("", "", "", ""), "");
    EXPECT_EQ(problem("", "", "left over", ""), "");
}

TEST(AdAccountEntries, AreCheckedInOrder) {
    EXPECT_EQ(problem("", "", "x", "d"), "Username is required for initialization.");
    EXPECT_EQ(problem("", "p", "", ""), "Username is required for initialization.");
    EXPECT_EQ(problem("u", "", "x", ""), "Password is required for initialization.");
    EXPECT_EQ(problem("u", "p", "P", ""), "The password you typed do not match.");
    EXPECT_EQ(problem("u", "p", "p", ""), "Domain is required for initialization.");
    EXPECT_EQ(problem("u", "p", "p", "d"), "");
}

TEST(AdAccountEntries, NeedThePasswordTwice) {
    EXPECT_EQ(problem("u", "p", "", "d"), "The password you typed do not match.");
    EXPECT_EQ(problem("u", "p", "p ", "d"), "The password you typed do not match.");
    EXPECT_EQ(problem("u", " ", " ", "d"), "");
}

TEST(SystemAddresses, AreCutAtBackslashAndSemicolon) {
    EXPECT_EQ(config::systemAddressesOf(" a \\;;b\\;\\; \\;c\\"),
              (QStringList{q("a"), q(";b"), q("c\\")}));
    EXPECT_EQ(config::systemAddressesOf(""), QStringList());
    EXPECT_EQ(config::systemAddressesOf("one"), QStringList(q("one")));
}

TEST(SystemAddresses, BecomeOneText) {
    EXPECT_EQ(config::systemAddressesText({}), "");
    EXPECT_EQ(config::systemAddressesText({q("one")}), "one");
    EXPECT_EQ(config::systemAddressesText({q("ä"), q("b")}), "\xC3\xA4\\;b");
}

TEST(SystemAddresses, AreTakenOnceAndWithoutBlanks) {
    using config::newSystemAddress;
    EXPECT_EQ(newSystemAddress(q("  a.b "), {}), q("a.b"));
    EXPECT_EQ(newSystemAddress(q(" \t"), {}), std::nullopt);
    EXPECT_EQ(newSystemAddress(q(""), {}), std::nullopt);
    EXPECT_EQ(newSystemAddress(q(" a.b"), {q("c"), q("a.b")}), std::nullopt);
    EXPECT_EQ(newSystemAddress(q("A.b"), {q("a.b")}), q("A.b"));
}

TEST(ChosenFile, EndsInItsSuffixInAnyCase) {
    const auto first = [](const QStringList& names) {
        return config::firstFileEndingIn(QLatin1String(".csv"), names);
    };
    const QString lower = q("/a/users.csv");
    const QString upper = q("/a/USERS.CSV");
    EXPECT_EQ(first({lower}), lower);
    EXPECT_EQ(first({q("/a/users.txt"), upper, lower}), upper);
    EXPECT_EQ(first({}), QString());
    EXPECT_EQ(first({q("/a.csv/users"), q("/a/users.csv.bak"), q("csv")}), QString());
}
