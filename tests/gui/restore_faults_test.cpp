// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/gui/restore_wizard_calls.h"
#include "tests/gui/restore_wizard_steps.h"
#include "tests/support/gui_wizard.h"
#include "wizards/restore_directory_destination.h"
#include "wizards/select_generation_dlg.h"

using namespace gui;
using simulator::Fault;
using simulator::World;
using support::callsOf;
using support::child;
using support::isDialog;

namespace {

const char faultText[] = "Außer Betrieb.";

/// What the user sees when a call of the wizard fails.
enum class OnFault {
    NoWizard,     ///< the command's box; the wizard never opens
    ErrorR1,      ///< this box, then the wizard
    ErrorR2,      ///< as above
    InitError,    ///< as above
    OverWizard,   ///< a box over the wizard, which continues
    SourceStays,  ///< a box about the credentials; the wizard stays on its page
    NoDirectory,  ///< a box; the page opens without a directory on it
    NothingStarts ///< the wizard closes, then the command's box opens
};

struct FlowCall {
    const char* method;
    OnFault onFault;
};

/// The calls of a restore to another directory, from the command to the start.
const std::vector<FlowCall> flow{
    {"ClientConnection.backup_set", OnFault::NoWizard},
    {"BackupSet.getCurrentStatus", OnFault::NoWizard},
    {"BackupSet.prepare_restore", OnFault::NoWizard},
    {"BackupSetRestoreView.getSubItems", OnFault::NoWizard},
    {"BackupSetRestoreView.getSubItems", OnFault::OverWizard},
    {"ClientConnection.createBrowser", OnFault::NoWizard},
    {"DataSourceBrowser.expandToFullPath", OnFault::NoWizard},
    {"DataSourceBrowser.neededCredentials", OnFault::ErrorR1},
    {"DataSourceBrowser.setCurrentCredentials", OnFault::ErrorR1},
    {"DataSourceBrowser.getCurrentCredentials", OnFault::ErrorR2},
    {"BackupSetCredentials.types", OnFault::ErrorR2},
    {"BackupSetCredentials.types", OnFault::ErrorR2},
    {"Win32FS_Generic_BackupSetCredentials.getUserName", OnFault::ErrorR2},
    {"DataSourceBrowser.setCurrentCredentials", OnFault::ErrorR2},
    {"ClientConnection.getConfigurationManager", OnFault::NoWizard},
    {"ClientConfiguration.getClientOSType", OnFault::NoWizard},
    {"BackupSet.getComputerName", OnFault::InitError},
    {"DataSourceBrowser.getCurrentCredentials", OnFault::SourceStays},
    {"BackupSetCredentials.check", OnFault::SourceStays},
    {"BackupSet.getComputerName", OnFault::NoDirectory},
    {"DataSourceBrowser.getPredefinedItems", OnFault::NoDirectory},
    {"BackupSetRestoreView.prepareRestore", OnFault::NothingStarts},
    {"RestoreActivityInitiator.setRestoreReason", OnFault::NothingStarts},
    {"RestoreActivityInitiator.selected_shares", OnFault::NothingStarts},
    {"BackupSet.getComputerName", OnFault::NothingStarts},
    {"RestoreActivityInitiator.start", OnFault::NothingStarts}};

const RestoreWishes wishes{.checked = {"D:"}, .location = "radioAlternateDir"};

QPushButton& generations(QWidget& page) {
    return child<QPushButton>(page, "buttonGenerations");
}

} // namespace

/// The restore wizard, failing at each of its calls in turn.
class RestoreFaultsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { test_.end(); }
    void init() { restoresBefore_ = restoresUnderWay(); }
    void cleanup();

    void aFaultIsReportedAndStopsTheFlow_data();
    void aFaultIsReportedAndStopsTheFlow();
    void aFaultOnTheWayToTheOriginalPlace_data();
    void aFaultOnTheWayToTheOriginalPlace();
    void aFaultOfAFilterLeavesThePage_data();
    void aFaultOfAFilterLeavesThePage();
    void aFaultOfTheGenerationsLeavesThePage_data();
    void aFaultOfTheGenerationsLeavesThePage();
    void anObjectThatIsMissing_data();
    void anObjectThatIsMissing();
    void aFolderOfTheDestinationThatFailsIsNotReported();
    void aPageWithoutDirectoryCanBeTriedAgain();
    void theDirectoryOfAnotherComputerGoes();

