// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// What the main window shows about the safety of data, beyond its tables.

#include <set>
#include <utility>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QWizard>

#include "app/call_gate.h"
#include "app/event_log_viewer.h"
#include "insight/backup_health_window.h"
#include "insight/find_file_window.h"
#include "resources/pictures.h"
#include "simulator/world/health_scenarios.h"
#include "simulator/world/world.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_wait.h"
#include "tests/support/gui_wizard.h"
#include "wizards/restore_flow.h"
#include "wizards/select_generation_dlg.h"

using simulator::Scenario;
using simulator::World;
using namespace std::chrono_literals;
using support::child;
using support::GuiAgent;
using support::InTheWait;
using support::isDialog;
using support::MainWindowDriver;
using support::methodsOf;
using support::ModalDriver;

namespace {

/// Starts a short activity that ends with this many errors.
void runOnce(World& world, hessiancln::ActivityType type, std::int32_t errors) {
    simulator::ActivityPlan plan = world.backupOf(world.sets().front(), "anna");
    plan.type = type;
    plan.errors = errors;
    plan.warnings = 0;
    plan.duration = 1'500;
    world.start(std::move(plan));
}

/// Waits until the agent is idle.
void waitForEnd(GuiAgent& agent) {
    QTRY_VERIFY([&] {
        bool running = true;
        agent.withWorld([&](World& world) {
            world.advance();
            running = !world.running().empty();
        });
        return !running;
    }());
}

/// A backup ends with three errors while the window is hidden, and the tray announces it.
void announceErrors(MainWindowDriver& driver, GuiAgent& agent) {
    driver.window().hide();
    agent.withWorld([](World& world) { runOnce(world, hessiancln::ActivityType::Backup, 3); });
    driver.beat();
    driver.beat();
    waitForEnd(agent);
    driver.beat();
}

/// Find File, with the stored file "Diary.odt" found and selected.
FindFileWindow& findDiary(MainWindowDriver& driver) {
    driver.trigger("actionFind_File");
    auto& find = *driver.window().findChild<FindFileWindow*>();
    child<QLineEdit>(find, "editName").setText(QStringLiteral("diary"));
    child<QPushButton>(find, "buttonFind").click();
    if (!QTest::qWaitFor([&find] { return !find.isSearching(); }))
        qFatal("The search doesn't end");
    child<QTableView>(find, "tableFound").selectRow(0);
    return find;
}

} // namespace

class MainWindowInsightTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        // Only Qt's own file dialog has widgets that a test can use.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void theFieldSaysHowTheSetsAre() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        auto& field = child<QToolButton>(driver.window(), "healthField");
        QCOMPARE(field.text(), QStringLiteral("Not connected"));
        driver.logIn(agent);
        QCOMPARE(field.text(), QStringLiteral("3 of 5 sets need attention"));
        driver.window().OnDisconnect();
        QCOMPARE(field.text(), QStringLiteral("Not connected"));
    }

    void aHeartbeatMakesNoFurtherCall() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        agent.clearCallLog();
        driver.beat();
        const std::vector<std::string> expected{"getTarnClientInfo",  "getTFAManager",
                                                "is2FAEnabled",       "activity_log",
                                                "running_activities", "backup_sets_info"};
        QCOMPARE(methodsOf(agent), expected);
    }

    void theFieldOpensTheWindowWhoseButtonBacksUp() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        QTest::mouseClick(&child<QToolButton>(driver.window(), "healthField"), Qt::LeftButton);
        auto* health = driver.window().findChild<BackupHealthWindow*>();
        QVERIFY(health && health->isVisible());
        auto& table = child<QTableView>(*health, "tableSets");
        QCOMPARE(table.model()->index(0, 0).data().toString(), QStringLiteral("Music"));
        agent.clearCallLog();
        QTest::mouseClick(&child<QPushButton>(*health, "buttonBackup"), Qt::LeftButton);
        const auto methods = methodsOf(agent);
        QVERIFY(std::count(methods.begin(), methods.end(), "start_backup") == 1);
        QVERIFY(driver.status().contains(QStringLiteral("On-demand backup started for 'Music'")));
    }

    void theSearchLineFiltersTheLog() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        const int all = driver.rows("tableActivityLog");
        QVERIFY(all >= 5);
        auto& line = child<QLineEdit>(driver.window(), "editSearch");
        auto& count = child<QLabel>(driver.window(), "labelCount");
        line.setText(QStringLiteral("errors"));
        QCOMPARE(driver.rows("tableActivityLog"), 2);
        QCOMPARE(count.text(), QStringLiteral("2 shown, %1 hidden").arg(all - 2));
        // A heartbeat fetches all rows again, and the filter stays.
        driver.beat();
        QCOMPARE(driver.rows("tableActivityLog"), 2);
        line.setText(QStringLiteral("set:\"ended with errors\""));
        QCOMPARE(driver.rows("tableActivityLog"), 1);
        child<QTabWidget>(driver.window(), "tabWidget").setCurrentIndex(1);
        auto& table = child<QTableView>(driver.window(), "tableActivityLog");
        auto& note = child<QLabel>(table, "emptyNote");
        QVERIFY(!note.isVisible());
        line.setText(QStringLiteral("no such word"));
        QTRY_VERIFY(note.isVisible());
        QCOMPARE(note.text(), QStringLiteral("No rows match the search."));
        line.clear();
        QTRY_VERIFY(!note.isVisible());
        child<QComboBox>(driver.window(), "comboSeverity").setCurrentIndex(1);
        QCOMPARE(driver.rows("tableActivityLog"), 3);
        child<QComboBox>(driver.window(), "comboSeverity").setCurrentIndex(0);
        QCOMPARE(driver.rows("tableActivityLog"), all);
        QCOMPARE(count.text(), QStringLiteral("%1 rows").arg(all));
        QCOMPARE(QAccessible::queryAccessibleInterface(&count)->text(QAccessible::Name),
                 count.text());
    }

    void aPeriodWithoutActivitiesSaysSo() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        auto& window = driver.window();
        child<QTabWidget>(window, "tabWidget").setCurrentIndex(1);
        const auto& note =
            child<QLabel>(child<QTableView>(window, "tableActivityLog"), "emptyNote");
        driver.logIn(agent);
        for (const char* field : {"dateTimeFrom", "dateTimeTo"})
            child<QDateTimeEdit>(window, field).setDateTime(QDateTime({2001, 1, 1}, {0, 0}));
        driver.beat();
        QCOMPARE(driver.rows("tableActivityLog"), 0);
        QTRY_VERIFY(note.isVisible());
        QCOMPARE(note.text(), QStringLiteral("No activities in this period."));
        // Without a session, nothing is known about the period.
        driver.window().OnDisconnect();
        QTRY_VERIFY(!note.isVisible());
    }

    void aSelectedRowStaysSelectedUnderAFilter() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        auto& table = child<QTableView>(driver.window(), "tableActivityLog");
        const int last = table.model()->rowCount() - 1;
        table.selectRow(last);
        const QString name = table.model()->index(last, 1).data().toString();
        child<QLineEdit>(driver.window(), "editSearch").setText(name);
        const auto rows = table.selectionModel()->selectedRows(1);
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.first().data().toString(), name);
    }

    void anEndWithErrorsIsAWarningWhoseClickShowsTheEvents() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        announceErrors(driver, agent);
        QCOMPARE(driver.tray().warnings.size(), 1);
        QCOMPARE(driver.tray().warnings.first().second,
                 QStringLiteral("Backup of 'Documents' ended with 3 errors"));
        driver.beat();
        QCOMPARE(driver.tray().warnings.size(), 1);

        ModalDriver modals;
        modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [](QWidget& dialog) {
            QVERIFY(child<QTableView>(dialog, "tableEvents").model()->rowCount() >= 3);
            child<QPushButton>(dialog, "buttonClose").click();
        });
        emit driver.tray().messageClicked();
        QCoreApplication::processEvents();
        QVERIFY(modals.done());
        // As any click on a balloon, it ends the reminder of the tray.
        const int balloons = driver.tray().balloons.size();
        driver.window().close();
        QCOMPARE(driver.tray().balloons.size(), balloons);
    }

    void aClickDuringACallShowsTheEventsAfterIt() {
        GuiAgent agent({.scenario = Scenario::Failed});
        app::CallGate gate({20ms, 20s});
        MainWindowDriver driver;
        driver.window().keepAliveBy(gate);
        driver.logIn(agent);
        announceErrors(driver, agent);
        agent.inject("getTarnClientInfo", simulator::Delay{300ms});
        bool clicked = false;
        const InTheWait user([&] {
            if (!std::exchange(clicked, true))
                emit driver.tray().messageClicked();
            QVERIFY(!QApplication::activeModalWidget());
        });
        driver.beat();
        QVERIFY(clicked);
        ModalDriver modals;
        modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>,
                      [](QWidget& dialog) { child<QPushButton>(dialog, "buttonClose").click(); });
        QCoreApplication::processEvents();
        QVERIFY(modals.done());
    }

    void aClickOnNewsOfAnEarlierSessionShowsNothing() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        announceErrors(driver, agent);
        driver.window().OnDisconnect();
        driver.logIn(agent);
        ModalDriver modals; // any dialog fails the test
        emit driver.tray().messageClicked();
        QCoreApplication::processEvents();
        QVERIFY(modals.done());
        QVERIFY(!driver.window().isVisible());
        QCOMPARE(methodsOf(agent), std::vector<std::string>());
    }

    void inTheActiveWindowTheRowAndTheFieldShowIt() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        QVERIFY(driver.window().isActiveWindow());
        agent.withWorld([](World& world) { runOnce(world, hessiancln::ActivityType::Backup, 3); });
        driver.beat();
        driver.beat();
        waitForEnd(agent);
        driver.beat();
        QCOMPARE(driver.tray().warnings.size(), 0);
        QCOMPARE(child<QToolButton>(driver.window(), "healthField").text(),
                 QStringLiteral("4 of 5 sets need attention"));
        const auto& log = *child<QTableView>(driver.window(), "tableActivityLog").model();
        const auto newest = log.index(0, 0);
        QCOMPARE(newest.siblingAtColumn(2).data().toString(), QStringLiteral("3"));
        QCOMPARE(newest.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::red));
    }

    void theLogIsExportedAndCopied() {
        GuiAgent agent({.scenario = Scenario::Failed});
        agent.withWorld([](World& world) { world.sets().front()->info.name = "=1+2"; });
        MainWindowDriver driver;
        driver.logIn(agent);
        agent.withWorld([](World& world) { runOnce(world, hessiancln::ActivityType::Backup, 3); });
        driver.beat();
        waitForEnd(agent);
        driver.beat();
        auto& window = driver.window();
        child<QTabWidget>(window, "tabWidget").setCurrentIndex(1);
        child<QLineEdit>(window, "editSearch").setText(QStringLiteral("errors"));
        const int shown = driver.rows("tableActivityLog");
        QCOMPARE(shown, 3);

        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("rows.csv"));
        ModalDriver modals;
        modals.expect(QStringLiteral("file"), isDialog<QFileDialog>, [&](QWidget& dialog) {
            child<QLineEdit>(dialog, "fileNameEdit").setText(path);
            static_cast<QDialog&>(dialog).accept();
        });
        child<QPushButton>(window, "buttonExport").click();
        QVERIFY(modals.done());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.startsWith("\xEF\xBB\xBF"
                                 "Type,Description,Errors,"));
        QCOMPARE(bytes.count("\r\n"), shown + 1);
        QVERIFY2(bytes.contains("\r\nBackup,'=1+2,3,0,"), bytes.constData());
        static const QRegularExpression isoTime(
            QStringLiteral(",\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d(Z|[+-]\\d\\d:\\d\\d),"));
        QVERIFY2(isoTime.match(QString::fromUtf8(bytes)).hasMatch(), bytes.constData());

        auto& table = child<QTableView>(window, "tableActivityLog");
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        table.selectAll();
        table.setFocus();
        QGuiApplication::clipboard()->setText(QString());
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
        const QMimeData& copied = *QGuiApplication::clipboard()->mimeData();
        QCOMPARE(copied.text().count(QLatin1Char('\n')), shown - 1);
        QVERIFY(copied.text().contains(QStringLiteral("Backup\t'=1+2\t3\t")));
        QVERIFY(copied.html().contains(QStringLiteral("<td>'=1+2</td>")));
    }

    void theEndOfARestoreStandsInTheStatusBar() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        driver.window().hide();
        agent.withWorld([](World& world) { runOnce(world, hessiancln::ActivityType::Restore, 0); });
        driver.beat();
        driver.beat();
        waitForEnd(agent);
        driver.beat();
        QCOMPARE(driver.status(), QStringLiteral("Restore of 'Documents' ended with no errors"));
        QCOMPARE(driver.tray().warnings.size(), 0);
        QCOMPARE(driver.tray().balloons.last().second, driver.status());
    }

    void aClickOnThatLineShowsItsEvents() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        auto& bar = *driver.window().statusBar();
        auto& button = child<QToolButton>(driver.window(), "buttonStatusEvents");
        // Without events to show, a click on the text does nothing.
        QVERIFY(!button.isVisible());
        QTest::mouseClick(&bar, Qt::LeftButton, {}, {5, bar.height() / 2});

        std::int32_t id = 0;
        agent.withWorld([&](World& world) {
            runOnce(world, hessiancln::ActivityType::Restore, 2);
            id = world.running().front().activity_id;
        });
        driver.beat();
        driver.beat();
        waitForEnd(agent);
        driver.beat();
        QCOMPARE(driver.status(), QStringLiteral("Restore of 'Documents' ended with 2 errors"));
        QVERIFY(button.isVisible());
        ModalDriver modals;
        const auto expectEvents = [&] {
            modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [&](QWidget& dialog) {
                QVERIFY(child<QCheckBox>(dialog, "checkActivityID").isChecked());
                QCOMPARE(child<QSpinBox>(dialog, "spinActivityID").value(), id);
                child<QPushButton>(dialog, "buttonClose").click();
            });
        };
        expectEvents();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, {5, bar.height() / 2});
        QVERIFY(modals.done());
        expectEvents();
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        QVERIFY(modals.done());
        // Another text replaces it.
        driver.window().OnDisconnect();
        QVERIFY(!button.isVisible());
    }

    void eventsAreSearchedByTheSetOfTheirActivity() {
        GuiAgent agent({.scenario = Scenario::Failed});
        MainWindowDriver driver;
        driver.logIn(agent);
        ModalDriver modals;
        modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [&](QWidget& dialog) {
            const auto& events = *child<QTableView>(dialog, "tableEvents").model();
            const int all = events.rowCount();
            auto& line = child<QLineEdit>(dialog, "editSearch");
            line.setText(QStringLiteral("set:\"ended with errors\""));
            QVERIFY(events.rowCount() > 0 && events.rowCount() < all);
            std::set<int> activities;
            for (int row = 0; row < events.rowCount(); ++row)
                activities.insert(static_cast<EventLogViewer&>(dialog).model().at(row).activity_id);
            QCOMPARE(activities.size(), std::size_t{1});
            line.setText(QStringLiteral("set:nobody"));
            QCOMPARE(events.rowCount(), 0);
            const auto& note = child<QLabel>(dialog, "emptyNote");
            QTRY_VERIFY(note.isVisible());
            QCOMPARE(note.text(), QStringLiteral("No rows match the search."));
            child<QPushButton>(dialog, "buttonClose").click();
        });
        driver.window().ShowEventLog();
        QVERIFY(modals.done());
    }

    void allOfItWorksByKeyboard() {
        GuiAgent agent({.scenario = Scenario::Generations});
        MainWindowDriver driver;
        driver.logIn(agent);
        auto& window = driver.window();
        QTest::keyClick(&window, Qt::Key_H, Qt::ControlModifier);
        auto* health = window.findChild<BackupHealthWindow*>();
        QVERIFY(health && health->isVisible());
        QTest::keyClick(health, Qt::Key_Escape);
        QVERIFY(!health->isVisible());

        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        auto* find = window.findChild<FindFileWindow*>();
        QVERIFY(find && QTest::qWaitForWindowActive(find));
        QCOMPARE(find->focusWidget()->objectName(), QStringLiteral("editName"));
        QTest::keyClicks(find->focusWidget(), QStringLiteral("diary"));
        QTest::keyClick(find->focusWidget(), Qt::Key_Return);
        QTRY_VERIFY(!find->isSearching());
        auto& table = child<QTableView>(*find, "tableFound");
        QCOMPARE(table.model()->rowCount(), 1);
        table.setFocus();
        QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
        QVERIFY(table.hasFocus());
        ModalDriver modals;
        modals.expect(QStringLiteral("generations"), isDialog<SelectGenerationDlg>,
                      [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QTest::keyClick(&table, Qt::Key_Return);
        QVERIFY(modals.done());
        QVERIFY(!find->isSearching());
        QTest::keyClick(find, Qt::Key_Escape);
        QVERIFY(!find->isVisible());
    }

    void theProgressSaysWhenNothingMoves() {
        GuiAgent agent({.scenario = Scenario::Stalled});
        MainWindowDriver driver;
        driver.logIn(agent);
        driver.beat();
        auto& table = child<QTableView>(driver.window(), "tableCurrentActivities");
        const QString tip = table.model()->index(0, 3).data(Qt::ToolTipRole).toString();
        QVERIFY(tip.startsWith(QStringLiteral("<html><h3>Backup</h3>")));
        // Any other cell has the usual tool tip.
        QVERIFY(table.model()
                    ->index(0, 0)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .endsWith(QStringLiteral("</html>")));
    }

    void aFoundFileIsRestoredTicked() {
        GuiAgent agent({.scenario = Scenario::Generations});
        MainWindowDriver driver;
        driver.logIn(agent);
        FindFileWindow& find = findDiary(driver);
        QVERIFY(find.isVisible());

        ModalDriver modals;
        modals.expect(QStringLiteral("restore"), isDialog<QWizard>, [](QWidget& dialog) {
            auto& wizard = static_cast<QWizard&>(dialog);
            const auto& tree = child<QTreeView>(dialog, "treeSelection");
            QCOMPARE(tree.currentIndex().data().toString(), QStringLiteral("ann"));
            QVERIFY(wizard.currentPage()->isComplete());
            wizard.next();
            auto& box = child<QGroupBox>(*wizard.currentPage(), "RestoreSummaryBox");
            QVERIFY(box.isVisible());
            auto& label = child<QLabel>(box, "labelSummary");
            const QString summary = label.text();
            QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name),
                     summary);
            QVERIFY2(summary.contains(QStringLiteral("What: 1 file")), qPrintable(summary));
            QVERIFY2(summary.contains(QStringLiteral("Size: 105.15 KB")), qPrintable(summary));
            QVERIFY(summary.contains(QStringLiteral("the original location")));
            child<QComboBox>(*wizard.currentPage(), "cmbRestoreReason").setCurrentIndex(1);
            wizard.button(QWizard::FinishButton)->click();
        });
        child<QPushButton>(find, "buttonRestore").click();
        QVERIFY(modals.done());
        QVERIFY2(driver.status().endsWith(
                     QStringLiteral("Restore started for 'Two years of generations'")),
                 qPrintable(driver.status()));
    }

    void aFoundFileThatCannotBeRestoredSaysWhy_data() {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("text");
        QTest::newRow("not in sync")
            << QStringLiteral("sync")
            << QStringLiteral("The backup set isn't in sync. Synchronize it, then try again.");
        QTest::newRow("busy") << QStringLiteral("activity")
                              << QStringLiteral("An activity is running on the backup set.");
        QTest::newRow("no set") << QStringLiteral("set")
                                << QStringLiteral("The backup set no longer exists.");
        QTest::newRow("no file") << QStringLiteral("file")
                                 << QStringLiteral("The file is no longer stored.");
    }

    void aFoundFileThatCannotBeRestoredSaysWhy() {
        QFETCH(const QString, change);
        QFETCH(const QString, text);
        GuiAgent agent({.scenario = Scenario::Generations});
        MainWindowDriver driver;
        driver.logIn(agent);
        FindFileWindow& find = findDiary(driver);

        agent.withWorld([&change](World& world) {
            const auto set = world.sets().front();
            if (change == QLatin1String("sync"))
                set->info.in_sync = false;
            else if (change == QLatin1String("activity"))
                world.start(world.backupOf(set, "anna"));
            else if (change == QLatin1String("set")) {
                world.removeSet(set->info.id);
                world.addSet(simulator::BackupSetState());
            } else
                set->stored->addFolder("C:\\Users\\ann").children.clear();
        });
        driver.beat();
        agent.clearCallLog();
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Error"), text);
        child<QPushButton>(find, "buttonRestore").click();
        QVERIFY(modals.done());
        const auto methods = methodsOf(agent);
        QVERIFY(std::count(methods.begin(), methods.end(), "start") == 0);
    }

    void aFailedReadIsNotAMissingFile() {
        GuiAgent agent({.scenario = Scenario::Generations});
        MainWindowDriver driver;
        driver.logIn(agent);
        FindFileWindow& find = findDiary(driver);
        // The second folder on the way to the file.
        agent.inject("getSubItems", simulator::Fault{"Out of order."}, simulator::Times::Once, 1);
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("Out of order."));
        child<QPushButton>(find, "buttonRestore").click();
        QVERIFY(modals.done());
        QCOMPARE(agent.waitingInjections(), std::size_t(0));
    }

    void aRestoreAfterTheSessionNamesTheReason() {
        GuiAgent agent({.scenario = Scenario::Generations});
        MainWindowDriver driver;
        driver.logIn(agent);
        driver.trigger("actionFind_File");
        auto* find = driver.window().findChild<FindFileWindow*>();
        driver.trigger("actionLogout");
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("No API connection exists"));
        emit find->restoreRequested(1,
                                    {{QStringLiteral("C:"), QStringLiteral("Diary.odt")}, {}, {}});
        QVERIFY(modals.done());
    }
};

QTEST_MAIN(MainWindowInsightTest)
#include "main_window_insight_test.moc"
