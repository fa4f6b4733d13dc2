// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "api/client_connection.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/gui/edit_wizard_calls.h"
#include "tests/support/cursor_watch.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_wizard.h"
#include "wizards/retention_task.h"

using namespace gui;
using simulator::Fault;
using simulator::Scenario;
using simulator::World;
using support::callsOf;
using support::child;
using support::difference;
using support::isDialog;

Q_DECLARE_METATYPE(simulator::Scenario)
Q_DECLARE_METATYPE(std::vector<std::string>)

namespace {

constexpr int projects = 3; // row of the fourth set

QString q(const char* text) {
    return QString::fromUtf8(text);
}

Calls operator+(Calls calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

/// Whether a call changes nothing except a browser's login.
bool onlyLooks(const std::string& text) {
    const std::string method = text.substr(text.find('.') + 1);
    for (const char* start : {"set", "add", "remove", "create", "define"})
        if (method.rfind(start, 0) == 0)
            return method.rfind("setCurrentCredentials", 0) == 0 ||
                   method.rfind("createBrowser", 0) == 0;
    return true;
}

} // namespace

/// The wizards for an existing set, clicked through against an agent, and all of their calls.
class EditWizardsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { test_.end(); }

    void aWizardIsFramed_data();
    void aWizardIsFramed();
    void items_data();
    void items();
    void itemsOfASetWithoutItems();
    void itemsOfASetThatHoldsNoFiles();
    void itemsOfASetOfUnixFilesFailAtTheCast();
    void theUserSeesThatWritingItemsTakesItsTime();
    void retention_data();
    void retention();
    void givingUpTheCodeWritesNoRetention();
    void schedule();
    void notScheduled();
    void cancelledWizardsWriteNothing_data();
    void cancelledWizardsWriteNothing();
    void aFaultOfAnEditWizard_data();
    void aFaultOfAnEditWizard();
    void theListMayGoUnderAWizard();
    void underCentralManagementNoSetIsEdited();
    void otherTasksOfAScheduleStay();
    void withoutARuleTheTaskIsCleared();

private:
    support::WizardTest test_;
};

void EditWizardsTest::aWizardIsFramed_data() {
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<bool>("anySize");
    QTest::newRow("new set") << q("OnNewBackupSet") << q("New Backup Set")
                             << q(":/images/wizard_newset.png") << true;
    QTest::newRow("items") << q("on_btnItems_clicked") << q("Protected Items Wizard")
                           << q(":/images/wizard_items.png") << false;
    QTest::newRow("retention") << q("on_btnRetention_clicked") << q("Retention Rule Wizard")
                               << q(":/images/wizard_retention.png") << false;
    QTest::newRow("schedule") << q("on_btnSchedule_clicked") << q("Schedule Wizard")
                              << q(":/images/wizard_schedule.png") << false;
}

void EditWizardsTest::aWizardIsFramed() {
    QFETCH(QString, slot);
    QFETCH(QString, title);
    QFETCH(QString, picture);
    QFETCH(bool, anySize);
    test_.start();
    test_.driver->sets().selectRow(projects);
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        QCOMPARE(wizard.parentWidget(), &test_.driver->window());
        QCOMPARE(wizard.windowTitle(), title);
        support::compareWindowIcon(wizard);
        QCOMPARE(wizard.pixmap(QWizard::WatermarkPixmap).toImage(), QPixmap(picture).toImage());
        QCOMPARE(wizard.maximumSize() == QSize(65536, 65536), anySize);
        if (anySize) // changing pages sets the button texts again
            wizard.next();
        const std::tuple<QWizard::WizardButton, const char*, const char*> looks[]{
            {QWizard::BackButton, "&Back", ":/button/back"},
            {QWizard::NextButton, "&Next", ":/button/forward"},
            {QWizard::FinishButton, "&Finish", ":/button/ok"},
            {QWizard::CancelButton, "&Cancel", ":/button/cancel"}};
        for (const auto& [which, text, icon] : looks) {
            QCOMPARE(wizard.button(which)->text(), q(text));
            QCOMPARE(wizard.button(which)->icon().pixmap(16).toImage(),
                     QIcon(q(icon)).pixmap(16).toImage());
            QVERIFY(!wizard.button(which)->icon().isNull());
        }
        wizard.reject();
    });
    test_.run(qPrintable(slot));
}

