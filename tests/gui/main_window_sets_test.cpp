// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "app/backup_set_view_item.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "session/text.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

using simulator::World;
using support::cardsOf;
using support::child;
using support::GuiAgent;
using support::MainWindowDriver;
using support::methodsOf;
using support::ModalDriver;
using Calls = std::vector<std::string>;

namespace {

const QString noneSelected = QStringLiteral("No backup set selected.");

bool isHighlighted(const BackupSetViewItem& card) {
    return card.backgroundRole() == QPalette::Highlight;
}

/// Records the key presses that reach a window during the lifetime of this object.
class ReceivedKeys : public QObject {
public:
    explicit ReceivedKeys(QWidget& window) { window.installEventFilter(this); }
    QList<int> keys;

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress)
            keys << static_cast<QKeyEvent*>(event)->key();
        return false;
    }
};

void removeFirstSet(World& world) {
    world.removeSet(world.sets().front()->info.id);
}

} // namespace

/// The list of backup sets and the details beside it, against an agent.
class MainWindowSetsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        agent_ = std::make_unique<GuiAgent>();
        driver_ = std::make_unique<MainWindowDriver>();
        driver_->logIn(*agent_);
    }
    void cleanup() {
        QCOMPARE(agent_->violations(), Calls{});
        driver_.reset();
        QCOMPARE(agent_->liveObjects(), Calls{});
        agent_.reset();
    }

    void showsACardForEachFileSet();
    void aSetOfADatabaseNeverShows();
    void selectingASetReadsItsDetails();
    void aSetWithoutABackupSaysSo();
    void theDetailsGoWithTheSelection();
    void theSelectionFollowsItsSet();
    void theRowStaysSelectedWhenItsSetHasGone();
    void aSelectedSetIsScrolledIntoView();
    void withoutASelectionTheListStaysWhereItIs();
    void surplusCardsGo();
    void aRowKeepsItsCard();
    void manySetsAreListed();
    void aNewSetIsSelectedOnceItIsListed();
    void restoreNeedsWhatWasBackedUp();
    void aRunningActivityHoldsTheSet();
    void aRenameReachesTheAgent();
    void aRenameFreezesTheList();
    void aFailedRenameKeepsTheNameAndTheNextRebuildConfirmsIt();
    void underCentralManagementNoCardCanBeRenamed();
    void losingTheSessionForgetsTheRename();
    void losingTheSessionUnderTheBoxOfARename();
    void aCardThatGoesForgetsItsRename();
    void quittingForgetsTheRename();
    void theContextMenuHasTheCommandsOfTheSelectedSet();
    void theListMayGoUnderAnOpenContextMenu();
    void theDeleteKeyWithoutASelectionShowsTheBox();
    void theDeleteKeyOnASetOfThePolicyDoesNothing();
    void aSetOfThePolicyCanGoWhereNothingIsManagedCentrally();
    void commandsWithoutASelectionShowTheBox_data();
    void commandsWithoutASelectionShowTheBox();

private:
    QLineEdit& startRename(int row) {
        driver_->sets().selectRow(row);
        auto& name = child<QLabel>(driver_->card(row), "labelSetName");
        QTest::mouseDClick(&driver_->card(row), Qt::LeftButton, {}, name.geometry().center());
        return child<QLineEdit>(driver_->card(row), "nameEditor");
    }
    SimpleGUIMainWindow& window() { return driver_->window(); }

    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<MainWindowDriver> driver_;
};

void MainWindowSetsTest::showsACardForEachFileSet() {
    QVERIFY(driver_->cards().size() > 3);
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
    for (int row = 0; row < driver_->cards().size(); ++row) {
        QCOMPARE(driver_->sets().rowHeight(row), 70);
        QVERIFY(!driver_->card(row).accessibleName().isEmpty());
    }
}

void MainWindowSetsTest::aSetOfADatabaseNeverShows() {
    agent_->withWorld([](World& world) {
        for (const auto& set : world.sets())
            set->info.data_type = hessiancln::BackupDataType::MSSQLServer;
    });
    driver_->beat();
    QCOMPARE(driver_->cards(), QStringList());
}

