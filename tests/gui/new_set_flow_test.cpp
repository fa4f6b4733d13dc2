// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <functional>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include "config/tfa_code_dlg.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/backup_set_state.h"
#include "simulator/world/world.h"
#include "tests/gui/new_set_calls.h"
#include "tests/support/cursor_watch.h"
#include "tests/support/default_start.h"
#include "tests/support/gui_tree.h"
#include "tests/support/gui_wizard.h"

using simulator::Scenario;
using simulator::World;
using support::callsOf;
using support::child;
using support::difference;
using support::isDialog;
using support::ModalDriver;
using Calls = std::vector<std::string>;

Q_DECLARE_METATYPE(simulator::Scenario)
Q_DECLARE_METATYPE(std::vector<std::string>)

namespace {

const Calls optionsPage{"ClientConnection.getConfigurationManager()",
                        "ClientConfiguration.getClientOSType()"};
const Calls optionsWritten{"BackupSet.setLocalStoragePath(\"\")",
                           "BackupSet.setUsingLocalStorage(false)",
                           "BackupSet.setUsingLocalTransmissionCache(false)"};
const Calls shadowCopies{"BackupSet.types()", "Win32FS_BackupSet.setUseVSS(true)"};

QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// Removes a run of consecutive calls.
Calls without(Calls calls, const Calls& unwanted) {
    const auto found = std::search(calls.begin(), calls.end(), unwanted.begin(), unwanted.end());
    if (found == calls.end())
        qFatal("There is no call %s", unwanted.front().c_str());
    calls.erase(found, found + static_cast<std::ptrdiff_t>(unwanted.size()));
    return calls;
}

/// Inserts these calls after the first call with that text.
Calls withBehind(Calls calls, const std::string& place, const Calls& more) {
    const auto found = std::find(calls.begin(), calls.end(), place);
    if (found == calls.end())
        qFatal("There is no call %s", place.c_str());
    calls.insert(found + 1, more.begin(), more.end());
    return calls;
}

} // namespace

/// The new set flow, clicked through against an agent, and all of its calls.
class NewSetFlowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { test_.end(); }

    void aNewSet_data();
    void aNewSet();
    void aNewSetIsSelectedByTheNextHeartbeat();
    void aNewSetOfUnixFilesFailsAtTheCast();
    void aNameThatIsTakenKeepsTheWizardOpen();
    void givingUpTheCodeMakesNoSet();
    void theUserSeesThatMakingItTakesItsTime();
    void treesScrollToWhatIsLookedAt();
    void aWizardThatIsLeftAsksForNothing_data();
    void aWizardThatIsLeftAsksForNothing();
    void aSessionThatEndsUnderTheWizard();
    void theFirstSetIsOfferedAtLogin();
    void aSetOfADatabaseIsNoFirstSet();
    void underCentralManagementNoSetIsMadeOrOffered();
    // Must be last, as no dialog opens in this process afterwards.
    void quittingUnderTheWizardMakesNoSet();

private:
    support::WizardTest test_;
};

void NewSetFlowTest::aNewSet_data() {
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<bool>("tool");
    QTest::addColumn<bool>("twoFactor");
    QTest::addColumn<int>("pages");
    QTest::addColumn<Calls>("expected");
    const Calls all = gui::newSetCalls();
    const Calls withoutTool = without(without(all, optionsPage), optionsWritten);
    const Calls notebook = without(withoutTool, shadowCopies);
    const std::string lastOfWizard = "ClientConnection.backup_sets_info()";
    QTest::newRow("mobile") << Scenario::Default << true << false << 6 << all;
    QTest::newRow("mobile, with code") << Scenario::Default << true << true << 6
                                       << withBehind(all, lastOfWizard, support::callsForCode());
    QTest::newRow("mobile without the tool")
        << Scenario::Default << false << false << 5 << withoutTool;
    QTest::newRow("notebook") << Scenario::Notebook << true << false << 5 << notebook;
    QTest::newRow("notebook, with code")
        << Scenario::Notebook << true << true << 5
        << withBehind(notebook, lastOfWizard, support::callsForCode());
    QTest::newRow("notebook without the tool")
        << Scenario::Notebook << false << false << 5 << notebook;
}