void EditWizardsTest::items_data() {
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<bool>("tool");
    QTest::addColumn<bool>("twoFactor");
    QTest::addColumn<int>("pages");
    QTest::addColumn<Calls>("expected");
    const Calls loaded = itemsPages + itemsLogin + Calls{"BackupSet.getDataType()"};
    const Calls all = loaded + itemsOptions + itemsShown + foldersShown + itemsWritten +
                      optionsWritten + shadowCopies;
    const Calls bare = loaded + itemsShown + itemsWritten;
    QTest::newRow("mobile") << Scenario::Default << true << false << 3 << all;
    QTest::newRow("mobile, no code asked for") << Scenario::Default << true << true << 3 << all;
    QTest::newRow("mobile without the tool")
        << Scenario::Default << false << false << 2 << bare + shadowCopies;
    QTest::newRow("notebook") << Scenario::Notebook << true << false << 2 << bare;
}

void EditWizardsTest::items() {
    QFETCH(Scenario, scenario);
    QFETCH(bool, tool);
    QFETCH(bool, twoFactor);
    QFETCH(int, pages);
    QFETCH(Calls, expected);
    test_.start(scenario, [&](World& world) {
        world.twoFactor = twoFactor;
        if (!tool)
            world.tools.clear();
    });
    test_.driver->sets().selectRow(projects);
    int seen = 0;
    test_.expectWizard([&seen](QWizardPage&) { ++seen; });
    test_.run("on_btnItems_clicked");
    QCOMPARE(seen, pages);
    QCOMPARE(difference(callsOf(*test_.agent), expected), QString());
}

void EditWizardsTest::itemsOfASetWithoutItems() {
    test_.start(Scenario::Default, [](World& world) {
        auto& set = *world.sets()[projects];
        set.items.clear();
        set.info.has_items = false;
        world.tools.clear();
    });
    test_.driver->sets().selectRow(projects);
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        auto& computer = child<QLineEdit>(wizard, "editComputerName");
        QCOMPARE(computer.text(), q("My Computer"));
        QVERIFY(!computer.isEnabled());
        support::cancelWizard(wizard, 0);
    });
    test_.run("on_btnItems_clicked");
    QCOMPARE(difference(callsOf(*test_.agent), itemsPages + Calls{"BackupSet.getDataType()"}),
             QString());
}

void EditWizardsTest::itemsOfASetThatHoldsNoFiles() {
    test_.start();
    test_.driver->sets().selectRow(projects);
    test_.agent->withWorld([](World& world) {
        world.sets()[projects]->info.data_type = hessiancln::BackupDataType::MSSQLServer;
    });
    test_.modals->expectErrorBox(
        q("Error"), q("This backup set type cannot be edited by this user interface."));
    test_.run("on_btnItems_clicked");
    QCOMPARE(callsOf(*test_.agent).back(), std::string("BackupSet.getDataType()"));
}

void EditWizardsTest::itemsOfASetOfUnixFilesFailAtTheCast() {
    test_.start(Scenario::Unix);
    test_.driver->sets().selectRow(0);
    test_.expectWizard();
    test_.modals->expectErrorBox(
        q("Editing Backup Set Items Error"),
        q("Bad cast from BackupSet: class is NOT of type Win32FS_BackupSet"));
    test_.run("on_btnItems_clicked");
    const Calls methods = support::methodsOf(*test_.agent);
    QCOMPARE(std::count(methods.begin(), methods.end(), "setItems"), 1);
    QCOMPARE(std::count(methods.begin(), methods.end(), "setUseVSS"), 0);
}

void EditWizardsTest::theUserSeesThatWritingItemsTakesItsTime() {
    test_.start();
    test_.driver->sets().selectRow(projects);
    support::CursorWatch watch;
    test_.expectWizard([&](QWizardPage& page) {
        if (page.isFinalPage())
            test_.driver->window().installEventFilter(&watch);
    });
    test_.run("on_btnItems_clicked");
    QCOMPARE(watch.shown, support::waited);
}

void EditWizardsTest::retention_data() {
    QTest::addColumn<bool>("twoFactor");
    QTest::newRow("without a code") << false;
    QTest::newRow("with a code") << true;
}

