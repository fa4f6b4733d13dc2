// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QUrl>

#include "app/about_dlg.h"
#include "app/activity_log_model.h"
#include "app/activity_progress_item_delegate.h"
#include "app/backup_set_view_item.h"
#include "app/event_log_viewer.h"
#include "app/running_activities_model.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "session/text.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

using simulator::World;
using support::child;
using support::GuiAgent;
using support::isDialog;
using support::MainWindowDriver;
using support::methodsOf;
using support::ModalDriver;
using Calls = std::vector<std::string>;

namespace {

const QString faultText = QStringLiteral("Out of order.");

/// Records the cursors set on a widget during the lifetime of this object.
class GivenCursors : public QObject {
public:
    explicit GivenCursors(QWidget& widget)
        : widget_(widget) {
        widget.installEventFilter(this);
    }
    QList<Qt::CursorShape> shapes;

private:
    bool eventFilter(QObject*, QEvent* event) override {
        const Qt::CursorShape shape = widget_.cursor().shape();
        // Qt may report the same change twice.
        if (event->type() == QEvent::CursorChange && (shapes.isEmpty() || shapes.last() != shape))
            shapes << shape;
        return false;
    }
    QWidget& widget_;
};

std::string number(std::int32_t value) {
    return std::to_string(value);
}

/// A guide next to the program. If the build hasn't made one, this object creates and removes it.
class GuideBesideProgram {
public:
    GuideBesideProgram() {
        made_ = !QFile::exists(path());
        QFile file(path());
        if (made_ && folder_.mkpath(QStringLiteral(".")) && !file.open(QIODevice::WriteOnly))
            qFatal("no guide beside the program");
    }
    GuideBesideProgram(const GuideBesideProgram&) = delete;
    GuideBesideProgram& operator=(const GuideBesideProgram&) = delete;
    ~GuideBesideProgram() {
        if (made_)
            folder_.removeRecursively();
    }

    QString path() const { return folder_.filePath(QStringLiteral("user-guide.pdf")); }

private:
    QDir folder_{QCoreApplication::applicationDirPath() + QStringLiteral("/doc")};
    bool made_ = false;
};

} // namespace

/// The window's tables, and its commands on activities, against an agent.
class MainWindowActivitiesTest : public QObject {
    Q_OBJECT
public slots:
    void open(const QUrl& url) { opened_ << url.toString(); }

private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        agent_ = std::make_unique<GuiAgent>();
        driver_ = std::make_unique<MainWindowDriver>();
        driver_->logIn(*agent_);
        opened_.clear();
    }
    void cleanup() {
        QCOMPARE(agent_->violations(), Calls{});
        driver_.reset();
        QCOMPARE(agent_->liveObjects(), Calls{});
        agent_.reset();
    }

    void hasItsSlotsInOrder();
    void theTablesAreSetUp();
    void theLogAsksForTheTimesShown();
    void theTablesShowWhatTheAgentHas();
    void theLogKeepsItsPlaceAndItsSelection();
    void backsUpTheSelectedSet();
    void aBackupThatFailsIsReported_data();
    void aBackupThatFailsIsReported();
    void synchronizesTheSelectedSet();
    void aSynchronisationThatFailsIsReported();
    void stopsTheSelectedActivities();
    void aStopThatFailsIsReported();
    void stopNeedsASelectedActivity();
    void startsTheDailyAdmin();
    void theEventLogOpensOnYesterdayAndToday();
    void theEventLogOpensOnTheSelectedActivity();
    void aDoubleClickOpensTheEventsOfARow();
    void anActivityWithoutIdOpensTheEventLogOnItsTimes();
    void theAboutBoxOpens();
    void anAboutBoxThatCantAskIsReported();
    void theLogoOpensTheHomePage();
    void helpOpensTheGuide();
    void helpThatCantBeOpenedIsReported();

private:
    SimpleGUIMainWindow& window() { return driver_->window(); }
    QTableView& table(const char* name) { return child<QTableView>(window(), name); }
    /// Selects the set in a row and returns its id.
    std::int32_t select(int row) {
        driver_->sets().selectRow(row);
        agent_->clearCallLog();
        return driver_->card(row).record().id;
    }

    QStringList opened_;
    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<MainWindowDriver> driver_;
};

