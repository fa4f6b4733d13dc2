// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QRadioButton>

#include "config/recovery_dlg.h"
#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/config/dialog_steps.h"
#include "tests/support/cursor_watch.h"
#include "tests/support/gui_form_texts.h"

using namespace steps;
using simulator::World;
using support::callsOf;
using support::child;
using support::isDialog;
using support::ModalDriver;

namespace {

const char* const error = "Tarn-Client Database Recovery Error";

const Calls countingCalls{"ClientConnection.getSystemActivityManager()",
                          "SystemActivityManager.getOrphanedbackupSets()"};

const Calls recoveringCalls =
    countingCalls + Calls{"ClientConnection.getSystemActivityManager()",
                          "SystemActivityManager.recover_tarnclient_database(0)"};

/// The calls that recover one set, which gets this number.
Calls recovering(const std::string& name, int id) {
    return {
        "SystemActivityManager.recover_orphaned_backup_set(OrphanedBackupSet(\"" + name + "\"))",
        "ClientConnection.backup_set(" + std::to_string(id) + ")", "BackupSet.start_sync(true)"};
}

void accept(QWidget& dialog) {
    QTest::mouseClick(child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
}

} // namespace

/// Recovery of lost sets and of the lost database from the main window.
class RecoveryDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { test_.start(); }
    void cleanup() { test_.end(); }

    void withoutOrphansOnlyTheDatabaseIsThere();
    void orphansAreRecovered_data();
    void orphansAreRecovered();
    void recoveringIsWaitedForWithItsCursor_data();
    void recoveringIsWaitedForWithItsCursor();
    void aFailureLeavesTheRestOfTheOrphans_data();
    void aFailureLeavesTheRestOfTheOrphans();
    void theDatabaseIsRecovered();
    void noMeansNoRecovery();
    void aDatabaseThatCantBeRecoveredIsReported_data();
    void aDatabaseThatCantBeRecoveredIsReported();
    void cancellingDoesNothing();
    void nothingOpensOnAFault_data();
    void nothingOpensOnAFault();
    void anAgentWithoutAManagerIsReported();

private:
    ModalDriver& modals() { return *test_.modals; }
    void expectRecovery(const ModalDriver::Act& act) {
        modals().expect(q("recovery"), isDialog<RecoveryDlg>, act);
    }
    void addOrphans(const std::vector<std::string>& names);
    /// Requests the database's recovery, and answers the confirmation.
    void answer(QMessageBox::StandardButton button, bool failing = false);
    void compareCalls(const Calls& expected) { QCOMPARE(callsOf(*test_.agent), expected); }
    void open() { test_.run("on_action_Recovery_triggered"); }

    support::WizardTest test_;
};

void RecoveryDialogTest::addOrphans(const std::vector<std::string>& names) {
    test_.agent->withWorld([&names](World& world) {
        world.configuration.orphans.clear();
        for (const std::string& name : names) {
            auto set = std::make_shared<simulator::BackupSetState>(*world.sets().front());
            set->info.name = name;
            world.configuration.orphans.push_back(set);
        }
    });
}

void RecoveryDialogTest::withoutOrphansOnlyTheDatabaseIsThere() {
    addOrphans({});
    expectRecovery([this](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Recovery"));
        QCOMPARE(dialog.parentWidget(), &test_.driver->window());
        support::compareWindowIcon(dialog);
        QCOMPARE(child<QGroupBox>(dialog, "groupRecovery").title(), q("Recovery"));
        auto& sets = child<QRadioButton>(dialog, "radioOrphanedSet");
        QCOMPARE(sets.text(), q("&Recover Orphaned Backup Sets (no orphaned backup sets were found "
                                "during the last Admin Process)"));
        QVERIFY(!sets.isEnabled());
        auto& database = child<QRadioButton>(dialog, "radioDatabase");
        QCOMPARE(database.text(), q("R&ecover Backup History Database from the cloud"));
        QVERIFY(database.isChecked());
        static_cast<QDialog&>(dialog).reject();
    });
    open();
    compareCalls(countingCalls);
}

void RecoveryDialogTest::orphansAreRecovered_data() {
    QTest::addColumn<int>("count");
    QTest::newRow("one") << 1;
    QTest::newRow("three") << 3;
}

void RecoveryDialogTest::orphansAreRecovered() {
    QFETCH(int, count);
    std::vector<std::string> names{"A", "B", "C"};
    names.resize(static_cast<std::size_t>(count));
    addOrphans(names);
    Calls expected = countingCalls + countingCalls;
    int id = test_.setNames().size();
    for (const std::string& name : names)
        expected = expected + recovering(name, ++id);
    expectRecovery([count](QWidget& dialog) {
        auto& sets = child<QRadioButton>(dialog, "radioOrphanedSet");
        QCOMPARE(sets.text(),
                 q("&Recover orphaned backup sets (Found %1 orphaned backup set(s))").arg(count));
        QVERIFY(sets.isEnabled() && sets.isChecked());
        accept(dialog);
    });
    open();
    compareCalls(expected);
    QCOMPARE(test_.setNames().mid(id - count).join(QLatin1Char(' ')),
             count == 1 ? q("A") : q("A B C"));
}