void EditWizardsTest::retention() {
    QFETCH(bool, twoFactor);
    test_.start(Scenario::Default, [&](World& world) { world.twoFactor = twoFactor; });
    test_.driver->sets().selectRow(projects);
    test_.expectWizard();
    if (twoFactor)
        test_.expectCode(true);
    test_.run("on_btnRetention_clicked");
    QCOMPARE(difference(callsOf(*test_.agent), retentionLoaded +
                                                   (twoFactor ? support::callsForCode() : Calls{}) +
                                                   retentionWritten + synchronised + detailsRead),
             QString());
}

void EditWizardsTest::givingUpTheCodeWritesNoRetention() {
    test_.start(Scenario::Default, [](World& world) { world.twoFactor = true; });
    test_.driver->sets().selectRow(projects);
    test_.expectWizard();
    test_.expectCode(false);
    test_.run("on_btnRetention_clicked");
    const Calls asked{"ClientConnection.getTFAManager()", "TFAManager.requestCode(2)"};
    QCOMPARE(difference(callsOf(*test_.agent), retentionLoaded + asked), QString());
}

void EditWizardsTest::schedule() {
    // It never asks for a code.
    test_.start(Scenario::Default, [](World& world) { world.twoFactor = true; });
    test_.driver->sets().selectRow(projects);
    test_.expectWizard();
    test_.run("on_btnSchedule_clicked");
    QCOMPARE(difference(callsOf(*test_.agent), scheduleLoaded + scheduleAsked + scheduleCreated +
                                                   scheduleActive + synchronised + detailsRead),
             QString());
}

void EditWizardsTest::notScheduled() {
    test_.start();
    test_.driver->sets().selectRow(projects);
    test_.expectWizard([](QWizardPage& page) {
        QTest::mouseClick(&child<QRadioButton>(page, "radioNotScheduled"), Qt::LeftButton);
    });
    test_.run("on_btnSchedule_clicked");
    const Calls detached{"BackupSet.setSchedule(null)"};
    const Calls nothingToSynchronise{"BackupSet.getRetentionRule()", "BackupSet.getSchedule()"};
    QCOMPARE(difference(callsOf(*test_.agent), scheduleLoaded + scheduleAsked + detached +
                                                   scheduleActive + nothingToSynchronise +
                                                   detailsRead),
             QString());
}

void EditWizardsTest::cancelledWizardsWriteNothing_data() {
    QTest::addColumn<QString>("slot");
    QTest::addColumn<int>("page");
    for (int page = 0; page < 6; ++page)
        QTest::addRow("new set, page %d", page) << q("OnNewBackupSet") << page;
    for (int page = 0; page < 3; ++page)
        QTest::addRow("items, page %d", page) << q("on_btnItems_clicked") << page;
    QTest::newRow("retention") << q("on_btnRetention_clicked") << 0;
    QTest::newRow("schedule") << q("on_btnSchedule_clicked") << 0;
}

void EditWizardsTest::cancelledWizardsWriteNothing() {
    QFETCH(QString, slot);
    QFETCH(int, page);
    test_.start(Scenario::Default, [](World& world) { world.twoFactor = true; });
    test_.driver->sets().selectRow(projects);
    const QStringList before = test_.setNames();
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [page](QWidget& wizard) {
        support::cancelWizard(wizard, page, support::nameNewSet);
    });
    test_.run(qPrintable(slot));
    for (const std::string& call : callsOf(*test_.agent))
        QVERIFY2(onlyLooks(call), call.c_str());
    QCOMPARE(test_.setNames(), before);
    test_.driver->beat();
    QCOMPARE(test_.driver->selectedRow(), projects);
}