void MainWindowActivitiesTest::hasItsSlotsInOrder() {
    const QMetaObject& meta = SimpleGUIMainWindow::staticMetaObject;
    QByteArrayList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        if (meta.method(i).access() == QMetaMethod::Public)
            names << meta.method(i).methodSignature();
    const QByteArrayList expected{
        "on_actionLogo_triggered()",
        "on_actionRegister_triggered()",
        "on_actionHelp_triggered()",
        "on_action_About_triggered()",
        "on_action_Recovery_triggered()",
        "on_actionRegistration_Info_triggered()",
        "on_actionLDAP_Account_triggered()",
        "on_actionAdmin_triggered()",
        "on_actionTFASettings_triggered()",
        "on_btnItems_clicked()",
        "on_btnRetention_clicked()",
        "on_btnSchedule_clicked()",
        "OnQuit()",
        "OnConnect()",
        "OnDisconnect()",
        "OnRunningActivitySelectionChanged(QItemSelection,QItemSelection)",
        "OnBackupSetSelectionChanged(QItemSelection,QItemSelection)",
        "OnStopActivity()",
        "ShowEventLog()",
        "RefreshTarnClientInfo()",
        "RefreshActivityLogs()",
        "OnBackupNow()",
        "OnSync()",
        "OnRestore()",
        "OnDelete()",
        "OnNewBackupSet()",
        "backupSetContextMenu(BackupSetViewItem*,QContextMenuEvent*)",
        "activityChangeDetected(QList<hessiancln::running_activity_info>,"
        "QList<hessiancln::running_activity_info>)",
        "showMainWindow()",
        "hideMainWindow()",
        "sysTrayActivated(QSystemTrayIcon::ActivationReason)",
        "sysTrayMessageClicked()"};
    QCOMPARE(names, expected);
}

void MainWindowActivitiesTest::theTablesAreSetUp() {
    const auto widths = [this](const char* name) {
        QList<int> result;
        for (int column = 0; column < table(name).model()->columnCount(); ++column)
            result << table(name).columnWidth(column);
        return result;
    };
    QCOMPARE(widths("tableActivityLog"), (QList<int>{150, 280, 60, 80, 140, 140, 120, 60, 100}));
    QCOMPARE(widths("tableCurrentActivities"), (QList<int>{130, 140, 120, 320, 450}));
    for (const char* name : {"tableActivityLog", "tableCurrentActivities"}) {
        const QHeaderView& header = *table(name).horizontalHeader();
        QVERIFY(table(name).isSortingEnabled());
        QVERIFY(table(name).verticalHeader()->isHidden());
        QCOMPARE(header.sortIndicatorOrder(), Qt::DescendingOrder);
    }
    QCOMPARE(table("tableActivityLog").horizontalHeader()->sortIndicatorSection(), 4);
    auto& running = table("tableCurrentActivities");
    QCOMPARE(running.horizontalHeader()->sortIndicatorSection(), 1);
    QVERIFY(qobject_cast<CActivityProgressItemDelegate*>(running.itemDelegateForColumn(3)));
    // The progress column isn't sortable.
    running.horizontalHeader()->setSortIndicator(3, Qt::AscendingOrder);
    QCOMPARE(running.horizontalHeader()->sortIndicatorSection(), 1);
}