private:
    void failCall(std::size_t number);
    void expectBox(const char* title) { test_.modals->expectErrorBox(q(title), q(faultText)); }
    void expectAfterFault(OnFault onFault);
    /// Acts on the first page of the wizard, which is then cancelled.
    void atFirstPage(const support::AtPage& act);
    std::size_t restoresUnderWay();

    support::WizardTest test_;
    std::size_t restoresBefore_ = 0;
};

void RestoreFaultsTest::initTestCase() {
    resources::initPictures();
    test_.start(simulator::Scenario::Default, [](World& world) { storeFiles(world); });
    test_.driver->sets().selectRow(restoredRow);
}

void RestoreFaultsTest::cleanup() {
    QVERIFY(test_.modals->done());
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
    QVERIFY(session::connectedToAgent());
    QVERIFY(!QGuiApplication::overrideCursor());
}

/// Makes the call with that index fail; earlier calls of the same method succeed.
void RestoreFaultsTest::failCall(std::size_t number) {
    const std::string method = flow[number].method;
    for (std::size_t i = 0; i < number; ++i)
        if (flow[i].method == method)
            test_.agent->inject(method, simulator::Delay{std::chrono::milliseconds(0)});
    test_.agent->inject(method, Fault{faultText});
}

void RestoreFaultsTest::expectAfterFault(OnFault onFault) {
    const auto expectCancelled = [this] {
        test_.modals->expect(q("wizard"), isDialog<QWizard>,
                             [](QWidget& wizard) { support::cancelWizard(wizard, 0); });
    };
    const auto expectFinished = [this](bool comesThrough) {
        test_.modals->expect(q("wizard"), isDialog<QWizard>, [comesThrough](QWidget& wizard) {
            QCOMPARE(support::finishWizard(wizard, wishing(wishes)), comesThrough);
        });
    };
    switch (onFault) {
    case OnFault::NoWizard:
        expectBox("Error");
        break;
    case OnFault::ErrorR1:
        expectBox("Error R1");
        expectCancelled();
        break;
    case OnFault::ErrorR2:
        expectBox("Error R2");
        expectCancelled();
        break;
    case OnFault::InitError:
        expectBox("Init Error");
        expectCancelled();
        break;
    case OnFault::OverWizard:
        expectBox("Error");
        expectCancelled();
        break;
    case OnFault::SourceStays:
        expectFinished(false);
        expectBox("Credential check failed");
        break;
    case OnFault::NoDirectory:
        expectFinished(false);
        expectBox("Error");
        break;
    case OnFault::NothingStarts:
        expectFinished(true);
        expectBox("Error");
        break;
    }
}

std::size_t RestoreFaultsTest::restoresUnderWay() {
    std::size_t count = 0;
    test_.agent->withWorld([&](World& world) {
        for (const auto& activity : world.running())
            count += activity.type == hessiancln::ActivityType::Restore ? 1 : 0;
    });
    return count;
}

void RestoreFaultsTest::aFaultIsReportedAndStopsTheFlow_data() {
    QTest::addColumn<int>("number");
    for (std::size_t i = 0; i < flow.size(); ++i)
        QTest::addRow("%zu %s", i, flow[i].method) << static_cast<int>(i);
}

void RestoreFaultsTest::aFaultIsReportedAndStopsTheFlow() {
    QFETCH(int, number);
    const auto index = static_cast<std::size_t>(number);
    const OnFault onFault = flow[index].onFault;
    failCall(index);
    expectAfterFault(onFault);
    test_.run("OnRestore");
    QCOMPARE(restoresUnderWay(), restoresBefore_);
    if (onFault == OnFault::ErrorR1 || onFault == OnFault::ErrorR2 ||
        onFault == OnFault::InitError || onFault == OnFault::OverWizard)
        return;
    // Only the calls up to the failed one.
    Calls expected;
    for (std::size_t i = 0; i <= index; ++i)
        expected.emplace_back(flow[i].method);
    Calls actual;
    for (const std::string& call : callsOf(*test_.agent))
        actual.push_back(call.substr(0, call.find('(')));
    QCOMPARE(support::difference(actual, expected), QString());
}

