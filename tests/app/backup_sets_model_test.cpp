// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAbstractItemModelTester>
#include <QTest>

#include "app/backup_sets_model.h"

using hessiancln::backup_set_info;

namespace {

backup_set_info makeSet(std::int32_t id, const char* name, const char* computer,
                        hessiancln::BackupDataType type = hessiancln::BackupDataType::FileSystem) {
    backup_set_info set;
    set.id = id;
    set.name = name;
    set.computer = computer;
    set.data_type = type;
    return set;
}

} // namespace

class BackupSetsModelTest : public QObject {
    Q_OBJECT
private slots:
    void keepsTheOrderOfTheAgent() {
        model_.setSets({makeSet(7, "Zebra", "north"), makeSet(3, "Apple", "south")});
        QCOMPARE(model_.rowCount(), 2);
        QCOMPARE(text(0, BackupSetsModel::nameColumn), QStringLiteral("Zebra"));
        QCOMPARE(text(0, BackupSetsModel::computerColumn), QStringLiteral("north"));
        QCOMPARE(text(1, BackupSetsModel::nameColumn), QStringLiteral("Apple"));
        QCOMPARE(model_.rowOf(3), 1);
        QCOMPARE(model_.rowOf(4), -1);
    }

    void leavesOutSetsThatHoldNoFiles() {
        model_.setSets({makeSet(1, "Database", "north", hessiancln::BackupDataType::MSSQLServer),
                        makeSet(2, "Files", "north")});
        QCOMPARE(model_.rowCount(), 1);
        QCOMPARE(text(0, BackupSetsModel::nameColumn), QStringLiteral("Files"));
    }

    void showsTextBeyondAscii() {
        model_.setSets({makeSet(1, "B\xC3\xBCro \xE2\x82\xAC", "n\xC3\xB8rth")});
        QCOMPARE(text(0, BackupSetsModel::nameColumn), QString::fromUtf8("Büro €"));
    }

    void growsAndShrinks() {
        model_.setSets({makeSet(1, "a", "c")});
        model_.setSets({makeSet(1, "a", "c"), makeSet(2, "b", "c"), makeSet(3, "d", "c")});
        QCOMPARE(model_.rowCount(), 3);
        model_.setSets({makeSet(3, "d", "c")});
        QCOMPARE(model_.rowCount(), 1);
        QCOMPARE(text(0, BackupSetsModel::nameColumn), QStringLiteral("d"));
        model_.setSets({});
        QCOMPARE(model_.rowCount(), 0);
    }

private:
    QString text(int row, int column) {
        return model_.data(model_.index(row, column), Qt::DisplayRole).toString();
    }

    BackupSetsModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::QtTest};
};

QTEST_MAIN(BackupSetsModelTest)
#include "backup_sets_model_test.moc"