void MainWindowActivitiesTest::theLogAsksForTheTimesShown() {
    const auto at = [](qint64 seconds) { return QDateTime::fromSecsSinceEpoch(seconds); };
    child<QDateTimeEdit>(window(), "dateTimeFrom").setDateTime(at(1'600'000'020));
    child<QDateTimeEdit>(window(), "dateTimeTo").setDateTime(at(1'700'000'040));
    agent_->clearCallLog();
    window().RefreshActivityLogs();
    QCOMPARE(agent_->callTexts(), (Calls{"ClientConnection.activity_log(1600000020, 1700000040)",
                                         "ClientConnection.running_activities()"}));
}

void MainWindowActivitiesTest::theTablesShowWhatTheAgentHas() {
    QCOMPARE(driver_->rows("tableCurrentActivities"), 1);
    const auto& running = *table("tableCurrentActivities").model();
    QCOMPARE(running.index(0, 0).data().toString(), QStringLiteral("Backup"));
    QCOMPARE(running.index(0, 4).data().toString(), QStringLiteral("Pictures and Videos"));
    QVERIFY(driver_->rows("tableActivityLog") > 0);
}

void MainWindowActivitiesTest::theLogKeepsItsPlaceAndItsSelection() {
    child<QTabWidget>(window(), "tabWidget").setCurrentIndex(1);
    auto& log = table("tableActivityLog");
    auto& bar = *log.verticalScrollBar();
    QTRY_VERIFY(bar.maximum() > 30);
    log.selectRow(1);
    bar.setValue(30);
    log.horizontalScrollBar()->setValue(20);
    driver_->beat();
    // The view updates its layout a little later.
    QCoreApplication::processEvents();
    QCOMPARE(bar.value(), 30);
    QCOMPARE(log.horizontalScrollBar()->value(), 20);
    const QModelIndexList selected = log.selectionModel()->selectedRows();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().row(), 1);
}

void MainWindowActivitiesTest::backsUpTheSelectedSet() {
    const std::int32_t id = select(0);
    const GivenCursors cursors(window());
    driver_->trigger("actionBackup_Now");
    QCOMPARE(cursors.shapes, (QList<Qt::CursorShape>{Qt::WaitCursor, Qt::ArrowCursor}));
    Calls calls = agent_->callTexts();
    std::erase_if(calls, [](const std::string& text) {
        return text.ends_with(".Release()") || text.starts_with("ClientConnection.activity_log");
    });
    QCOMPARE(calls.size(), std::size_t(7));
    QCOMPARE(calls.at(0), "ClientConnection.backup_set(" + number(id) + ")");
    QCOMPARE(calls.at(1), std::string("BackupSet.items()"));
    QCOMPARE(calls.at(2), std::string("BackupSet.createDefaultBackupParameters()"));
    QCOMPARE(calls.at(3), std::string("BackupStartParameters.setDoRetentionAfter(true)"));
    QCOMPARE(calls.at(4), std::string("BackupStartParameters.setPreScanSource(true)"));
    QVERIFY2(calls.at(5).starts_with("BackupSet.start_backup([BackupSetItem("),
             calls.at(5).c_str());
    QCOMPARE(calls.at(6), std::string("ClientConnection.running_activities()"));
    QVERIFY(
        driver_->status().endsWith(QStringLiteral(": On-demand backup started for 'Documents'")));
    QVERIFY(driver_->status().size() > 50);
    QCOMPARE(driver_->rows("tableCurrentActivities"), 2);
    QVERIFY(!driver_->isEnabled("actionBackup_Now"));
    QCOMPARE(agent_->liveObjects().size(), std::size_t(1));
}

void MainWindowActivitiesTest::aBackupThatFailsIsReported_data() {
    QTest::addColumn<QString>("method");
    for (const char* method : {"backup_set", "items", "createDefaultBackupParameters",
                               "setDoRetentionAfter", "setPreScanSource", "start_backup"})
        QTest::newRow(method) << QString::fromLatin1(method);
}

void MainWindowActivitiesTest::aBackupThatFailsIsReported() {
    QFETCH(QString, method);
    select(0);
    agent_->inject(session::toWire(method), simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), faultText);
    driver_->trigger("actionBackup_Now");
    QVERIFY(modals.done());
    QCOMPARE(methodsOf(*agent_).back(), session::toWire(method));
    QVERIFY(session::connectedToAgent());
    QVERIFY(driver_->status().startsWith(QStringLiteral("Logged in")));
    QCOMPARE(window().cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(agent_->liveObjects().size(), std::size_t(1));
}

void MainWindowActivitiesTest::synchronizesTheSelectedSet() {
    const std::int32_t id = select(0);
    driver_->trigger("actionSynchronize");
    const Calls calls = agent_->callTexts();
    QCOMPARE(calls.at(0), "ClientConnection.backup_set(" + number(id) + ")");
    QCOMPARE(calls.at(1), std::string("BackupSet.start_sync(false)"));
    QVERIFY(driver_->status().endsWith(
        QStringLiteral(": On-demand Synchronization started for 'Documents'")));
    QCOMPARE(driver_->rows("tableCurrentActivities"), 2);
}

void MainWindowActivitiesTest::aSynchronisationThatFailsIsReported() {
    select(0);
    agent_->inject("start_sync", simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), faultText);
    driver_->trigger("actionSynchronize");
    QVERIFY(modals.done());
    QVERIFY(session::connectedToAgent());
}

void MainWindowActivitiesTest::stopsTheSelectedActivities() {
    select(0);
    driver_->trigger("actionSynchronize");
    auto& running = table("tableCurrentActivities");
    // The lower one is selected first, but they are stopped from top to bottom.
    running.selectRow(1);
    running.selectionModel()->select(running.model()->index(0, 0),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    std::vector<std::int32_t> ids;
    for (int row = 0; row < 2; ++row)
        ids.push_back(static_cast<RunningActivitiesModel*>(running.model())->at(row).activity_id);
    agent_->clearCallLog();
    QTest::mouseClick(&child<QPushButton>(window(), "buttonStop"), Qt::LeftButton);
    Calls calls;
    for (const std::int32_t id : ids)
        for (const std::string& text :
             {"ClientConnection.activity(" + number(id) + ")",
              std::string("GenericActivity.Stop()"), std::string("GenericActivity.getID()"),
              std::string("GenericActivity.Release()")})
            calls.push_back(text);
    QCOMPARE(agent_->callTexts(), calls);
    QCOMPARE(driver_->status(), QStringLiteral("Sent a stop request to activity with id %1")
                                    .arg(QLocale::system().toString(ids.back())));
    driver_->beat();
    QCOMPARE(driver_->rows("tableCurrentActivities"), 0);
}

void MainWindowActivitiesTest::aStopThatFailsIsReported() {
    table("tableCurrentActivities").selectRow(0);
    agent_->inject("activity", simulator::NullResult{});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"),
                          QStringLiteral("The agent did not return the requested object."));
    window().OnStopActivity();
    QVERIFY(modals.done());
    agent_->inject("Stop", simulator::Fault{"Out of order."});
    modals.expectErrorBox(QStringLiteral("Error"), faultText);
    window().OnStopActivity();
    QVERIFY(modals.done());
    QVERIFY(session::connectedToAgent());
    QCOMPARE(driver_->rows("tableCurrentActivities"), 1);
}

void MainWindowActivitiesTest::stopNeedsASelectedActivity() {
    const auto& button = child<QPushButton>(window(), "buttonStop");
    QVERIFY(!button.isEnabled());
    table("tableCurrentActivities").selectRow(0);
    QVERIFY(button.isEnabled());
    driver_->beat();
    QVERIFY(button.isEnabled());
    table("tableCurrentActivities").clearSelection();
    QVERIFY(!button.isEnabled());
}

void MainWindowActivitiesTest::startsTheDailyAdmin() {
    window().startDailyAdmin();
    QCOMPARE(methodsOf(*agent_), (Calls{"getConfigurationManager", "start_daily_admin",
                                        "activity_log", "running_activities"}));
    QVERIFY(driver_->status().endsWith(QStringLiteral(": Daily admin started.")));
    agent_->inject("start_daily_admin", simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), faultText);
    window().startDailyAdmin();
    QVERIFY(modals.done());
}

void MainWindowActivitiesTest::theEventLogOpensOnYesterdayAndToday() {
    const QDate today = QDate::currentDate();
    const QDateTime from(today.addDays(-1), QTime(0, 0));
    const QDateTime to(today, QTime(23, 59, 59, 999));
    ModalDriver modals;
    modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [](QWidget& viewer) {
        QVERIFY(!child<QCheckBox>(viewer, "checkActivityID").isChecked());
        child<QPushButton>(viewer, "buttonClose").click();
    });
    child<QPushButton>(window(), "buttonEventLog").click();
    QVERIFY(modals.done());
    QCOMPARE(agent_->callTexts(),
             Calls{"ClientConnection.event_log(" + std::to_string(from.toSecsSinceEpoch()) + ", " +
                   std::to_string(to.toSecsSinceEpoch()) + ", 0)"});
}

