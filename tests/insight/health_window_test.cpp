// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The health window with a simulated agent: its calls, and what it shows.

#include <chrono>
#include <optional>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QHelpEvent>
#include <QMimeData>
#include <QToolTip>
#include <QtTest>

#include "api/client_connection.h"
#include "insight/backup_health_window.h"
#include "insight/find_file_window.h"
#include "insight/week_picture.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/health_scenarios.h"
#include "simulator/world/world.h"
#include "tests/insight/session_of_windows.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_timers.h"
#include "ui/branding_resources.h"
#include "ui/size_text.h"

namespace {

using namespace std::chrono_literals;
using simulator::Scenario;
using support::child;
using support::letTimersFire;
using namespace insight_windows;

/// The monitor, fed as by the main window.
class Fed {
public:
    Fed()
        : monitor(session::getConnection, [] { return QDateTime::currentSecsSinceEpoch(); }) {
        beat();
    }
    void beat() {
        const auto connection = session::getConnection();
        monitor.takeActivities(connection->activity_log(0, 0), connection->running_activities());
        monitor.takeSets(connection->backup_sets_info());
    }

    insight::HealthMonitor monitor;
};

const insight::HealthRow& rowOf(const insight::HealthMonitor& monitor, std::int32_t id) {
    return *std::find_if(monitor.rows().begin(), monitor.rows().end(),
                         [id](const auto& row) { return row.facts.info.id == id; });
}

std::int32_t idNamed(const insight::HealthMonitor& monitor, std::string_view name) {
    return std::find_if(monitor.rows().begin(), monitor.rows().end(),
                        [name](const auto& row) { return row.facts.info.name == name; })
        ->facts.info.id;
}

std::string spoken(QLabel& label) {
    return QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name).toStdString();
}

BackupHealthWindow::Allowed everything(const insight::HealthRow&) {
    return {true, true};
}

/// The window, shown until all sets have been read.
struct OpenWindow {
    explicit OpenWindow(Scenario scenario)
        : session(scenario) {
        window.show();
        QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    }

    Session session;
    Fed fed;
    BackupHealthWindow window{fed.monitor, everything};
};

/// A window, not shown yet, of an agent that fails one call of this method.
struct FailingWindow {
    explicit FailingWindow(const std::string& method = "getOverview") {
        session.agent.inject(method, simulator::Fault{"Out of order."});
    }

    Session session{Scenario::Overdue};
    Fed fed;
    BackupHealthWindow window{fed.monitor, everything};
    const QLabel& failure = child<QLabel>(window, "labelFailure");
};

} // namespace

class HealthWindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        ui::g_branding.load();
        qRegisterMetaType<std::int32_t>("std::int32_t");
    }

    void setsStandWorstFirst();
    void schedulesAreReadOnceAndAgainWhenASetChanges();
    void readingCanBeCancelled();
    void anotherSessionStartsWithNothing();
    void aChangedScheduleNoLongerJudges();
    void aSetThatCouldntBeReadIsTriedAgain();
    void aSetReadInTheSecondAttemptFailedNoLonger();
    void aSetThatHasGoneFailedNoLonger();
    void aSetThatHasGoneIsNotRead();
    void cancelledReadingIsNotResumed_data();
    void cancelledReadingIsNotResumed();
    void setsWithOneIdAreReadOnce();
    void aLongBackupIsPlannedForAnIntervalAtMost();
    void theLogsPeriodChangesNoHealth();
    void aHiddenWindowIsFilledWhenItIsShown();
    void theSelectionFollowsItsSet();
    void namesAreNoMarkup();
    void labelsAreSpokenAsShown();
    void theButtonsNameTheSet();
    void theButtonsNameTheSetToSynchronize();
    void theButtonsNameTheEvents();
    void anAttemptWithoutAnEndIsRunning();
    void failedBackupsAreExplained();
    void nextRunsShowOverlaps();
    void rowsAreCopied();
    void aFilterHoldsRecordsBack();
};

