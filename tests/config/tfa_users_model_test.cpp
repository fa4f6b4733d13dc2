// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/tfa_users_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gmock/gmock.h>

using hessiancln::user_email;
using Rows = std::vector<std::string>;

namespace {

class UsersModel : public testing::Test {
protected:
    UsersModel() {
        model.insert(std::vector<user_email>{{"Ada", "Home", "ada@example.org"},
                                             {"bob", "", "bob@example.org"},
                                             {"cy", "work", "cy@example.org"}});
        inserted.clear();
    }

    Rows rows() const {
        Rows texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList fields;
            for (int column = 0; column < model.columnCount(); ++column)
                fields << model.data(model.index(row, column)).toString();
            texts.push_back(fields.join(QLatin1Char(';')).toStdString());
        }
        return texts;
    }

    TFAUsersModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy inserted{&model, &QAbstractItemModel::rowsInserted};
    QSignalSpy changed{&model, &QAbstractItemModel::dataChanged};
    QSignalSpy removed{&model, &QAbstractItemModel::rowsRemoved};
};

const std::string rowOfAda = "Ada;Home;ada@example.org";
const std::string rowOfBob = "bob;;bob@example.org";
const std::string rowOfCy = "cy;work;cy@example.org";

TEST_F(UsersModel, HasThreeColumns) {
    ASSERT_EQ(model.columnCount(), 3);
    const auto header = [this](int column) {
        return model.headerData(column, Qt::Horizontal).toString().toStdString();
    };
    EXPECT_EQ(header(0), "Username");
    EXPECT_EQ(header(1), "Domain");
    EXPECT_EQ(header(2), "Email");
    EXPECT_EQ(rows(), (Rows{rowOfAda, rowOfBob, rowOfCy}));
}

TEST_F(UsersModel, ANewUserComesLast) {
    model.insert({"dan", "home", "dan@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfAda, rowOfBob, rowOfCy, "dan;home;dan@example.org"}));
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 3);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(UsersModel, AUserWhoIsThereGetsTheAddressInPlace) {
    model.insert({"ADA", "home", "new@example.org"});
    EXPECT_EQ(rows(), (Rows{"Ada;Home;new@example.org", rowOfBob, rowOfCy}));
    EXPECT_EQ(inserted.count(), 0);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
}

TEST_F(UsersModel, TheSameNameInAnotherDomainIsAnotherUser) {
    model.insert({"ada", "", "new@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfAda, rowOfBob, rowOfCy, "ada;;new@example.org"}));
}

TEST_F(UsersModel, ManyRowsAreAddedAtOnceAsIfOneByOne) {
    model.insert(std::vector<user_email>{{"dan", "", "one@example.org"},
                                         {"BOB", "", "new@example.org"},
                                         {"eve", "", "eve@example.org"},
                                         {"Dan", "", "two@example.org"}});
    EXPECT_EQ(rows(), (Rows{rowOfAda, "bob;;new@example.org", rowOfCy, "dan;;two@example.org",
                            "eve;;eve@example.org"}));
    EXPECT_EQ(inserted.count(), 1);
}

TEST_F(UsersModel, NoRowsChangeNothing) {
    model.insert(std::vector<user_email>{});
    EXPECT_EQ(rows(), (Rows{rowOfAda, rowOfBob, rowOfCy}));
    EXPECT_EQ(inserted.count(), 0);
}

TEST_F(UsersModel, EditingARowKeepsItsPlace) {
    model.replace(1, {"robert", "home", "r@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfAda, "robert;home;r@example.org", rowOfCy}));
    // From now on it is found under its new name.
    model.insert({"ROBERT", "home", "again@example.org"});
    model.insert({"bob", "", "bob@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfAda, "robert;home;again@example.org", rowOfCy, rowOfBob}));
}

TEST_F(UsersModel, EditingTheCaseOfANameIsAnEditOfThatRow) {
    model.replace(0, {"ADA", "HOME", "ada@example.org"});
    EXPECT_EQ(rows(), (Rows{"ADA;HOME;ada@example.org", rowOfBob, rowOfCy}));
}

TEST_F(UsersModel, ARowEditedIntoAnotherUsersGivesThatUserTheAddress) {
    model.replace(2, {"BOB", "", "new@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfAda, "bob;;new@example.org"}));
    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 2);
}

TEST_F(UsersModel, ARowEditedIntoALaterUsersGivesThatUserTheAddress) {
    model.replace(0, {"cy", "Work", "new@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfBob, "cy;work;new@example.org"}));
    model.insert({"cy", "work", "last@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfBob, "cy;work;last@example.org"}));
}

TEST_F(UsersModel, ARemovedUserIsNewAgain) {
    model.remove(0);
    EXPECT_EQ(rows(), (Rows{rowOfBob, rowOfCy}));
    model.insert({"cy", "work", "new@example.org"});
    model.insert({"ada", "home", "ada@example.org"});
    EXPECT_EQ(rows(), (Rows{rowOfBob, "cy;work;new@example.org", "ada;home;ada@example.org"}));
}

TEST_F(UsersModel, TextIsUtf8) {
    model.insert({"J\xC3\xBCrgen", "", "j@example.org"});
    EXPECT_EQ(model.data(model.index(3, 0)).toString(), QString::fromUtf8("J\xC3\xBCrgen"));
    EXPECT_EQ(model.userEmails().back().username, "J\xC3\xBCrgen");
}

TEST(UsersModelOfManyRows, TakesThemOneByOneAndAgain) {
    constexpr int many = 100000;
    TFAUsersModel model;
    std::vector<user_email> rows;
    for (int row = 0; row < many; ++row)
        rows.push_back({"user" + std::to_string(row), "home", "a@example.org"});

    // Walking the list for each row would take minutes, beyond the time limit.
    model.insert(rows);
    for (user_email& row : rows) {
        row.email = "b@example.org";
        model.insert(row);
    }

    ASSERT_EQ(model.rowCount(), many);
    EXPECT_EQ(model.userEmails().front().email, "b@example.org");
    EXPECT_EQ(model.userEmails().back().email, "b@example.org");
}

} // namespace