void MainWindowActivitiesTest::theEventLogOpensOnTheSelectedActivity() {
    auto& log = table("tableActivityLog");
    log.selectRow(1);
    const auto activity = static_cast<ActivityLogModel*>(log.model())->at(1);
    ModalDriver modals;
    modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [&](QWidget& viewer) {
        QVERIFY(child<QCheckBox>(viewer, "checkActivityID").isChecked());
        QCOMPARE(child<QSpinBox>(viewer, "spinActivityID").value(), activity.id);
        QCOMPARE(child<QDateTimeEdit>(viewer, "timeFrom").dateTime().toSecsSinceEpoch(),
                 qint64{activity.start_time});
        // The log may change while the dialog is open.
        driver_->beat();
        driver_->window().OnDisconnect();
        child<QPushButton>(viewer, "buttonClose").click();
    });
    window().ShowEventLog();
    QVERIFY(modals.done());
    QCOMPARE(agent_->callTexts().front(),
             "ClientConnection.event_log(0, 0, " + number(activity.id) + ")");
}

void MainWindowActivitiesTest::aDoubleClickOpensTheEventsOfARow() {
    auto& log = table("tableActivityLog");
    const auto activity = static_cast<ActivityLogModel*>(log.model())->at(1);
    ModalDriver modals;
    modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [&](QWidget& viewer) {
        QCOMPARE(child<QSpinBox>(viewer, "spinActivityID").value(), activity.id);
        child<QPushButton>(viewer, "buttonClose").click();
    });
    const QPoint place = log.visualRect(log.model()->index(1, 1)).center();
    QTest::mouseClick(log.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(log.viewport(), Qt::LeftButton, {}, place);
    QVERIFY(modals.done());
    QCOMPARE(agent_->callTexts().front(),
             "ClientConnection.event_log(0, 0, " + number(activity.id) + ")");
}