void RecoveryDialogTest::recoveringIsWaitedForWithItsCursor_data() {
    QTest::addColumn<bool>("failing");
    QTest::newRow("to its end") << false;
    QTest::newRow("up to a failure") << true;
}

void RecoveryDialogTest::recoveringIsWaitedForWithItsCursor() {
    QFETCH(bool, failing);
    addOrphans({"A"});
    support::CursorWatch watch;
    expectRecovery([&](QWidget& dialog) {
        dialog.installEventFilter(&watch);
        if (failing) {
            failAfter(*test_.agent, 0, "start_sync");
            modals().expectErrorBox(q(error), q("Out of order."));
        }
        accept(dialog);
    });
    open();
    QCOMPARE(watch.shown, support::waited);
}

void RecoveryDialogTest::aFailureLeavesTheRestOfTheOrphans_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("recovered");
    QTest::addColumn<int>("calls");
    QTest::newRow("manager") << q("getSystemActivityManager") << 1 << 0 << 3;
    QTest::newRow("list") << q("getOrphanedbackupSets") << 1 << 0 << 4;
    QTest::newRow("first recovery") << q("recover_orphaned_backup_set") << 0 << 0 << 5;
    QTest::newRow("first set") << q("backup_set") << 0 << 1 << 6;
    QTest::newRow("first synchronisation") << q("start_sync") << 0 << 1 << 7;
    QTest::newRow("second recovery") << q("recover_orphaned_backup_set") << 1 << 1 << 8;
    QTest::newRow("second set") << q("backup_set") << 1 << 2 << 9;
    QTest::newRow("second synchronisation") << q("start_sync") << 1 << 2 << 10;
    QTest::newRow("third recovery") << q("recover_orphaned_backup_set") << 2 << 2 << 11;
}

void RecoveryDialogTest::aFailureLeavesTheRestOfTheOrphans() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(int, recovered);
    QFETCH(int, calls);
    addOrphans({"A", "B", "C"});
    const int before = test_.setNames().size();
    failAfter(*test_.agent, after, qPrintable(method));
    expectRecovery([this](QWidget& dialog) {
        modals().expectErrorBox(q(error), q("Out of order."));
        accept(dialog);
    });
    open();
    compareCalls(first(calls, countingCalls + countingCalls + recovering("A", before + 1) +
                                  recovering("B", before + 2) + recovering("C", before + 3)));
    QCOMPARE(test_.setNames().size() - before, recovered);
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void RecoveryDialogTest::answer(QMessageBox::StandardButton button, bool failing) {
    expectRecovery([this, button, failing](QWidget& dialog) {
        press(dialog, "radioDatabase");
        modals().expect(q("question"), isDialog<QMessageBox>, [button](QWidget& widget) {
            auto& box = static_cast<QMessageBox&>(widget);
            QCOMPARE(box.windowTitle(), q("Recover Database"));
            QCOMPARE(box.text(), q("The current database will be overwritten.\nAfter recovery, you "
                                   "have to restart ostrand backup service.\nAre you sure you want "
                                   "to recover database?"));
            QCOMPARE(int(box.standardButtons()), int(QMessageBox::Yes | QMessageBox::No));
            QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
            QTest::mouseClick(box.button(button), Qt::LeftButton);
        });
        if (failing)
            modals().expectErrorBox(q(error), q("Out of order."));
        accept(dialog);
    });
}

void RecoveryDialogTest::theDatabaseIsRecovered() {
    answer(QMessageBox::Yes);
    open();
    compareCalls(recoveringCalls);
}

void RecoveryDialogTest::noMeansNoRecovery() {
    answer(QMessageBox::No);
    open();
    compareCalls(countingCalls);
}

void RecoveryDialogTest::aDatabaseThatCantBeRecoveredIsReported_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("calls");
    QTest::newRow("manager") << q("getSystemActivityManager") << 1 << 3;
    QTest::newRow("recovery") << q("recover_tarnclient_database") << 0 << 4;
}

void RecoveryDialogTest::aDatabaseThatCantBeRecoveredIsReported() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(int, calls);
    failAfter(*test_.agent, after, qPrintable(method));
    answer(QMessageBox::Yes, true);
    open();
    compareCalls(first(calls, recoveringCalls));
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void RecoveryDialogTest::cancellingDoesNothing() {
    expectRecovery([](QWidget& dialog) {
        QTest::mouseClick(
            child<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Cancel),
            Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    });
    open();
    compareCalls(countingCalls);
}

void RecoveryDialogTest::nothingOpensOnAFault_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("calls");
    QTest::newRow("manager") << q("getSystemActivityManager") << 1;
    QTest::newRow("list") << q("getOrphanedbackupSets") << 2;
}

void RecoveryDialogTest::nothingOpensOnAFault() {
    QFETCH(QString, method);
    QFETCH(int, calls);
    failAfter(*test_.agent, 0, qPrintable(method));
    modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
    open();
    compareCalls(first(calls, countingCalls));
}

void RecoveryDialogTest::anAgentWithoutAManagerIsReported() {
    test_.agent->inject("getSystemActivityManager", simulator::NullResult{});
    modals().expectErrorBox(q("Configuration Error"),
                            q("The agent did not return the requested object."));
    open();
}

QTEST_MAIN(RecoveryDialogTest)
#include "recovery_dialog_test.moc"