void EditWizardsTest::aFaultOfAnEditWizard_data() {
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("opens");
    const auto row = [](const char* slot, const char* method, const char* title, bool opens) {
        QTest::addRow("%s %s", slot, method) << q(slot) << q(method) << q(title) << opens;
    };
    const char* items = "Editing Backup Set Items Error";
    for (const char* method : {"isTarnToolEnabled", "backup_set", "createBrowser",
                               "BackupSet.getDataType", "getClientOSType", "dataBrowser"})
        row("on_btnItems_clicked", method, items, false);
    for (const char* method :
         {"getPredefinedItems", "BackupSet.items", "setCredentials", "createInclusionItem",
          "setItems", "setUsingLocalStorage", "setUseVSS"})
        row("on_btnItems_clicked", method, items, true);
    for (const char* method : {"backup_set", "getKeepLastGenerations"})
        row("on_btnRetention_clicked", method, "Error", false);
    for (const char* method : {"createRule", "setLocalStorageRetention", "getTasks", "setTasks"})
        row("on_btnRetention_clicked", method, "Error", true);
    for (const char* method : {"backup_set", "getClientNumber", "isUsingNetworkDetection"})
        row("on_btnSchedule_clicked", method, "Error", false);
    for (const char* method : {"createSchedule", "setAdvancedConfigNumber", "getTasks"})
        row("on_btnSchedule_clicked", method, "Error", true);
}

void EditWizardsTest::aFaultOfAnEditWizard() {
    QFETCH(QString, slot);
    QFETCH(QString, method);
    QFETCH(QString, title);
    QFETCH(bool, opens);
    test_.start();
    test_.driver->sets().selectRow(projects);
    test_.agent->inject(method.toStdString(), Fault{"Außer Betrieb."});
    if (opens)
        test_.modals->expect(q("wizard"), isDialog<QWizard>,
                             [](QWidget& wizard) { support::finishWizard(wizard); });
    test_.modals->expectErrorBox(title, q("Außer Betrieb."));
    test_.run(qPrintable(slot));
    // No call follows the failed one.
    const Calls methods = support::methodsOf(*test_.agent);
    QCOMPARE(methods.back(), method.section(QLatin1Char('.'), -1).toStdString());
    QVERIFY(session::connectedToAgent());
}

void EditWizardsTest::theListMayGoUnderAWizard() {
    test_.start();
    test_.driver->sets().selectRow(projects);
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& wizard) {
        test_.agent->withWorld([](World& world) {
            while (!world.sets().empty())
                world.removeSet(world.sets().back()->info.id);
        });
        test_.driver->beat();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(test_.driver->cards(), QStringList());
        wizard.close();
    });
    test_.run("on_btnSchedule_clicked");
}

void EditWizardsTest::underCentralManagementNoSetIsEdited() {
    test_.start(Scenario::Central);
    test_.driver->sets().selectRow(0);
    QVERIFY(child<QWidget>(test_.driver->window(), "pageProperties").isEnabled());
    test_.agent->clearCallLog();
    for (const char* name : {"btnItems", "btnSchedule", "btnRetention"}) {
        auto& button = child<QToolButton>(test_.driver->window(), name);
        QVERIFY2(!button.isEnabled(), name);
        button.click();
    }
    QCOMPARE(callsOf(*test_.agent), Calls{});
}

void EditWizardsTest::otherTasksOfAScheduleStay() {
    test_.start(Scenario::Default, [](World& world) {
        world.sets()[projects]->info.schedule_id = 3;
        world.schedules.find(3)->details[0]->tasks = 5;
    });
    const auto set = session::getConnection()->backup_set(4);
    test_.agent->clearCallLog();
    wizards::syncRetentionTask(*set);
    QCOMPARE(callsOf(*test_.agent).back(), std::string("ScheduleDetail.setTasks(7)"));
}

void EditWizardsTest::withoutARuleTheTaskIsCleared() {
    test_.start(Scenario::Default, [](World& world) {
        world.sets()[projects]->info.schedule_id = 3;
        world.sets()[projects]->info.retention_rule_id = 0;
        auto& details = world.schedules.find(3)->details;
        details[0]->tasks = 7;
        details.push_back(std::make_shared<simulator::ScheduleDetailState>(*details[0]));
        details[1]->tasks = 1;
    });
    const auto set = session::getConnection()->backup_set(4);
    test_.agent->clearCallLog();
    wizards::syncRetentionTask(*set);
    QCOMPARE(
        callsOf(*test_.agent),
        (Calls{"BackupSet.getRetentionRule()", "BackupSet.getSchedule()", "Schedule.getDetails()",
               "ScheduleDetail.getTasks()", "ScheduleDetail.setTasks(5)",
               "ScheduleDetail.getTasks()", "ScheduleDetail.setTasks(1)"}));
}

QTEST_MAIN(EditWizardsTest)
#include "edit_wizards_test.moc"