void MainWindowActivitiesTest::anActivityWithoutIdOpensTheEventLogOnItsTimes() {
    agent_->inject("activity_log", simulator::UnknownEnumValue{"id", 0});
    driver_->beat();
    auto& log = table("tableActivityLog");
    log.selectRow(0);
    const auto activity = static_cast<ActivityLogModel*>(log.model())->at(0);
    QCOMPARE(activity.id, 0);
    agent_->clearCallLog();
    ModalDriver modals;
    modals.expect(QStringLiteral("events"), isDialog<EventLogViewer>, [](QWidget& viewer) {
        QVERIFY(!child<QCheckBox>(viewer, "checkActivityID").isChecked());
        child<QPushButton>(viewer, "buttonClose").click();
    });
    window().ShowEventLog();
    QVERIFY(modals.done());
    QCOMPARE(agent_->callTexts(),
             Calls{"ClientConnection.event_log(" + number(activity.start_time) + ", " +
                   number(activity.end_time) + ", 0)"});
}

void MainWindowActivitiesTest::theAboutBoxOpens() {
    ModalDriver modals;
    modals.expect(QStringLiteral("about"), isDialog<AboutDlg>, [](QWidget& about) {
        QCOMPARE(about.windowTitle(), QStringLiteral("Tarn-Mobile User"));
        child<QPushButton>(about, "buttonClose").click();
    });
    driver_->trigger("action_About");
    QVERIFY(modals.done());
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
}

void MainWindowActivitiesTest::anAboutBoxThatCantAskIsReported() {
    agent_->inject("getTarnClientInfo", simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Configuration Error"), faultText);
    driver_->trigger("action_About");
    QVERIFY(modals.done());
    QVERIFY(session::connectedToAgent());
}

void MainWindowActivitiesTest::theLogoOpensTheHomePage() {
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
    driver_->trigger("actionLogo");
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    QCOMPARE(opened_, QStringList{QStringLiteral("https://tarn-mobile.example/")});
}

void MainWindowActivitiesTest::helpOpensTheGuide() {
    const GuideBesideProgram guide;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
    driver_->trigger("actionHelp");
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(opened_, QStringList{QUrl::fromLocalFile(guide.path()).toString()});
}

void MainWindowActivitiesTest::helpThatCantBeOpenedIsReported() {
    const GuideBesideProgram guide;
    // Qt can't open a URL whose handler has no such slot.
    for (const char* scheme : {"file", "https"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "noSlot");
    const auto remove = qScopeGuard([] {
        for (const char* scheme : {"file", "https"})
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    });
    driver_->trigger("actionHelp");
    QCOMPARE(driver_->status(), QStringLiteral("Failed to open the help file %1.")
                                    .arg(QUrl::fromLocalFile(guide.path()).toString()));
    driver_->trigger("actionLogo");
    QVERIFY(driver_->status().startsWith(QStringLiteral("Failed to open the help file")));
}

QTEST_MAIN(MainWindowActivitiesTest)
#include "main_window_activities_test.moc"