void HealthWindowTest::setsStandWorstFirst() {
    Session session(Scenario::Overdue);
    Fed fed;
    // Until the schedules are read, it isn't known whether a backup is overdue.
    QCOMPARE(fed.monitor.count(), (insight::HealthCount{5, 0, 4}));
    BackupHealthWindow window(fed.monitor, everything);
    support::compareWindowIcon(window);
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QCOMPARE(fed.monitor.count(), (insight::HealthCount{5, 2, 0}));
    const auto& table = child<QTableView>(window, "tableSets");
    QStringList worst = column(table, BackupHealthModel::name).mid(0, 2);
    worst.sort();
    QCOMPARE(worst, QStringList({name(simulator::health::missed), name(simulator::health::old)}));
    QCOMPARE(column(table, BackupHealthModel::state).mid(0, 3),
             QStringList(
                 {QStringLiteral("Overdue"), QStringLiteral("Overdue"), QStringLiteral("Safe")}));
    QCOMPARE(child<QLabel>(window, "labelSummary").text(),
             QStringLiteral("2 of 5 sets need attention"));
    const int row = column(table, BackupHealthModel::name).indexOf(name(simulator::health::old));
    QVERIFY(cell(table, row, BackupHealthModel::lastGood).endsWith(QStringLiteral("(3 days ago)")));
    QVERIFY(
        cell(table, row, BackupHealthModel::lastAttempt).endsWith(QStringLiteral(": no errors")));
    QVERIFY(!cell(table, row, BackupHealthModel::nextRun).isEmpty());
    hessiancln::backup_set_info info;
    session.agent.withWorld([&info](simulator::World& world) {
        info = world.setNamed(std::string(simulator::health::old))->info;
    });
    QCOMPARE(cell(table, row, BackupHealthModel::storedSize),
             ui::sizeToString(static_cast<double>(info.tarnsys_compressed_size)));
    QCOMPARE(cell(table, row, BackupHealthModel::generations), QStringLiteral("1 to 30"));
    QCOMPARE(cell(table, row, BackupHealthModel::owner), QString::fromStdString(info.owner_name));
    const int byHand =
        column(table, BackupHealthModel::name).indexOf(name(simulator::health::unscheduled));
    QCOMPARE(cell(table, byHand, BackupHealthModel::nextRun), QStringLiteral("Not scheduled"));
    QVERIFY(child<QLabel>(window, "labelHelp").text().contains(QStringLiteral("scheduled time")));
}

void HealthWindowTest::schedulesAreReadOnceAndAgainWhenASetChanges() {
    Session session(Scenario::Overdue);
    Fed fed;
    session.agent.clearCallLog();
    BackupHealthWindow window(fed.monitor, everything);
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    auto methods = session.methods();
    // Three sets share a schedule.
    QCOMPARE(std::count(methods.begin(), methods.end(), "getSchedule"), 2);
    QCOMPARE(std::count(methods.begin(), methods.end(), "getAdvancedConfigNumber"), 1);
    QCOMPARE(std::count(methods.begin(), methods.end(), "getLastActivityOfType"), 5);
    QCOMPARE(std::count(methods.begin(), methods.end(), "getOverview"), 5);
    fed.beat();
    session.agent.clearCallLog();
    QCoreApplication::processEvents();
    QVERIFY(!fed.monitor.isReading());
    QCOMPARE(session.methods(), std::vector<std::string>());

    session.agent.withWorld([](simulator::World& world) {
        world.setNamed(std::string(simulator::health::old))->info.last_backup += 60;
    });
    fed.beat();
    session.agent.clearCallLog();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    methods = session.methods();
    QCOMPARE(methods.front(), std::string("backup_set"));
    QCOMPARE(std::count(methods.begin(), methods.end(), "backup_set"), 1);
    QCOMPARE(std::count(methods.begin(), methods.end(), "getSchedule"), 1);
}

void HealthWindowTest::readingCanBeCancelled() {
    Session session(Scenario::Large);
    insight::HealthMonitor monitor(session::getConnection,
                                   [] { return QDateTime::currentSecsSinceEpoch(); });
    monitor.takeSets(session::getConnection()->backup_sets_info());
    BackupHealthWindow window(monitor, everything);
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(monitor.readSets() > 0, patience);
    QVERIFY(child<QProgressBar>(window, "progressReading").isVisible());
    QTest::mouseClick(&child<QPushButton>(window, "buttonCancel"), Qt::LeftButton);
    QVERIFY(!monitor.isReading());
    QVERIFY(!child<QProgressBar>(window, "progressReading").isVisible());
    session.agent.clearCallLog();
    letTimersFire();
    QCOMPARE(session.methods(), std::vector<std::string>());
}