void MainWindowSetsTest::selectingASetReadsItsDetails() {
    agent_->withWorld([](World& world) {
        auto& set = *world.sets().at(3);
        set.info.online_file_count = 1'234;
        set.info.online_data_size = 3 * 1024;
    });
    driver_->sets().selectRow(3);
    const std::string set = "BackupSet(" + std::to_string(driver_->card(3).record().id) + ")";
    QCOMPARE(agent_->callTexts(), (Calls{"ClientConnection.backup_set(" +
                                             std::to_string(driver_->card(3).record().id) + ")",
                                         "BackupSet.getLastActivityOfType(0)",
                                         "BackupSet.getOverview()", "BackupSet.Release()"}));
    const QStringList details = driver_->details();
    QVERIFY(!details.at(0).isEmpty());
    QCOMPARE(details.at(1), QLocale::system().toString(1'234));
    QCOMPARE(details.at(2), QStringLiteral("3.00 KB"));
    QCOMPARE(details.at(3), QStringLiteral("File System"));
    QCOMPARE(details.at(4), QStringLiteral("Monthly"));
    QCOMPARE(details.at(5), QStringLiteral("Time-based"));
    QVERIFY(isHighlighted(driver_->card(3)));
    QVERIFY(!isHighlighted(driver_->card(0)));
}

void MainWindowSetsTest::aSetWithoutABackupSaysSo() {
    agent_->withWorld([](World& world) {
        simulator::BackupSetState fresh;
        fresh.info.schedule_id = -1;
        fresh.leastGenerations = fresh.mostGenerations = 5;
        world.addSet(fresh);
    });
    driver_->beat();
    driver_->sets().selectRow(driver_->cards().size() - 1);
    QCOMPARE(driver_->details(),
             (QStringList{QStringLiteral("Never backed up"), QStringLiteral("0"),
                          QStringLiteral("0 Byte(s)"), QStringLiteral("File System"),
                          QStringLiteral("Not Scheduled"), QStringLiteral("5 generation(s)")}));
}

void MainWindowSetsTest::theDetailsGoWithTheSelection() {
    driver_->sets().selectRow(0);
    QVERIFY(!driver_->details().at(0).isEmpty());
    driver_->sets().clearSelection();
    QCOMPARE(driver_->details().join(QString()), QString());
    QVERIFY(!isHighlighted(driver_->card(0)));
}

void MainWindowSetsTest::theSelectionFollowsItsSet() {
    driver_->sets().selectRow(2);
    const QString selected = driver_->cards().at(2);
    agent_->withWorld(removeFirstSet);
    agent_->clearCallLog();
    driver_->beat();
    QCOMPARE(driver_->selectedRow(), 1);
    QCOMPARE(driver_->cards().at(1), selected);
    QVERIFY(isHighlighted(driver_->card(1)));
    QVERIFY(!isHighlighted(driver_->card(2)));
    // The details are read only once.
    const Calls calls = methodsOf(*agent_);
    QCOMPARE(std::count(calls.begin(), calls.end(), "getOverview"), 1);
}

void MainWindowSetsTest::theRowStaysSelectedWhenItsSetHasGone() {
    driver_->sets().selectRow(0);
    agent_->withWorld([](World& world) {
        removeFirstSet(world);
        world.sets().front()->info.online_file_count = 77;
    });
    driver_->beat();
    QCOMPARE(driver_->selectedRow(), 0);
    QVERIFY(isHighlighted(driver_->card(0)));
    // The details are those of the set now in that row.
    QCOMPARE(driver_->details().at(1), QStringLiteral("77"));
}

void MainWindowSetsTest::aSelectedSetIsScrolledIntoView() {
    auto& sets = driver_->sets();
    const int last = driver_->cards().size() - 1;
    sets.selectRow(last);
    sets.scrollToTop();
    const QModelIndex index = sets.model()->index(last, 0);
    QVERIFY(!sets.viewport()->rect().contains(sets.visualRect(index)));
    driver_->beat();
    QVERIFY(sets.viewport()->rect().contains(sets.visualRect(index)));
}

void MainWindowSetsTest::withoutASelectionTheListStaysWhereItIs() {
    auto& bar = *driver_->sets().verticalScrollBar();
    QTRY_VERIFY(bar.maximum() > 30);
    bar.setValue(30);
    agent_->withWorld([](World& world) { world.addSet(simulator::BackupSetState()); });
    driver_->beat();
    // The view updates its layout a little later.
    QCoreApplication::processEvents();
    QCOMPARE(bar.value(), 30);
}

void MainWindowSetsTest::surplusCardsGo() {
    const int last = driver_->cards().size() - 1;
    driver_->sets().selectRow(last);
    const QPointer<BackupSetViewItem> card = &driver_->card(last);
    agent_->withWorld([](World& world) { world.removeSet(world.sets().back()->info.id); });
    driver_->beat();
    QCOMPARE(driver_->cards().size(), last);
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
    // The selection has moved to the row above.
    QCOMPARE(driver_->selectedRow(), last - 1);
    QVERIFY(isHighlighted(driver_->card(last - 1)));
    QTRY_VERIFY(!card);
}

void MainWindowSetsTest::aRowKeepsItsCard() {
    const BackupSetViewItem* card = &driver_->card(1);
    agent_->withWorld(removeFirstSet);
    driver_->beat();
    QCOMPARE(&driver_->card(1), card);
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
}

void MainWindowSetsTest::manySetsAreListed() {
    agent_->withWorld([](World& world) {
        for (int i = 0; i < 300; ++i) {
            simulator::BackupSetState added;
            added.info.name = "Set " + std::to_string(i);
            world.addSet(added);
        }
    });
    driver_->beat();
    const int last = driver_->sets().model()->rowCount() - 1;
    QVERIFY(last >= 300);
    driver_->sets().selectRow(last);
    QCOMPARE(child<QLabel>(driver_->card(last), "labelSetName").text(), QStringLiteral("Set 299"));
    driver_->beat();
    QCOMPARE(driver_->selectedRow(), last);
}

void MainWindowSetsTest::aNewSetIsSelectedOnceItIsListed() {
    driver_->sets().selectRow(0);
    std::int32_t id = 0;
    agent_->withWorld([&](World& world) {
        simulator::BackupSetState added;
        added.info.name = "Added";
        id = world.addSet(added)->info.id;
    });
    window().selectSetOnceListed(id);
    driver_->beat();
    QCOMPARE(driver_->selectedRow(), driver_->cards().size() - 1);
    driver_->sets().selectRow(0);
    driver_->beat();
    QCOMPARE(driver_->selectedRow(), 0);
}

void MainWindowSetsTest::restoreNeedsWhatWasBackedUp() {
    driver_->sets().selectRow(0);
    QVERIFY(driver_->isEnabled("actionRestore"));
    agent_->withWorld([](World& world) { world.sets().front()->info.online_file_count = 0; });
    driver_->beat();
    QVERIFY(!driver_->isEnabled("actionRestore"));
    QVERIFY(driver_->isEnabled("actionBackup_Now"));
}

void MainWindowSetsTest::aRunningActivityHoldsTheSet() {
    driver_->sets().selectRow(1);
    for (const char* name :
         {"actionBackup_Now", "actionRestore", "actionDeleteFromOnline", "actionSynchronize"})
        QVERIFY2(!driver_->isEnabled(name), name);
}

void MainWindowSetsTest::aRenameReachesTheAgent() {
    QLineEdit& editor = startRename(0);
    agent_->clearCallLog();
    editor.setText(QStringLiteral(" Büro "));
    QTest::keyClick(&editor, Qt::Key_Return);
    QCOMPARE(methodsOf(*agent_), (Calls{"backup_set", "setName"}));
    QCOMPARE(driver_->cards().at(0).section(QLatin1Char('\n'), 0, 0), QStringLiteral("Büro"));
    driver_->beat();
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
}

void MainWindowSetsTest::aRenameFreezesTheList() {
    QLineEdit& editor = startRename(0);
    editor.setText(QStringLiteral("Half a na"));
    agent_->withWorld([](World& world) { world.sets().back()->info.name = "Other"; });
    agent_->clearCallLog();
    driver_->beat();
    QVERIFY(driver_->card(0).editingName());
    QCOMPARE(editor.text(), QStringLiteral("Half a na"));
    QVERIFY(driver_->cards() != cardsOf(*agent_));
    QCOMPARE(methodsOf(*agent_), (Calls{"getTarnClientInfo", "getTFAManager", "is2FAEnabled",
                                        "activity_log", "running_activities"}));
    QTest::keyClick(&editor, Qt::Key_Return);
    driver_->beat();
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
}

void MainWindowSetsTest::aFailedRenameKeepsTheNameAndTheNextRebuildConfirmsIt() {
    const QStringList before = driver_->cards();
    QLineEdit& editor = startRename(0);
    editor.setText(QStringLiteral("New name"));
    agent_->inject("setName", simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Rename backup set error"),
                          QStringLiteral("Out of order."));
    QTest::keyClick(&editor, Qt::Key_Return);
    QVERIFY(modals.done());
    QCOMPARE(driver_->cards(), before);
    driver_->beat();
    QCOMPARE(driver_->cards(), before);
    QVERIFY(session::connectedToAgent());
}

void MainWindowSetsTest::underCentralManagementNoCardCanBeRenamed() {
    agent_->withWorld([](World& world) {
        world.about = {{"Centrally Managed Backup Policy", "Yes"}};
    });
    driver_->beat();
    for (int row = 0; row < driver_->cards().size(); ++row) {
        auto& card = driver_->card(row);
        QTest::mouseDClick(&card, Qt::LeftButton, {},
                           child<QLabel>(card, "labelSetName").geometry().center());
        QVERIFY(!card.editingName());
    }
}

void MainWindowSetsTest::losingTheSessionForgetsTheRename() {
    startRename(0).setText(QStringLiteral("New name"));
    const QPointer<BackupSetViewItem> card = &driver_->card(0);
    ModalDriver modals;
    agent_->inject("getTarnClientInfo", simulator::Fault{"Out of order."});
    driver_->beat();
    QTRY_VERIFY(!card);
    QVERIFY(modals.done());
    QCOMPARE(driver_->cards(), QStringList());
}

void MainWindowSetsTest::losingTheSessionUnderTheBoxOfARename() {
    QLineEdit& editor = startRename(0);
    const QPointer<BackupSetViewItem> card = &driver_->card(0);
    agent_->inject("setName", simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expect(
        QStringLiteral("box"), [](QWidget&) { return true; },
        [&](QWidget& box) {
            agent_->inject("getTarnClientInfo", simulator::Fault{"Out of order."});
            driver_->beat();
            QCOMPARE(driver_->cards(), QStringList());
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            box.close();
        });
    QTest::keyClick(&editor, Qt::Key_Return);
    QVERIFY(modals.done());
    QTRY_VERIFY(!card);
}

void MainWindowSetsTest::aCardThatGoesForgetsItsRename() {
    const int last = driver_->cards().size() - 1;
    startRename(last).setText(QStringLiteral("New name"));
    // Only a rename in the selected card blocks list updates.
    driver_->sets().selectRow(0);
    QVERIFY(driver_->card(last).editingName());
    agent_->withWorld([](World& world) { world.removeSet(world.sets().back()->info.id); });
    agent_->clearCallLog();
    ModalDriver modals;
    driver_->beat();
    QVERIFY(modals.done());
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
    const Calls calls = methodsOf(*agent_);
    QCOMPARE(std::count(calls.begin(), calls.end(), "setName"), 0);
}

void MainWindowSetsTest::quittingForgetsTheRename() {
    startRename(0).setText(QStringLiteral("New name"));
    agent_->clearCallLog();
    ModalDriver modals;
    driver_.reset();
    QVERIFY(modals.done());
    QCOMPARE(methodsOf(*agent_), Calls{"logout"});
}

void MainWindowSetsTest::theContextMenuHasTheCommandsOfTheSelectedSet() {
    driver_->sets().selectRow(0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4}, {200, 150});
    QCoreApplication::sendEvent(&driver_->card(2), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QStringList names;
    for (const QAction* action : menu->actions())
        names << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
    QCOMPARE(names,
             (QStringList{QStringLiteral("actionBackup_Now"), QStringLiteral("actionRestore"),
                          QStringLiteral("actionDeleteFromOnline"), QStringLiteral("-"),
                          QStringLiteral("actionSynchronize")}));
    QCOMPARE(menu->pos(), event.globalPos());
    agent_->clearCallLog();
    menu->setActiveAction(menu->actions().last());
    QTest::keyClick(menu, Qt::Key_Return);
    QVERIFY(agent_->waitForCall("start_sync"));
    QCOMPARE(agent_->callTexts().front(),
             "ClientConnection.backup_set(" + std::to_string(driver_->card(0).record().id) + ")");
}

void MainWindowSetsTest::theListMayGoUnderAnOpenContextMenu() {
    const QPointer<BackupSetViewItem> card = &driver_->card(0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4}, {200, 150});
    QCoreApplication::sendEvent(card, &event);
    const QPointer<QWidget> menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    agent_->inject("getTarnClientInfo", simulator::Fault{"Out of order."});
    driver_->beat();
    QTRY_VERIFY(!card);
    QVERIFY(menu);
    QCOMPARE(QApplication::activePopupWidget(), menu.data());
    menu->close();
    QVERIFY(!QApplication::activePopupWidget());
}

void MainWindowSetsTest::theDeleteKeyWithoutASelectionShowsTheBox() {
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), noneSelected);
    const ReceivedKeys further(window());
    QTest::keyClick(&driver_->sets(), Qt::Key_Delete);
    QVERIFY(modals.done());
    // The list consumes it; it passes on keys it doesn't use.
    QVERIFY(!further.keys.contains(Qt::Key_Delete));
    QTest::keyClick(&driver_->sets(), Qt::Key_F9);
    QVERIFY(further.keys.contains(Qt::Key_F9));
}