void RestoreFaultsTest::aFaultOnTheWayToTheOriginalPlace_data() {
    QTest::addColumn<QString>("method");
    for (const char* method :
         {"BackupSetRestoreView.prepareRestore", "RestoreActivityInitiator.setRestoreReason",
          "BackupSet.dataBrowser", "RestoreActivityInitiator.start"})
        QTest::newRow(method) << q(method);
}

void RestoreFaultsTest::aFaultOnTheWayToTheOriginalPlace() {
    QFETCH(QString, method);
    test_.agent->inject(method.toStdString(), Fault{faultText});
    test_.expectWizard(wishing({.checked = {"D:"}}));
    expectBox("Error");
    test_.run("OnRestore");
    const std::string last = callsOf(*test_.agent).back();
    QCOMPARE(last.substr(0, last.find('(')), method.toStdString());
    QCOMPARE(restoresUnderWay(), restoresBefore_);
}

void RestoreFaultsTest::atFirstPage(const support::AtPage& act) {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [act](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        act(*wizard.currentPage());
        wizard.reject();
    });
    test_.run("OnRestore");
}

void RestoreFaultsTest::aFaultOfAFilterLeavesThePage_data() {
    QTest::addColumn<QString>("method");
    for (const char* method : {"backup_times", "prepare_restore", "getSubItems"})
        QTest::newRow(method) << q(method);
}

void RestoreFaultsTest::aFaultOfAFilterLeavesThePage() {
    QFETCH(QString, method);
    atFirstPage([&](QWizardPage& page) {
        check(page, "C:/docs");
        test_.agent->inject(method.toStdString(), Fault{faultText});
        expectBox("Error");
        auto& filter = child<QCheckBox>(page, "checkFilter");
        filter.click();
        // The filter must match the tree.
        QVERIFY(!filter.isChecked());
        QVERIFY(!child<QWidget>(page, "filterDisplay").isVisible());
        QCOMPARE(rowAt(treeOf(page), "C:/docs").data(Qt::CheckStateRole).toInt(), 2);
        QVERIFY(page.isComplete());
        QVERIFY(!QGuiApplication::overrideCursor());
        // The next attempt succeeds and shows the correct dates.
        filter.click();
        QVERIFY(filter.isChecked());
        QCOMPARE(child<QDateTimeEdit>(page, "dateTo").dateTime().toSecsSinceEpoch(), lastBackup);
        for (const auto& [box, value] :
             {std::pair("checkFrom", "dateFrom"), std::pair("checkTo", "dateTo"),
              std::pair("checkRemoved", "dateRemoved")}) {
            test_.agent->inject("prepare_restore", Fault{faultText});
            expectBox("Error");
            child<QCheckBox>(page, box).click();
            QVERIFY(!child<QCheckBox>(page, box).isChecked());
            QVERIFY(!child<QWidget>(page, value).isEnabled());
            QVERIFY(filter.isChecked());
        }
    });
}

void RestoreFaultsTest::aFaultOfTheGenerationsLeavesThePage_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<bool>("picked");
    QTest::newRow("getItemGenerations") << q("getItemGenerations") << false;
    for (const char* method : {"backup_times", "prepare_restore", "getSubItems"})
        QTest::newRow(method) << q(method) << true;
}