void HealthWindowTest::anotherSessionStartsWithNothing() {
    std::optional<Session> session(std::in_place, Scenario::Overdue);
    Fed fed;
    fed.monitor.watch();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    fed.monitor.unwatch();
    const std::int32_t id = idNamed(fed.monitor, simulator::health::old);
    QVERIFY(rowOf(fed.monitor, id).plan);
    QVERIFY(fed.monitor.healthClock().missedHours > 0);
    fed.monitor.clear();
    session.reset();
    session.emplace(Scenario::Failed);
    fed.beat();
    // The set of the other agent has the same id.
    QVERIFY(!rowOf(fed.monitor, id).isRead);
    QVERIFY(!rowOf(fed.monitor, id).plan);
    QCOMPARE(fed.monitor.healthClock().missedHours, 0);
}

void HealthWindowTest::aChangedScheduleNoLongerJudges() {
    Session session(Scenario::Overdue);
    Fed fed;
    fed.monitor.watch();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    fed.monitor.unwatch();
    QCOMPARE(fed.monitor.count(), (insight::HealthCount{5, 2, 0}));
    fed.monitor.scheduleChanged(idNamed(fed.monitor, simulator::health::old));
    QCOMPARE(fed.monitor.count(), (insight::HealthCount{5, 1, 1}));
    session.agent.withWorld([](simulator::World& world) {
        world.setNamed(std::string(simulator::health::missed))->info.schedule_id += 100;
    });
    fed.beat();
    QCOMPARE(fed.monitor.count(), (insight::HealthCount{5, 0, 2}));
}

void HealthWindowTest::aSetThatCouldntBeReadIsTriedAgain() {
    FailingWindow failing;
    Fed& fed = failing.fed;
    const QLabel& failure = failing.failure;
    const auto unread = [&fed] {
        return std::ranges::count(fed.monitor.rows(), false, &insight::HealthRow::isRead);
    };
    failing.window.show();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QCOMPARE(failure.text(), QStringLiteral("Out of order."));
    QCOMPARE(unread(), 1);
    fed.beat();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QCOMPARE(unread(), 0);
    QCOMPARE(failure.text(), QString());
    failing.session.agent.clearCallLog();
    fed.beat();
    QVERIFY(!fed.monitor.isReading());
}

/// A pass may take longer than the time between two heartbeats.
void HealthWindowTest::aSetReadInTheSecondAttemptFailedNoLonger() {
    FailingWindow failing;
    Fed& fed = failing.fed;
    const QLabel& failure = failing.failure;
    bool wasReading = false;
    connect(
        &fed.monitor, &insight::HealthMonitor::failed, this,
        [&] {
            fed.beat();
            wasReading = fed.monitor.readSets() > 0 && fed.monitor.isReading();
        },
        Qt::QueuedConnection);
    // Longer than a slice, so that the next set is read in another one.
    failing.session.agent.inject("backup_set", simulator::Delay{40ms},
                                 simulator::Times::UntilCleared);
    failing.window.show();
    QTRY_COMPARE(failure.text(), QStringLiteral("Out of order."));
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QVERIFY(wasReading);
    QVERIFY(std::ranges::all_of(fed.monitor.rows(), &insight::HealthRow::isRead));
    QCOMPARE(failure.text(), QString());
}

void HealthWindowTest::aSetThatHasGoneFailedNoLonger() {
    FailingWindow failing;
    Fed& fed = failing.fed;
    const QLabel& failure = failing.failure;
    failing.window.show();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QCOMPARE(failure.text(), QStringLiteral("Out of order."));
    const auto unread = std::ranges::find(fed.monitor.rows(), false, &insight::HealthRow::isRead);
    failing.session.agent.withWorld(
        [id = unread->facts.info.id](simulator::World& world) { world.removeSet(id); });
    fed.beat();
    QVERIFY(!fed.monitor.isReading());
    QCOMPARE(failure.text(), QString());
}

