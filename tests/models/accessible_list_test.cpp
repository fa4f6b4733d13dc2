// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// What a screen reader sees of a list that shows a folder of a tree.

#include <QAccessible>
#include <QStandardItemModel>
#include <QtTest>

#include "models/small_list_view.h"

namespace {

QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// A list of the folder "letters" with 30 files, beside a folder with one; seen by a screen reader.
struct ShownFolder {
    ShownFolder() {
        auto* letters = new QStandardItem(q("letters"));
        for (int row = 0; row < files; ++row) {
            auto* file = new QStandardItem(QStringLiteral("letter %1").arg(row));
            file->setCheckable(true);
            letters->appendRow(file);
        }
        auto* photos = new QStandardItem(q("photos"));
        photos->appendRow(new QStandardItem(q("one.jpg")));
        model.appendRow(letters);
        model.appendRow(photos);
        list.setModel(&model);
        list.setRootIndex(folder(0));
        list.resize(200, 100);
        list.show();
    }

    QModelIndex folder(int row) const { return model.index(row, 0); }
    QModelIndex file(int row) const { return model.index(row, 0, list.rootIndex()); }
    QAccessibleInterface& face() { return *QAccessible::queryAccessibleInterface(&list); }
    QAccessibleTableInterface& table() { return *face().tableInterface(); }
    QStringList texts() {
        QStringList texts;
        for (int row = 0; row < face().childCount(); ++row)
            texts << face().child(row)->text(QAccessible::Name);
        return texts;
    }

    static constexpr int files = 30;
    QStandardItemModel model;
    CSmallListView list;
};

QAccessible::State stateOf(ShownFolder& shown, int row) {
    return shown.face().child(row)->state();
}

} // namespace

class AccessibleListTest : public QObject {
    Q_OBJECT
private slots:
    void theRowsAreThoseOfTheFolder() {
        ShownFolder shown;
        QCOMPARE(shown.face().role(), QAccessible::List);
        QCOMPARE(shown.face().childCount(), ShownFolder::files);
        QCOMPARE(shown.table().rowCount(), ShownFolder::files);
        QCOMPARE(shown.table().columnCount(), 1);
        for (const int row : {0, 1, 29}) {
            QAccessibleInterface* cell = shown.table().cellAt(row, 0);
            QVERIFY(cell && cell->isValid());
            QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("letter %1").arg(row));
            QCOMPARE(cell->role(), QAccessible::ListItem);
            QCOMPARE(shown.face().child(row), cell);
            QCOMPARE(shown.face().indexOfChild(cell), row);
            QCOMPARE(cell->parent(), &shown.face());
            QCOMPARE(cell->tableCellInterface()->table(), &shown.face());
            QCOMPARE(cell->tableCellInterface()->rowIndex(), row);
        }
        for (const int row : {-1, 30})
            QCOMPARE(shown.table().cellAt(row, 0), nullptr);
        QCOMPARE(shown.table().cellAt(0, 1), nullptr);
    }

    void anotherFolderHasOtherRows() {
        ShownFolder shown;
        QCOMPARE(shown.texts().size(), ShownFolder::files);
        shown.list.setRootIndex(shown.folder(1));
        QCOMPARE(shown.table().rowCount(), 1);
        QCOMPARE(shown.texts(), QStringList(q("one.jpg")));
        shown.list.setRootIndex({});
        QCOMPARE(shown.texts(), QStringList({q("letters"), q("photos")}));
    }

    void rowsThatMoveKeepTheirTexts() {
        ShownFolder shown;
        QCOMPARE(shown.face().child(2)->text(QAccessible::Name), q("letter 2"));
        shown.model.itemFromIndex(shown.folder(0))->removeRow(1);
        QCOMPARE(shown.table().rowCount(), ShownFolder::files - 1);
        QCOMPARE(shown.face().child(2)->text(QAccessible::Name), q("letter 3"));
        shown.model.clear();
        QCOMPARE(shown.table().rowCount(), 0);
        QCOMPARE(shown.face().child(2), nullptr);
    }

    void aRowHasItsStates() {
        ShownFolder shown;
        shown.list.setCurrentIndex(shown.file(1));
        QVERIFY(stateOf(shown, 1).focused && stateOf(shown, 1).selected);
        QVERIFY(!stateOf(shown, 0).focused && !stateOf(shown, 0).selected);
        QVERIFY(stateOf(shown, 0).checkable && !stateOf(shown, 0).checked);
        shown.model.setData(shown.file(0), Qt::Checked, Qt::CheckStateRole);
        QVERIFY(stateOf(shown, 0).checked && !stateOf(shown, 0).checkStateMixed);
        shown.model.setData(shown.file(0), Qt::PartiallyChecked, Qt::CheckStateRole);
        QVERIFY(!stateOf(shown, 0).checked && stateOf(shown, 0).checkStateMixed);
        // Only a few rows fit.
        QVERIFY(!stateOf(shown, 0).offscreen);
        QVERIFY(stateOf(shown, 29).offscreen);
    }

    void aRowIsFoundWhereItIs() {
        ShownFolder shown;
        QAccessibleInterface* row = shown.face().child(2);
        QCOMPARE(row->rect().size(), shown.list.visualRect(shown.file(2)).size());
        const QPoint middle = row->rect().center();
        QCOMPARE(shown.face().childAt(middle.x(), middle.y()), row);
        QCOMPARE(shown.face().childAt(-100, -100), nullptr);
    }

    void aRowIsCheckedAndSelected() {
        ShownFolder shown;
        auto* action = shown.face().child(3)->actionInterface();
        QCOMPARE(action->actionNames(), QStringList(QAccessibleActionInterface::toggleAction()));
        action->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(shown.file(3).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        action->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(shown.file(3).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));

        QVERIFY(shown.table().selectRow(3));
        QVERIFY(shown.table().selectRow(5));
        QCOMPARE(shown.table().selectedRows(), QList<int>{5});
        QCOMPARE(shown.table().selectedCells().first(), shown.face().child(5));
        QVERIFY(shown.table().isRowSelected(5));
        QVERIFY(shown.table().unselectRow(5));
        QCOMPARE(shown.table().selectedRowCount(), 0);
        QVERIFY(!shown.table().selectRow(30));
    }
};

QTEST_MAIN(AccessibleListTest)
#include "accessible_list_test.moc"