void NewSetFlowTest::aNewSet() {
    QFETCH(Scenario, scenario);
    QFETCH(bool, tool);
    QFETCH(bool, twoFactor);
    QFETCH(int, pages);
    QFETCH(Calls, expected);
    test_.start(scenario, [&](World& world) {
        support::beginSchedulesAtHalfPastEight(world);
        world.twoFactor = twoFactor;
        if (!tool)
            world.tools.clear();
    });
    const QStringList before = test_.setNames();
    int seen = 0;
    test_.expectWizard([&seen](QWizardPage& page) {
        ++seen;
        support::nameNewSet(page);
    });
    if (twoFactor)
        test_.expectCode(true);
    test_.run("OnNewBackupSet");
    QCOMPARE(seen, pages);
    QCOMPARE(difference(callsOf(*test_.agent), expected), QString());
    QCOMPARE(test_.setNames(), before + QStringList(q("New one")));
}

void NewSetFlowTest::aNewSetIsSelectedByTheNextHeartbeat() {
    test_.start();
    test_.driver->sets().selectRow(0);
    test_.expectWizard();
    test_.run("OnNewBackupSet");
    QCOMPARE(test_.driver->selectedRow(), 0);
    QVERIFY2(test_.driver->status().endsWith(q(": Backup set 'New one' created")),
             qPrintable(test_.driver->status()));
    test_.driver->beat();
    const int last = test_.driver->cards().size() - 1;
    QCOMPARE(test_.driver->selectedRow(), last);
    QVERIFY(test_.driver->cards().at(last).startsWith(q("New one\n")));
    QCOMPARE(test_.driver->details().at(4), q("Daily"));
    QCOMPARE(test_.driver->details().at(5), q("Time-based"));
}

void NewSetFlowTest::aNewSetOfUnixFilesFailsAtTheCast() {
    test_.start(Scenario::Unix);
    const QStringList before = test_.setNames();
    test_.expectWizard();
    test_.modals->expectErrorBox(
        q("New Backup Set Error"),
        q("Bad cast from BackupSet: class is NOT of type Win32FS_BackupSet"));
    test_.run("OnNewBackupSet");
    QCOMPARE(test_.setNames(), before);
    QCOMPARE(callsOf(*test_.agent).back(), std::string("BackupSet.types()"));
}

void NewSetFlowTest::aNameThatIsTakenKeepsTheWizardOpen() {
    test_.start();
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        QVERIFY(!support::finishWizard(wizard, [](QWizardPage& page) {
            if (auto* name = page.findChild<QLineEdit*>(q("editSetName")))
                name->setText(q("MUSIC"));
        }));
    });
    const QStringList before = test_.setNames();
    test_.run("OnNewBackupSet");
    QCOMPARE(callsOf(*test_.agent).back(), std::string("ClientConnection.backup_sets_info()"));
    QCOMPARE(test_.setNames(), before);
}

void NewSetFlowTest::givingUpTheCodeMakesNoSet() {
    test_.start(Scenario::Default, [](World& world) { world.twoFactor = true; });
    const QStringList before = test_.setNames();
    test_.expectWizard();
    test_.expectCode(false);
    test_.run("OnNewBackupSet");
    QCOMPARE(callsOf(*test_.agent).back(), std::string("TFAManager.requestCode(2)"));
    QCOMPARE(test_.setNames(), before);
}

void NewSetFlowTest::theUserSeesThatMakingItTakesItsTime() {
    test_.start(Scenario::Default, [](World& world) { world.twoFactor = true; });
    support::CursorWatch watch;
    QVector<Qt::CursorShape> whenAskedForTheCode;
    test_.expectWizard([&](QWizardPage& page) {
        support::nameNewSet(page);
        if (page.isFinalPage())
            test_.driver->window().installEventFilter(&watch);
    });
    test_.modals->expect(q("code"), isDialog<TFACodeDlg>, [&](QWidget& dialog) {
        whenAskedForTheCode = watch.shown;
        child<QLineEdit>(dialog, "editCode").setText(q("314159"));
        child<QPushButton>(dialog, "btnValidate").click();
    });
    test_.run("OnNewBackupSet");
    QCOMPARE(whenAskedForTheCode, QVector<Qt::CursorShape>());
    QCOMPARE(watch.shown, support::waited);
}