void HealthWindowTest::cancelledReadingIsNotResumed_data() {
    QTest::addColumn<QString>("method");
    QTest::newRow("at a set") << QStringLiteral("getOverview");
    QTest::newRow("before all sets") << QStringLiteral("getAdvancedConfigNumber");
}

void HealthWindowTest::cancelledReadingIsNotResumed() {
    QFETCH(QString, method);
    FailingWindow failing(method.toStdString());
    Fed& fed = failing.fed;
    const QLabel& failure = failing.failure;
    failing.window.show();
    QTRY_COMPARE(failure.text(), QStringLiteral("Out of order."));
    fed.beat(); // which reads again
    QVERIFY(fed.monitor.isReading());
    failing.session.agent.inject(method.toStdString(), simulator::Fault{"Out of order."});
    QSignalSpy failures(&fed.monitor, &insight::HealthMonitor::failed);
    QTRY_COMPARE_WITH_TIMEOUT(failures.size(), 1, patience);
    fed.monitor.cancelReading();
    fed.beat();
    QVERIFY(!fed.monitor.isReading());
    // Nothing else has been read.
    QCOMPARE(failure.text(), QStringLiteral("Out of order."));
}

void HealthWindowTest::setsWithOneIdAreReadOnce() {
    const Session session(Scenario::Overdue);
    Fed fed;
    auto sets = session::getConnection()->backup_sets_info();
    sets[1].id = sets[0].id;
    fed.monitor.watch();
    fed.monitor.takeSets(sets);
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    fed.monitor.takeSets(sets);
    QVERIFY(!fed.monitor.isReading());
}

void HealthWindowTest::aSetThatHasGoneIsNotRead() {
    Session session(Scenario::Overdue);
    Fed fed;
    const QSignalSpy failures(&fed.monitor, &insight::HealthMonitor::failed);
    fed.monitor.watch();
    // Nothing is read before the event loop runs.
    const std::int32_t id = idNamed(fed.monitor, simulator::health::old);
    session.agent.withWorld([id](simulator::World& world) { world.removeSet(id); });
    fed.beat();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QCOMPARE(failures.size(), 0);
    const auto methods = session.methods();
    QCOMPARE(std::count(methods.begin(), methods.end(), "getOverview"), 4);
}

void HealthWindowTest::aLongBackupIsPlannedForAnIntervalAtMost() {
    Session session(Scenario::Overlapping);
    // Since 1970, as from a broken row.
    hessiancln::activity_log_info row;
    row.type = hessiancln::ActivityType::Backup;
    row.start_time = 1;
    row.end_time = static_cast<std::int32_t>(QDateTime::currentSecsSinceEpoch());
    Fed fed;
    row.set_id = idNamed(fed.monitor, "Pictures and Videos");
    fed.monitor.takeActivities({row}, {});
    fed.beat();
    fed.monitor.watch();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    int runs = 0;
    for (const insight::PlannedRun& run : fed.monitor.nextRuns())
        if (run.setId == row.set_id) {
            ++runs;
            // Every evening, on the day on which the clocks change, too.
            QVERIFY(run.end - run.start <= 25 * 3600);
        }
    QCOMPARE(runs, 14);
}

void HealthWindowTest::theLogsPeriodChangesNoHealth() {
    const Session session(Scenario::Failed);
    Fed fed;
    const std::int32_t id = idNamed(fed.monitor, simulator::health::withErrors);
    QCOMPARE(rowOf(fed.monitor, id).health.state, insight::HealthState::Safe);
    hessiancln::activity_log_info backup;
    backup.set_id = id;
    backup.start_time = backup.end_time =
        static_cast<std::int32_t>(QDateTime::currentSecsSinceEpoch());
    backup.errors = 2;
    const auto sets = session::getConnection()->backup_sets_info();
    fed.monitor.takeActivities({backup}, {});
    fed.monitor.takeSets(sets);
    QCOMPARE(rowOf(fed.monitor, id).health.state, insight::HealthState::Failed);
    fed.monitor.takeActivities({}, {});
    fed.monitor.takeSets(sets);
    QCOMPARE(rowOf(fed.monitor, id).health.state, insight::HealthState::Failed);
}

