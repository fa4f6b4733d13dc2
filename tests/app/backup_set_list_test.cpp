// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

#include "app/backup_set_list.h"
#include "resources/pictures.h"
#include "session/process_values.h"
#include "tests/support/gui_modal_driver.h"

using hessiancln::backup_set_info;
using support::child;

namespace {

backup_set_info fileSet(std::int32_t id) {
    backup_set_info set;
    set.id = id;
    set.name = "Set " + std::to_string(id);
    set.in_sync = true;
    set.has_items = true;
    return set;
}

/// A list over sets chosen by the test, in a visible view.
struct ShownList {
    ShownList() {
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setSelectionMode(QAbstractItemView::SingleSelection);
        view.verticalHeader()->setDefaultSectionSize(70);
        view.resize(500, 200);
        view.show();
        if (!QTest::qWaitForWindowActive(&view))
            qFatal("The view doesn't become active");
    }

    void rebuildWith(std::initializer_list<std::int32_t> ids) {
        sets.clear();
        for (const std::int32_t id : ids)
            sets.push_back(fileSet(id));
        QVERIFY(list.rebuild());
    }

    BackupSetViewItem& card(int row) {
        return static_cast<BackupSetViewItem&>(*view.indexWidget(view.model()->index(row, 0)));
    }
    QList<int> ids() {
        QList<int> found;
        for (int row = 0; row < list.count(); ++row)
            found << card(row).record().id;
        return found;
    }
    QList<int> highlighted() {
        QList<int> found;
        for (int row = 0; row < list.count(); ++row)
            if (view.indexWidget(view.model()->index(row, 0)) &&
                card(row).backgroundRole() == QPalette::Highlight)
                found << card(row).record().id;
        return found;
    }
    int selectedId() { return list.selectedCard() ? list.selectedCard()->record().id : -1; }

    QLineEdit& startRename(int row) {
        const QPoint name = child<QLabel>(card(row), "labelSetName").geometry().center();
        QTest::mouseDClick(&card(row), Qt::LeftButton, {}, name);
        return child<QLineEdit>(card(row), "nameEditor");
    }

    std::vector<backup_set_info> sets;
    int asked = 0;
    QStringList renames;
    QTableView view;
    app::BackupSetList list{view,
                            [this] {
                                ++asked;
                                return sets;
                            },
                            [this](std::int32_t id, const QString& name) {
                                renames << QStringLiteral("%1=%2").arg(id).arg(name);
                            }};
    QSignalSpy selections{&list, &app::BackupSetList::selectionChanged};
};

} // namespace

class BackupSetListTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void keepsTheOrderAndLeavesOutWhatHoldsNoFiles() {
        ShownList shown;
        shown.sets = {fileSet(9), fileSet(3), fileSet(5)};
        shown.sets[1].data_type = hessiancln::BackupDataType::MSSQLServer;
        QVERIFY(shown.list.rebuild());
        QCOMPARE(shown.ids(), (QList<int>{9, 5}));
        QCOMPARE(shown.list.selectedCard(), nullptr);
    }

    void aRowKeepsItsCard() {
        ShownList shown;
        shown.rebuildWith({1, 2});
        const BackupSetViewItem* card = &shown.card(0);
        shown.rebuildWith({7, 8, 9});
        QCOMPARE(&shown.card(0), card);
        QCOMPARE(shown.ids(), (QList<int>{7, 8, 9}));
    }

    void onlyWhatIsNearTheViewHasACard() {
        ShownList shown;
        for (std::int32_t id = 0; id < 500; ++id)
            shown.sets.push_back(fileSet(id));
        QVERIFY(shown.list.rebuild());
        const auto cardAt = [&shown](int row) {
            return qobject_cast<BackupSetViewItem*>(
                shown.view.indexWidget(shown.view.model()->index(row, 0)));
        };
        QCOMPARE(shown.list.count(), 500);
        QVERIFY(shown.view.findChildren<BackupSetViewItem*>().size() < 50);
        QVERIFY(cardAt(0) && cardAt(10) && !cardAt(200));
        QCoreApplication::processEvents(); // the view learns how far it scrolls
        shown.view.scrollTo(shown.view.model()->index(200, 0));
        QVERIFY(cardAt(200) && cardAt(200)->record().id == 200);
        QVERIFY(!cardAt(400));
        shown.view.selectRow(450);
        QCOMPARE(shown.selectedId(), 450);
        QCOMPARE(shown.highlighted().size(), 1);
    }

    void setsWithoutACardAreKnownAndSelected() {
        ShownList shown;
        for (std::int32_t id = 0; id < 500; ++id)
            shown.sets.push_back(fileSet(id));
        QVERIFY(shown.list.rebuild());
        const auto records = shown.list.records();
        QCOMPARE(records.size(), std::size_t(500));
        QCOMPARE(records.at(499).name, std::string("Set 499"));
        QVERIFY(shown.list.selectSet(400));
        QCOMPARE(shown.selectedId(), 400);
        QVERIFY(!shown.list.selectSet(500));
        QCOMPARE(shown.selectedId(), 400);
    }

    void aSetThatGoesWhileItIsSelectedIsNotSelected() {
        ShownList shown;
        shown.rebuildWith({1, 2, 3});
        const auto rebuildWithoutIt =
            connect(&shown.list, &app::BackupSetList::selectionChanged, &shown.list, [&shown] {
                shown.sets = {fileSet(1), fileSet(3)};
                shown.list.rebuild();
            });
        QVERIFY(!shown.list.selectSet(2));
        disconnect(rebuildWithoutIt);
        QVERIFY(shown.list.selectSet(1));
    }

    void aSetToSelectIsForgottenWithTheSession() {
        ShownList shown;
        shown.list.selectOnceListed(2);
        shown.list.clear();
        shown.rebuildWith({1, 2});
        QCOMPARE(shown.list.selectedCard(), nullptr);
    }

    void cardsComeWithALargerView() {
        ShownList shown;
        for (std::int32_t id = 0; id < 100; ++id)
            shown.sets.push_back(fileSet(id));
        QVERIFY(shown.list.rebuild());
        QVERIFY(!shown.view.indexWidget(shown.view.model()->index(50, 0)));
        shown.view.resize(500, 60 * 70);
        QTRY_VERIFY(shown.view.indexWidget(shown.view.model()->index(50, 0)));
    }

    void rowsTellTheirSetInWords() {
        ShownList shown;
        shown.sets = {fileSet(1), fileSet(2), fileSet(3)};
        for (backup_set_info& set : shown.sets)
            set.computer = "desk";
        shown.sets[1].in_sync = false;
        shown.sets[2].has_items = false;
        shown.sets[2].is_created_by_policy = true;
        QVERIFY(shown.list.rebuild());
        const auto* table = QAccessible::queryAccessibleInterface(&shown.view)->tableInterface();
        const auto reported = [table](int row) {
            return const_cast<QAccessibleTableInterface*>(table)->cellAt(row, 0)->text(
                QAccessible::Name);
        };
        QCOMPARE(reported(0), QStringLiteral("Set 1, Backup of: desk, In sync"));
        QCOMPARE(reported(1), QStringLiteral("Set 2, Backup of: desk, Not in sync"));
        QCOMPARE(reported(2), QStringLiteral("Set 3, Backup of: desk, Recovered, needs editing, "
                                             "Created by a policy"));
        const QSignalSpy changes(shown.view.model(), &QAbstractItemModel::dataChanged);
        shown.sets[1].in_sync = true;
        QVERIFY(shown.list.rebuild());
        QCOMPARE(changes.count(), 1);
        QCOMPARE(reported(1), QStringLiteral("Set 2, Backup of: desk, In sync"));
        // The cards cover the rows.
        QCOMPARE(shown.view.model()->index(0, 0).data(), QVariant());
    }

    void theUsersSelectionIsMarkedAndReported() {
        ShownList shown;
        shown.rebuildWith({1, 2, 3});
        shown.view.selectRow(1);
        QCOMPARE(shown.selections.count(), 1);
        QCOMPARE(shown.selectedId(), 2);
        QCOMPARE(shown.highlighted(), QList<int>{2});
        shown.view.selectRow(2);
        QCOMPARE(shown.selections.count(), 2);
        QCOMPARE(shown.highlighted(), QList<int>{3});
    }

    void theSelectionFollowsItsSetInSilence() {
        ShownList shown;
        shown.rebuildWith({1, 2, 3});
        shown.view.selectRow(2);
        shown.rebuildWith({3, 1});
        QCOMPARE(shown.selectedId(), 3);
        QCOMPARE(shown.highlighted(), QList<int>{3});
        QCOMPARE(shown.selections.count(), 1);
    }

    void aSetIsSelectedOnceItIsListed() {
        ShownList shown;
        shown.rebuildWith({1, 2});
        shown.view.selectRow(0);
        shown.list.selectOnceListed(3);
        shown.rebuildWith({1, 2});
        QCOMPARE(shown.selectedId(), 1);
        shown.rebuildWith({1, 2, 3});
        QCOMPARE(shown.selectedId(), 3);
        // Only once: after that the user's selection counts.
        shown.view.selectRow(0);
        shown.rebuildWith({1, 2, 3});
        QCOMPARE(shown.selectedId(), 1);
    }

    void aSetIsScrolledIntoViewWhenItIsSelected() {
        ShownList shown;
        shown.rebuildWith({1, 2, 3, 4, 5, 6, 7, 8});
        QVERIFY(!shown.view.viewport()->rect().contains(shown.card(7).geometry()));
        shown.list.selectOnceListed(8);
        QVERIFY(shown.list.rebuild());
        QTRY_VERIFY(shown.view.viewport()->rect().contains(shown.card(7).geometry()));
    }

    void onlyAListThatWasReadIsKnownToBeEmpty() {
        QTableView view;
        bool fails = true;
        app::BackupSetList list(view, [&fails]() -> std::vector<backup_set_info> {
            if (fails)
                throw std::runtime_error("Out of order.");
            return {};
        });
        QVERIFY(!list.isKnownToBeEmpty());
        QVERIFY_EXCEPTION_THROWN(list.rebuild(), std::runtime_error);
        QVERIFY(!list.isKnownToBeEmpty());
        fails = false;
        QVERIFY(list.rebuild());
        QVERIFY(list.isKnownToBeEmpty());
        list.clear();
        QVERIFY(!list.isKnownToBeEmpty());
    }

    void keysAskForTheContextMenu_data() {
        QTest::addColumn<bool>("byEvent");
        QTest::newRow("menu key") << true;
        QTest::newRow("Shift+F10") << false;
    }

    void keysAskForTheContextMenu() {
        QFETCH(bool, byEvent);
        ShownList shown;
        QList<std::int32_t> askedFor;
        connect(
            &shown.list, &app::BackupSetList::contextMenuNeedsDisplay, &shown.list,
            [&](BackupSetViewItem* card, QContextMenuEvent* event) {
                askedFor << card->record().id;
                QVERIFY(
                    QRect(card->mapToGlobal({0, 0}), card->size()).contains(event->globalPos()));
            });
        const auto press = [&] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {});
            if (byEvent)
                QApplication::sendEvent(&shown.view, &event);
            else
                QTest::keyClick(&shown.view, Qt::Key_F10, Qt::ShiftModifier);
        };
        shown.rebuildWith({1, 2});
        press();
        QCOMPARE(askedFor, QList<std::int32_t>());
        shown.view.selectRow(1);
        press();
        QCOMPARE(askedFor, QList<std::int32_t>{2});
    }

    void f2RenamesTheSelectedSet() {
        ShownList shown;
        shown.rebuildWith({1, 2});
        QTest::keyClick(&shown.view, Qt::Key_F2);
        shown.view.selectRow(1);
        QTest::keyClick(&shown.view, Qt::Key_F2);
        auto& editor = child<QLineEdit>(shown.card(1), "nameEditor");
        QVERIFY(editor.hasFocus());
        QTest::keyClicks(&editor, QStringLiteral("Photos"));
        QTest::keyClick(&editor, Qt::Key_Return);
        QCOMPARE(shown.renames, QStringList{QStringLiteral("2=Photos")});
        // The focus is back on the list, whose keys work again. On a card it would select the
        // card's row again with each activation of the window.
        QCOMPARE(QApplication::focusWidget(), &shown.view);
        QTest::keyClick(&shown.view, Qt::Key_Up);
        QCOMPARE(shown.selectedId(), 1);
    }

    void f2RenamesNothingUnderCentralManagement() {
        ShownList shown;
        shown.rebuildWith({1});
        shown.view.selectRow(0);
        const QScopedValueRollback<bool> managed(session::g_isCentrallyManaged, true);
        QTest::keyClick(&shown.view, Qt::Key_F2);
        QVERIFY(!shown.card(0).editingName());
    }

    void aFailureLeavesTheListAsItWas() {
        QTableView view;
        bool fails = false;
        app::BackupSetList list(view, [&fails] {
            if (fails)
                throw std::runtime_error("Out of order.");
            return std::vector{fileSet(1), fileSet(2)};
        });
        QVERIFY(list.rebuild());
        view.selectRow(1);
        fails = true;
        QVERIFY_EXCEPTION_THROWN(list.rebuild(), std::runtime_error);
        QCOMPARE(list.count(), 2);
        QCOMPARE(list.selectedCard()->record().id, 2);
    }

    void aRenameOfTheSelectedSetHoldsTheList() {
        ShownList shown;
        shown.rebuildWith({1, 2});
        shown.view.selectRow(1);
        QLineEdit& editor = shown.startRename(1);
        const int asked = shown.asked;
        shown.sets = {fileSet(4)};
        QVERIFY(!shown.list.rebuild());
        QCOMPARE(shown.asked, asked);
        QCOMPARE(shown.ids(), (QList<int>{1, 2}));
        editor.setText(QStringLiteral("Photos"));
        QTest::keyClick(&editor, Qt::Key_Return);
        QCOMPARE(shown.renames, QStringList{QStringLiteral("2=Photos")});
        QVERIFY(shown.list.rebuild());
        QCOMPARE(shown.ids(), QList<int>{4});
    }

    void aCardThatGoesForgetsItsRename() {
        ShownList shown;
        shown.rebuildWith({1, 2});
        shown.view.selectRow(0);
        shown.startRename(1).setText(QStringLiteral("Photos"));
        shown.rebuildWith({1});
        QCOMPARE(shown.ids(), QList<int>{1});
        QCOMPARE(shown.renames, QStringList());
    }

    void clearForgetsTheSelectionAndTheRename() {
        ShownList shown;
        shown.rebuildWith({1, 2});
        shown.view.selectRow(0);
        shown.startRename(0).setText(QStringLiteral("Photos"));
        shown.list.clear();
        QCOMPARE(shown.list.count(), 0);
        QCOMPARE(shown.list.selectedCard(), nullptr);
        QCOMPARE(shown.renames, QStringList());
        shown.rebuildWith({1});
        QCOMPARE(shown.selectedId(), -1);
    }

    void passesOnThatACardWantsItsMenu() {
        ShownList shown;
        shown.rebuildWith({1, 2});
        const QSignalSpy menus(&shown.list, &app::BackupSetList::contextMenuNeedsDisplay);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4});
        QCoreApplication::sendEvent(&shown.card(1), &event);
        QCOMPARE(menus.count(), 1);
        QCOMPARE(menus.first().at(0).value<BackupSetViewItem*>(), &shown.card(1));
    }
};

QTEST_MAIN(BackupSetListTest)
#include "backup_set_list_test.moc"