void NewSetFlowTest::treesScrollToWhatIsLookedAt() {
    test_.start(Scenario::Default, [](World& world) {
        for (int number = 10; number < 90; ++number) {
            world.network.addContainer("Net " + std::to_string(number));
            world.network.addContainer("Net " + std::to_string(number) + "\\Inner");
            world.network.local()->folders.addFolder("E:\\" + std::to_string(number) + "\\sub");
        }
    });
    const auto expand = [](QTreeView& tree, const char* path) {
        const QModelIndex row = support::rowAt(tree, path);
        tree.expand(row);
        QCOMPARE(tree.visualRect(row).top(), 0);
    };
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        child<QPushButton>(wizard, "btnShowNetDiscovery").click();
        auto& network = child<QTreeView>(wizard, "treeNetworkDiscovery");
        network.model()->fetchMore({});
        expand(network, "Net 50");
        wizard.next();
        child<QRadioButton>(wizard, "radioCustom").click();
        auto& items = child<QTreeView>(wizard, "treeComputer");
        items.expand(support::rowAt(items, "E:"));
        expand(items, "E:/50");
        child<QRadioButton>(wizard, "radioSpecificLocation").click();
        wizard.next();
        child<QCheckBox>(wizard, "chkLocalCopy").click();
        child<QLineEdit>(wizard, "editLocalPath").setText(q("E:\\70\\"));
        child<QPushButton>(wizard, "btnLocalPath").click();
        auto& folders = child<QTreeView>(wizard, "treeAvailableDirectories");
        const int seen = folders.visualRect(support::rowAt(folders, "E:/70")).center().y();
        const int height = folders.viewport()->height();
        QVERIFY2(seen > height / 3 && seen < 2 * height / 3, qPrintable(QString::number(seen)));
        expand(folders, "E:/30");
        wizard.reject();
    });
    test_.run("OnNewBackupSet");
}

void NewSetFlowTest::aWizardThatIsLeftAsksForNothing_data() {
    support::addWaysToLeave();
}

/// A half-typed name doesn't trigger a look-up of the computer.
void NewSetFlowTest::aWizardThatIsLeftAsksForNothing() {
    QFETCH(support::Leave, leave);
    test_.start();
    test_.expectHalfTyped("editComputerName", q("files"), leave);
    test_.run("OnNewBackupSet");
}

void NewSetFlowTest::aSessionThatEndsUnderTheWizard() {
    test_.start();
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& wizard) {
        support::finishWizard(wizard, [this](QWizardPage& page) {
            support::nameNewSet(page);
            if (page.isFinalPage())
                test_.driver->window().OnDisconnect();
        });
    });
    test_.modals->expectErrorBox(q("New Backup Set Error"), q("No API connection exists"));
    test_.run("OnNewBackupSet");
    QVERIFY(!session::connectedToAgent());
}

void NewSetFlowTest::quittingUnderTheWizardMakesNoSet() {
    test_.start();
    const QStringList before = test_.setNames();
    test_.modals->expect(q("wizard"), isDialog<QWizard>,
                         [this](QWidget&) { test_.driver->window().OnQuit(); });
    test_.run("OnNewBackupSet");
    QCOMPARE(test_.setNames(), before);
}

void NewSetFlowTest::theFirstSetIsOfferedAtLogin() {
    test_.modals = std::make_unique<ModalDriver>();
    Calls before;
    test_.expectWizard([&](QWizardPage& page) {
        if (before.empty())
            before = support::methodsOf(*test_.agent);
        support::nameNewSet(page);
    });
    test_.start(Scenario::Empty);
    QVERIFY(test_.modals->done());
    // The check of the initial configuration comes first.
    QVERIFY(std::find(before.begin(), before.end(), "getUserInfo") != before.end());
    QCOMPARE(test_.setNames(), QStringList(q("New one")));
}

void NewSetFlowTest::aSetOfADatabaseIsNoFirstSet() {
    test_.modals = std::make_unique<ModalDriver>();
    test_.expectWizard();
    test_.start(Scenario::Empty, [](World& world) {
        simulator::BackupSetState database;
        database.info.name = "Accounts";
        database.info.data_type = hessiancln::BackupDataType::MSSQLServer;
        world.addSet(database);
    });
    QVERIFY(test_.modals->done());
    QCOMPARE(test_.setNames(), (QStringList{q("Accounts"), q("New one")}));
}

void NewSetFlowTest::underCentralManagementNoSetIsMadeOrOffered() {
    test_.start(Scenario::Empty, [](World& world) {
        world.about = {{"Centrally Managed Backup Policy", "Yes"}};
    });
    QVERIFY(session::connectedToAgent());
    QVERIFY(!test_.driver->isEnabled("actionNew_Backup_Set"));
    QCOMPARE(test_.setNames(), QStringList());
}

QTEST_MAIN(NewSetFlowTest)
#include "new_set_flow_test.moc"