void HealthWindowTest::aHiddenWindowIsFilledWhenItIsShown() {
    const Session session(Scenario::Failed);
    Fed fed;
    BackupHealthWindow window(fed.monitor, everything);
    const auto& table = child<QTableView>(window, "tableSets");
    QCOMPARE(table.model()->rowCount(), 0);
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QCOMPARE(table.model()->rowCount(), 5);
    window.hide();
    fed.monitor.clear();
    QCOMPARE(table.model()->rowCount(), 5);
    window.show();
    QCOMPARE(table.model()->rowCount(), 0);
}

void HealthWindowTest::theSelectionFollowsItsSet() {
    OpenWindow open(Scenario::Failed);
    Session& session = open.session;
    Fed& fed = open.fed;
    BackupHealthWindow& window = open.window;
    const auto& table = child<QTableView>(window, "tableSets");
    QCOMPARE(table.selectionModel()->selectedRows().first().row(), 0);
    const auto worst = fed.monitor.rows().front().facts.info;
    session.agent.withWorld([&](simulator::World& world) {
        auto& info = world.setNamed(worst.name)->info;
        info.last_backup = info.last_successful_backup =
            static_cast<std::int32_t>(QDateTime::currentSecsSinceEpoch());
    });
    fed.beat();
    QVERIFY(fed.monitor.rows().front().facts.info.id != worst.id);
    QSignalSpy backup(&window, &BackupHealthWindow::backupRequested);
    QTest::mouseClick(&child<QPushButton>(window, "buttonBackup"), Qt::LeftButton);
    QCOMPARE(backup.size(), 1);
    QCOMPARE(backup[0][0].value<std::int32_t>(), worst.id);
    // Opened again, the window starts with the worst set.
    window.hide();
    window.show();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.monitor.isReading(), patience);
    QCOMPARE(table.selectionModel()->selectedRows().first().row(), 0);
}

