// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/restore_path.h"

#include <array>
#include <utility>

#include <QLocale>
#include <QStandardItemModel>

#include <gtest/gtest.h>

#include "wizards/restore_reasons.h"

namespace {

using hessiancln::ClientOSType;
using wizards::closestDirectory;

constexpr auto unix = ClientOSType(1);

QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// "C:" with "Users" with "ann", and "/" with "home".
class RestorePathTest : public testing::Test {
protected:
    RestorePathTest() {
        auto* drive = new QStandardItem(q("C:"));
        auto* users = new QStandardItem(q("Users"));
        users->appendRow(new QStandardItem(q("ann")));
        drive->appendRow(users);
        tree_.appendRow(drive);
        auto* root = new QStandardItem(q("/"));
        root->appendRow(new QStandardItem(q("home")));
        tree_.appendRow(root);
    }

    QString found(const char* path, ClientOSType system) {
        const QModelIndex index = closestDirectory(tree_, q(path), system);
        return index.isValid() ? index.data().toString() : q("(none)");
    }

    QStandardItemModel tree_;
};

TEST_F(RestorePathTest, APathLeadsToItsDirectory) {
    EXPECT_EQ(found("C:\\Users\\ann", ClientOSType::Windows), q("ann"));
}

TEST_F(RestorePathTest, EmptyPartsDontCount) {
    EXPECT_EQ(found("\\C:\\\\Users\\", ClientOSType::Windows), q("Users"));
}

TEST_F(RestorePathTest, WhatIsMissingIsDropped) {
    EXPECT_EQ(found("C:\\Users\\bob\\x", ClientOSType::Windows), q("Users"));
    EXPECT_EQ(found("Q:\\Users", ClientOSType::Windows), q("(none)"));
    EXPECT_EQ(found("", ClientOSType::Windows), q("(none)"));
}

TEST_F(RestorePathTest, CaseCountsOutsideWindowsOnly) {
    EXPECT_EQ(found("c:\\USERS\\ANN", ClientOSType::Windows), q("ann"));
    EXPECT_EQ(found("C:\\USERS\\ann", unix), q("C:"));
}

TEST_F(RestorePathTest, SlashesPartNothing) {
    EXPECT_EQ(found("/home", unix), q("(none)"));
    EXPECT_EQ(found("/\\home", unix), q("home"));
}

TEST(RestoreDirectoryTest, StandsBetweenSlashes) {
    EXPECT_EQ(wizards::directoryIn(q("C:\\Users"), q("restore_x")), q("C:\\Users/restore_x/"));
    EXPECT_EQ(wizards::directoryIn(q("/"), q("restore_x")), q("//restore_x/"));
}

TEST(RestoreDirectoryTest, ReportsItsTime) {
    const QDateTime time(QDate(2026, 5, 9), QTime(7, 3, 4));
    const QString month = QLocale::system().monthName(5, QLocale::ShortFormat);
    EXPECT_EQ(wizards::timeInDirectoryName(time), q("2026_") + month + q("_09_07-03-04"));
}

TEST(RestoreReasonsTest, AreListedInTheirOrder) {
    const std::array<std::pair<const char*, int>, 12> expected{{
        {"Human Factor", 13},
        {"    Device lost or stolen", 3},
        {"    User error/Accidental Data Deletion", 1},
        {"    User data deletion - malicious intent", 2},
        {"    Data stolen", 6},
        {"    Access to a previous generation of the data", 11},
        {"Internal cause", 13},
        {"    Data loss - Hardware malfunction", 4},
        {"    Data loss - Software malfunction", 5},
        {"External cause", 13},
        {"    Natural disasters", 8},
        {"    Power outages", 9},
    }};
    const auto& reasons = wizards::restoreReasons();
    ASSERT_EQ(reasons.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_STREQ(reasons[i].text, expected[i].first);
        EXPECT_EQ(static_cast<int>(reasons[i].code), expected[i].second) << expected[i].first;
    }
}

} // namespace