void MainWindowSetsTest::theDeleteKeyOnASetOfThePolicyDoesNothing() {
    agent_->withWorld([](World& world) {
        world.about = {{"Centrally Managed Backup Policy", "Yes"}};
        world.sets().front()->info.is_created_by_policy = true;
    });
    driver_->beat();
    driver_->sets().selectRow(0);
    agent_->clearCallLog();
    ModalDriver modals;
    QTest::keyClick(&driver_->sets(), Qt::Key_Delete);
    QVERIFY(modals.done());
    QCOMPARE(agent_->callTexts(), Calls{});
    QCOMPARE(driver_->selectedRow(), 0);
}

void MainWindowSetsTest::aSetOfThePolicyCanGoWhereNothingIsManagedCentrally() {
    agent_->withWorld([](World& world) {
        world.sets().front()->info.is_created_by_policy = true;
        world.sets().front()->info.online_file_count = 0;
    });
    driver_->beat();
    driver_->sets().selectRow(0);
    ModalDriver modals;
    modals.expect(QStringLiteral("question"), support::isDialog<QMessageBox>, [](QWidget& widget) {
        auto& box = static_cast<QMessageBox&>(widget);
        QCOMPARE(box.windowTitle(), QStringLiteral("Delete Backup Set?"));
        box.button(QMessageBox::No)->click();
    });
    window().OnDelete();
    QVERIFY(modals.done());
}

void MainWindowSetsTest::commandsWithoutASelectionShowTheBox_data() {
    QTest::addColumn<QString>("slot");
    for (const char* slot :
         {"OnBackupNow", "OnSync", "OnRestore", "OnDelete", "on_btnItems_clicked",
          "on_btnRetention_clicked", "on_btnSchedule_clicked"})
        QTest::newRow(slot) << QString::fromLatin1(slot);
}

void MainWindowSetsTest::commandsWithoutASelectionShowTheBox() {
    QFETCH(QString, slot);
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), noneSelected);
    QVERIFY(QMetaObject::invokeMethod(&window(), qPrintable(slot)));
    QVERIFY(modals.done());
    QCOMPARE(agent_->callTexts(), Calls{});
}

QTEST_MAIN(MainWindowSetsTest)
#include "main_window_sets_test.moc"