void HealthWindowTest::namesAreNoMarkup() {
    WeekPicture picture;
    picture.resize(700, 400);
    picture.show();
    const std::int64_t now = QDateTime::currentSecsSinceEpoch();
    picture.showRuns({{1, "<b>x</b>", now, now + 6 * 86'400, false}}, now);
    const QPoint middle(350, 200);
    QHelpEvent help(QEvent::ToolTip, middle, picture.mapToGlobal(middle));
    QCoreApplication::sendEvent(&picture, &help);
    QVERIFY2(QToolTip::text().contains(QStringLiteral(">&lt;b&gt;x&lt;/b&gt;\n")),
             qPrintable(QToolTip::text()));

    const Session session(Scenario::Failed);
    Fed fed;
    BackupHealthWindow health(fed.monitor, everything);
    const FindFileWindow find(session::getConnection);
    QCOMPARE(child<QLabel>(health, "labelFailure").textFormat(), Qt::PlainText);
    QCOMPARE(child<QLabel>(health, "labelHelp").textFormat(), Qt::PlainText);
    QCOMPARE(find.findChild<QLabel*>(QStringLiteral("labelProgress"))->textFormat(), Qt::PlainText);
}

void HealthWindowTest::labelsAreSpokenAsShown() {
    OpenWindow open(Scenario::Failed);
    Fed& fed = open.fed;
    BackupHealthWindow& health = open.window;
    QCOMPARE(spoken(child<QLabel>(health, "labelSummary")),
             std::string("3 of 5 sets need attention"));
    QVERIFY(spoken(child<QLabel>(health, "labelHelp")).find("Back up now") != std::string::npos);
    emit fed.monitor.failed(QStringLiteral("No connection"));
    QCOMPARE(spoken(child<QLabel>(health, "labelFailure")), std::string("No connection"));
    FindFileWindow find(session::getConnection);
    child<QLabel>(find, "labelProgress").setText(QStringLiteral("1 file found"));
    QCOMPARE(spoken(child<QLabel>(find, "labelProgress")), std::string("1 file found"));
}

void HealthWindowTest::theButtonsNameTheSet() {
    Session session(Scenario::Failed);
    Fed fed;
    BackupHealthWindow window(fed.monitor, [](const insight::HealthRow& row) {
        return BackupHealthWindow::Allowed{row.facts.info.has_items, !row.facts.info.in_sync};
    });
    window.show();
    QSignalSpy backup(&window, &BackupHealthWindow::backupRequested);
    QSignalSpy sync(&window, &BackupHealthWindow::syncRequested);
    const std::int32_t id = fed.monitor.rows().front().facts.info.id;
    QTest::mouseClick(&child<QPushButton>(window, "buttonBackup"), Qt::LeftButton);
    QCOMPARE(backup.size(), 1);
    QCOMPARE(backup[0][0].value<std::int32_t>(), id);
    QVERIFY(!child<QPushButton>(window, "buttonSync").isEnabled());
    QCOMPARE(sync.size(), 0);
}

void HealthWindowTest::theButtonsNameTheSetToSynchronize() {
    OpenWindow open(Scenario::Failed);
    Fed& fed = open.fed;
    BackupHealthWindow& window = open.window;
    child<QTableView>(window, "tableSets").selectRow(1);
    QSignalSpy sync(&window, &BackupHealthWindow::syncRequested);
    QTest::mouseClick(&child<QPushButton>(window, "buttonSync"), Qt::LeftButton);
    QCOMPARE(sync.size(), 1);
    QCOMPARE(sync[0][0].value<std::int32_t>(), fed.monitor.rows()[1].facts.info.id);
}

void HealthWindowTest::theButtonsNameTheEvents() {
    OpenWindow open(Scenario::Failed);
    Fed& fed = open.fed;
    BackupHealthWindow& window = open.window;
    std::vector<std::int32_t> requested;
    connect(
        &window, &BackupHealthWindow::eventsRequested, this,
        [&](const insight::BackupAttempt& attempt) { requested.push_back(attempt.activityId); });
    auto& table = child<QTableView>(window, "tableSets");
    const auto showEventsOf = [&](std::string_view set) {
        table.selectRow(column(table, BackupHealthModel::name).indexOf(name(set)));
        QTest::mouseClick(&child<QPushButton>(window, "buttonEvents"), Qt::LeftButton);
    };
    showEventsOf(simulator::health::withErrors);
    showEventsOf("Music"); // never backed up
    const auto backup = session::getConnection()
                            ->backup_set(idNamed(fed.monitor, simulator::health::withErrors))
                            ->getLastActivityOfType(hessiancln::ActivityType::Backup);
    QVERIFY(backup.id > 0);
    QCOMPARE(requested, (std::vector<std::int32_t>{backup.id, 0}));
}

void HealthWindowTest::anAttemptWithoutAnEndIsRunning() {
    BackupHealthModel model;
    std::vector<insight::HealthRow> rows(1);
    rows.front().facts.lastAttempt = insight::BackupAttempt{7, 1'700'000'000, 0, 0, 0};
    model.setRecords(rows);
    const auto attempt = model.index(0, BackupHealthModel::lastAttempt);
    QVERIFY(attempt.data().toString().endsWith(QStringLiteral(": running")));
    rows.front().facts.lastAttempt->end = 1'700'000'600;
    model.setRecords(rows);
    QVERIFY(attempt.data().toString().endsWith(QStringLiteral(": no errors")));
}

void HealthWindowTest::failedBackupsAreExplained() {
    OpenWindow open(Scenario::Failed);
    Fed& fed = open.fed;
    BackupHealthWindow& window = open.window;
    auto& table = child<QTableView>(window, "tableSets");
    QCOMPARE(
        column(table, BackupHealthModel::state),
        QStringList({QStringLiteral("Never backed up"), QStringLiteral("Failed"),
                     QStringLiteral("Failed"), QStringLiteral("Safe"), QStringLiteral("Safe")}));
    const int row =
        column(table, BackupHealthModel::name).indexOf(name(simulator::health::withErrors));
    QVERIFY(cell(table, row, BackupHealthModel::lastAttempt)
                .endsWith(QStringLiteral("3 errors, 1 warning")));
    table.selectRow(row);
    QVERIFY(child<QLabel>(window, "labelHelp").text().contains(QStringLiteral("3 errors")));
    // The set remains selected when the list is rebuilt.
    fed.beat();
    QCOMPARE(table.selectionModel()->selectedRows().first().row(), row);
}

void HealthWindowTest::nextRunsShowOverlaps() {
    OpenWindow open(Scenario::Overlapping);
    BackupHealthWindow& window = open.window;
    const auto& runs = child<QTableView>(window, "tableRuns");
    const QStringList sets = column(runs, NextRunsModel::set);
    // Every evening, six times on each workday, and three times on two nights of the week.
    QCOMPARE(sets.count(QStringLiteral("Pictures and Videos")), 14);
    QVERIFY(sets.count(QStringLiteral("Mail archive")) >= 54);
    QVERIFY(sets.count(QStringLiteral("Night shift")) >= 10);
    int overlapping = 0;
    for (int row = 0; row < sets.size(); ++row) {
        const bool overlaps = !cell(runs, row, NextRunsModel::overlap).isEmpty();
        // Backups take ten minutes here, and only these two are closer, on workdays.
        if (sets[row] == QLatin1String("Documents"))
            QVERIFY(overlaps);
        else if (sets[row] != QLatin1String("Pictures and Videos"))
            QVERIFY2(!overlaps, qPrintable(sets[row]));
        overlapping += overlaps;
    }
    QCOMPARE(overlapping, 2 * sets.count(QStringLiteral("Documents")));
    child<QTabWidget>(window, "tabHealth").setCurrentIndex(1);
    auto& picture = child<WeekPicture>(window, "pictureWeek");
    const QImage first = picture.grab().toImage();
    const int inAWeek = QRegularExpression(QStringLiteral("7 days: (\\d+)\\."))
                            .match(picture.accessibleDescription())
                            .captured(1)
                            .toInt();
    // Every evening, and six times on each of five workdays.
    QVERIFY2(inAWeek > 7 + 5 * 6 && inAWeek < sets.size(),
             qPrintable(picture.accessibleDescription()));
    child<QComboBox>(window, "comboWeek").setCurrentIndex(1);
    QVERIFY(picture.grab().toImage() != first);
}

void HealthWindowTest::rowsAreCopied() {
    Session session(Scenario::Failed);
    Fed fed;
    BackupHealthWindow window(fed.monitor, everything);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto& table = child<QTableView>(window, "tableSets");
    table.selectRow(0);
    table.setFocus();
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QGuiApplication::clipboard()->text().contains(QStringLiteral("\tNever backed up\t")));
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

void HealthWindowTest::aFilterHoldsRecordsBack() {
    BackupHealthModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto fill = [&model](std::initializer_list<std::int32_t> ids) {
        std::vector<insight::HealthRow> rows;
        for (const std::int32_t id : ids) {
            rows.emplace_back();
            rows.back().facts.info.id = id;
        }
        model.setRecords(std::move(rows));
    };
    fill({1, 2, 3, 4});
    std::vector<std::uint64_t> versions;
    model.setFilter([&versions](const auto& rows, std::uint64_t version) {
        versions.push_back(version);
        std::vector<std::uint32_t> even;
        for (std::uint32_t i = 0; i < rows.size(); ++i)
            if (rows[i].facts.info.id % 2 == 0)
                even.push_back(i);
        return even;
    });
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.at(1).facts.info.id, 4);
    QCOMPARE(model.recordOf(1), std::size_t{3});
    QCOMPARE(model.rowOf(3), 1);
    QCOMPARE(model.rowOf(0), -1);
    QCOMPARE(model.records().size(), std::size_t{4});
    fill({2, 4, 6, 7, 8});
    QCOMPARE(model.rowCount(), 4);
    fill({1});
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(versions.size(), std::size_t{3});
    QVERIFY(versions[0] != versions[1] && versions[1] != versions[2]);
    model.setFilter({});
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.rowOf(0), 0);
}

QTEST_MAIN(HealthWindowTest)
#include "health_window_test.moc"