void RestoreFaultsTest::aFaultOfTheGenerationsLeavesThePage() {
    QFETCH(QString, method);
    QFETCH(bool, picked);
    atFirstPage([&](QWizardPage& page) {
        check(page, "D:");
        listOf(page).setCurrentIndex(fileNamed(page, "notes.txt"));
        test_.agent->inject(method.toStdString(), Fault{faultText});
        if (picked)
            test_.modals->expect(q("generations"), isDialog<SelectGenerationDlg>, [](QWidget& one) {
                child<QTableView>(one, "listGenerations").selectRow(1);
                child<QPushButton>(one, "buttonSelect").click();
            });
        expectBox("Error");
        generations(page).click();
        QVERIFY(!child<QCheckBox>(page, "checkFilter").isChecked());
        QVERIFY(!child<QCheckBox>(page, "checkTo").isChecked());
        QVERIFY(!child<QWidget>(page, "filterDisplay").isVisible());
        // The check marks are unchanged: the file whose generation isn't shown remains unchecked.
        QCOMPARE(checkStateOf(page, "notes.txt"), 0);
        QCOMPARE(rowAt(treeOf(page), "D:").data(Qt::CheckStateRole).toInt(), 2);
        QVERIFY(generations(page).isEnabled());
    });
}

void RestoreFaultsTest::anObjectThatIsMissing_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<bool>("opens");
    for (const char* method : {"prepare_restore", "createBrowser", "getConfigurationManager"})
        QTest::newRow(method) << q(method) << false;
    QTest::newRow("prepareRestore") << q("prepareRestore") << true;
}

void RestoreFaultsTest::anObjectThatIsMissing() {
    QFETCH(QString, method);
    QFETCH(bool, opens);
    test_.agent->inject(method.toStdString(), simulator::NullResult{});
    if (opens)
        test_.expectWizard(wishing(wishes));
    test_.modals->expectErrorBox(q("Error"), q("The agent did not return the requested object."));
    test_.run("OnRestore");
    QCOMPARE(restoresUnderWay(), restoresBefore_);
}

void RestoreFaultsTest::aFolderOfTheDestinationThatFailsIsNotReported() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        QVERIFY(support::finishWizard(wizard, [](QWizardPage& page) {
            wishing(wishes)(page);
            if (!qobject_cast<RestoreDirectoryDestination*>(&page))
                return;
            child<QPushButton>(page, "btnRestoreTo").click();
            auto& tree = child<QTreeView>(page, "treeAvailableDirectories");
            const QModelIndex closed = rowAt(tree, "C:/System Volume Information");
            QVERIFY(tree.model()->hasChildren(closed));
            tree.expand(closed);
            QVERIFY(!tree.model()->hasChildren(closed));
        }));
    });
    test_.run("OnRestore");
}

void RestoreFaultsTest::aPageWithoutDirectoryCanBeTriedAgain() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        test_.agent->inject("getPredefinedItems", Fault{faultText});
        for (int page = 0; page < 3; ++page) {
            wishing(wishes)(*wizard.currentPage());
            if (page == 2)
                expectBox("Error");
            wizard.next();
        }
        auto& directory = child<QLineEdit>(*wizard.currentPage(), "editRestoreTo");
        QCOMPARE(directory.text(), QString());
        // Without a list of places to start from, a path can still be typed.
        child<QPushButton>(*wizard.currentPage(), "btnRestoreTo").click();
        wizard.back();
        wizard.next();
        QCOMPARE(directory.text(), q("C:\\Users\\anna\\Documents"));
        wizard.reject();
    });
    test_.run("OnRestore");
}

/// The page has to be entered a second time to have one of the first.
void RestoreFaultsTest::theDirectoryOfAnotherComputerGoes() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        for (int page = 0; page < 3; ++page) {
            wishing(wishes)(*wizard.currentPage());
            wizard.next();
        }
        QWizardPage& last = *wizard.currentPage();
        auto& directory = child<QLineEdit>(last, "editRestoreTo");
        QVERIFY(!directory.text().isEmpty());
        child<QPushButton>(last, "btnRestoreTo").click();
        auto& tree = child<QTreeView>(last, "treeAvailableDirectories");
        QVERIFY(tree.model());
        wizard.back();
        test_.agent->inject("getPredefinedItems", Fault{faultText});
        expectBox("Error");
        wizard.next();
        QCOMPARE(directory.text(), QString());
        QVERIFY(!tree.model());
        QVERIFY(!last.isComplete());
        wizard.reject();
    });
    test_.run("OnRestore");
}

QTEST_MAIN(RestoreFaultsTest)
#include "restore_faults_test.moc"
