// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAction>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "app/login_check.h"
#include "app/simple_gui_main_window.h"
#include "app/start_up.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "session/integrated_logon.h"
#include "session/text.h"
#include "simulator/world/backup_set_state.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"

using simulator::World;
using support::child;
using support::GuiAgent;
using support::isDialog;
using support::ModalDriver;

namespace {

const QString kPlainTitle = QStringLiteral("Ostrand Backup");
const QString kTerminated = QStringLiteral("Current connection terminated");
const QString kNoConnection = QStringLiteral("No API connection exists");

QString currentUser() {
    return session::fromWire(session::currentWindowsUser());
}

/// The name and computer of each set that the agent shows to a program for files.
QStringList setsOf(GuiAgent& agent) {
    QStringList sets;
    agent.withWorld([&](World& world) {
        for (const auto& set : world.sets())
            if (set->info.data_type == hessiancln::BackupDataType::FileSystem)
                sets << session::fromWire(set->info.name + " on " + set->info.computer);
    });
    return sets;
}

std::vector<std::string> methods(const GuiAgent& agent) {
    std::vector<std::string> names;
    for (const auto& call : agent.callLog())
        names.push_back(call.method);
    return names;
}

void press(QWidget& dialog, const char* button) {
    QTest::mouseClick(&child<QPushButton>(dialog, button), Qt::LeftButton);
}

} // namespace

/// The main window against an agent: login, refresh, faults, logout.
class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        window_ = std::make_unique<SimpleGUIMainWindow>();
        window_->show();
    }
    void cleanup() {
        window_.reset();
        support::resetSession();
    }

    void startsWithoutASession() {
        QCOMPARE(window_->windowTitle(), kPlainTitle);
        QVERIFY(isEnabled("actionLogin"));
        QVERIFY(!isEnabled("actionLogout"));
        QVERIFY(!isEnabled("actionNew_Backup_Set"));
        QVERIFY(!child<QMenu>(*window_, "menu_Backup_Set").isEnabled());
        QVERIFY(child<QWidget>(*window_, "btnItems")
                    .isEnabledTo(&child<QWidget>(*window_, "pageProperties")));
        QVERIFY(!child<QWidget>(*window_, "pageProperties").isEnabled());
    }

    void logsInToTheAgentOfThisMachineAndListsItsSets() {
        GuiAgent agent;
        QVERIFY(window_->doLogin(true));
        QVERIFY(session::connectedToAgent());
        QCOMPARE(status(), QStringLiteral("Logged in to '127.0.0.1' as '%1'").arg(currentUser()));
        QCOMPARE(window_->windowTitle(),
                 QStringLiteral("Ostrand Backup - %1@127.0.0.1").arg(currentUser()));
        QCOMPARE(sets(), setsOf(agent));
        QVERIFY(sets().size() > 3);
        QVERIFY(isEnabled("actionNew_Backup_Set"));
        QVERIFY(!isEnabled("actionLogin"));
        QCOMPARE(methods(agent),
                 (std::vector<std::string>{"getTarnClientType", "login", "getTarnClientInfo",
                                           "getTFAManager", "is2FAEnabled", "Release",
                                           "backup_sets_info"}));
        QCOMPARE(agent.violations(), std::vector<std::string>{});
    }

    void tellsWhyTheFirstLoginFailed() {
        QVERIFY(!window_->doLogin(true));
        QCOMPARE(status(), QStringLiteral("Failed to connect to '127.0.0.1' on port 4411. O/S "
                                          "error 111 (Connection refused)"));
        QCOMPARE(window_->windowTitle(), kPlainTitle);
    }

    void asksTheUserWhenTheFirstLoginFailed() {
        simulator::Options options;
        options.guest = false;
        GuiAgent agent(options);
        ModalDriver modals;
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [](QWidget& dialog) {
            child<QLineEdit>(dialog, "lineEditUserName").setText(QStringLiteral("demo"));
            child<QLineEdit>(dialog, "lineEditPassword").setText(QStringLiteral("demo"));
            press(dialog, "buttonLogin");
        });
        app::logInAtStart(*window_);
        QVERIFY(modals.done());
        QCOMPARE(status(), QStringLiteral("Logged in to '127.0.0.1' as 'demo'"));
        QCOMPARE(window_->windowTitle(), QStringLiteral("Ostrand Backup - demo@127.0.0.1"));
        QCOMPARE(sets(), setsOf(agent));
    }

    void asksNobodyWhenTheFirstLoginWorked() {
        const GuiAgent agent;
        ModalDriver modals;
        app::logInAtStart(*window_);
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
    }

    void cancellingTheLoginLeavesTheWindowAsItWas() {
        ModalDriver modals;
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>,
                      [](QWidget& dialog) { press(dialog, "buttonQuit"); });
        app::logInAtStart(*window_);
        QVERIFY(modals.done());
        QVERIFY(window_->isVisible());
        QVERIFY(status().startsWith(QStringLiteral("Failed to connect")));
        QCOMPARE(window_->windowTitle(), kPlainTitle);
        QVERIFY(isEnabled("actionLogin"));
        QVERIFY(!session::connectedToAgent());
    }

    void escapeClaimsALoginOnADisconnectedWindow() {
        ModalDriver modals;
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [](QWidget& dialog) {
            child<QLineEdit>(dialog, "lineEditUserName")
                .setText(QStringLiteral("anna:far.example:99"));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        app::logInAtStart(*window_);
        QVERIFY(modals.done());
        QCOMPARE(status(), QStringLiteral("Logged in to 'far.example' as 'anna'"));
        QCOMPARE(window_->windowTitle(), QStringLiteral("Ostrand Backup - anna@far.example"));
        for (const char* name :
             {"actionLogout", "actionNew_Backup_Set", "actionBackup_Now", "actionRestore",
              "actionDeleteFromOnline", "actionSynchronize", "actionAdmin"})
            QVERIFY2(!isEnabled(name), name);
        QVERIFY(isEnabled("actionLogin"));
    }

    void theConnectCommandShowsTheDialog() {
        GuiAgent agent;
        ModalDriver modals;
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [](QWidget& dialog) {
            child<QLineEdit>(dialog, "lineEditUserName").setText(QStringLiteral("demo"));
            child<QLineEdit>(dialog, "lineEditPassword").setText(QStringLiteral("wrong"));
            press(dialog, "buttonLogin");
        });
        modals.expectErrorBox(QStringLiteral("Login Failed"),
                              QStringLiteral("Unknown user name or bad password."));
        modals.expect(QStringLiteral("login again"), isDialog<LoginCheck>, [](QWidget& dialog) {
            child<QLineEdit>(dialog, "lineEditPassword").setText(QStringLiteral("demo"));
            press(dialog, "buttonLogin");
        });
        child<QAction>(*window_, "actionLogin").trigger();
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
        QCOMPARE(sets(), setsOf(agent));
    }

    void aHeartbeatShowsWhatChanged() {
        GuiAgent agent;
        window_->doLogin(true);
        agent.withWorld([](World& world) {
            world.removeSet(world.sets().back()->info.id);
            world.sets().front()->info.name = "Renamed";
            simulator::BackupSetState added;
            added.info.name = "Added";
            added.info.computer = "elsewhere";
            world.addSet(added);
        });
        beat();
        QCOMPARE(sets(), setsOf(agent));
        QCOMPARE(sets().first().left(7), QStringLiteral("Renamed"));
        QCOMPARE(sets().last(), QStringLiteral("Added on elsewhere"));
    }

    void aSetOfADatabaseNeverShows() {
        GuiAgent agent({.scenario = simulator::Scenario::Empty});
        agent.withWorld([](World& world) {
            simulator::BackupSetState database;
            database.info.data_type = hessiancln::BackupDataType::MSSQLServer;
            world.addSet(database);
        });
        window_->doLogin(true);
        QCOMPARE(sets(), QStringList());
        QVERIFY(agent.waitForCall("backup_sets_info"));
    }

    void theSelectionFollowsItsSet() {
        GuiAgent agent;
        window_->doLogin(true);
        view().selectRow(2);
        const QString selected = sets().at(2);
        agent.withWorld([](World& world) { world.removeSet(world.sets().front()->info.id); });
        beat();
        QCOMPARE(view().selectionModel()->selectedRows().size(), 1);
        QCOMPARE(view().selectionModel()->selectedRows().first().row(), 1);
        QCOMPARE(sets().at(1), selected);
    }

    void theSelectedSetDecidesWhatCanBeDone() {
        GuiAgent agent;
        agent.withWorld([](World& world) {
            auto& info = world.sets().front()->info;
            info.in_sync = true;
            info.has_items = true;
        });
        window_->doLogin(true);
        QVERIFY(!isEnabled("actionSynchronize"));
        view().selectRow(0);
        QVERIFY(isEnabled("actionSynchronize"));
        QVERIFY(isEnabled("actionBackup_Now"));
        QVERIFY(isEnabled("actionDeleteFromOnline"));
        agent.withWorld([](World& world) { world.sets().front()->info.in_sync = false; });
        beat();
        QVERIFY(isEnabled("actionSynchronize"));
        QVERIFY(!isEnabled("actionBackup_Now"));
        QVERIFY(!isEnabled("actionDeleteFromOnline"));
    }

    void centralManagementIsReadUnderBothNames_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("English") << QStringLiteral("Centrally Managed Backup Policy");
        QTest::newRow("German") << QStringLiteral("Zentral-verwaltete Backup-Politik");
    }
    void centralManagementIsReadUnderBothNames() {
        QFETCH(QString, name);
        GuiAgent agent;
        const std::string wire = session::toWire(name);
        agent.withWorld([&](World& world) { world.about = {{wire, "Yes"}}; });
        window_->doLogin(true);
        QVERIFY(session::g_isCentrallyManaged);
        QVERIFY(!isEnabled("actionNew_Backup_Set"));
        QVERIFY(!child<QWidget>(*window_, "btnItems").isEnabled());

        agent.withWorld([&](World& world) { world.about = {{wire, "yes"}}; });
        beat();
        QVERIFY(!session::g_isCentrallyManaged);
        QVERIFY(isEnabled("actionNew_Backup_Set"));
    }

    void centralManagementIsReadFromTheFirstSuchRowAndKeptWithoutOne() {
        GuiAgent agent;
        agent.withWorld([](World& world) {
            world.about = {{"Zentral-verwaltete Backup-Politik", "Yes"},
                           {"Centrally Managed Backup Policy", "No"}};
        });
        window_->doLogin(true);
        QVERIFY(session::g_isCentrallyManaged);
        agent.withWorld([](World& world) { world.about = {{"Version", "1"}}; });
        beat();
        QVERIFY(session::g_isCentrallyManaged);
    }

    void twoFactorSettingsStayEnabledAfterADisconnect() {
        GuiAgent agent;
        agent.withWorld([](World& world) { world.twoFactor = true; });
        window_->doLogin(true);
        QVERIFY(isEnabled("actionTFASettings"));
        child<QAction>(*window_, "actionLogout").trigger();
        QVERIFY(isEnabled("actionTFASettings"));
        QVERIFY(!child<QMenu>(*window_, "menu_Configuration").isEnabled());
    }

    void disconnectingLogsOutAndEmptiesTheWindow() {
        const GuiAgent agent;
        window_->doLogin(true);
        view().selectRow(0);
        child<QAction>(*window_, "actionLogout").trigger();
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(window_->windowTitle(), kPlainTitle);
        QCOMPARE(status(), kTerminated);
        QCOMPARE(sets(), QStringList());
        QVERIFY(view().selectionModel()->selectedRows().isEmpty());
        QVERIFY(isEnabled("actionLogin"));
        QVERIFY(!isEnabled("actionSynchronize"));
        QCOMPARE(agent.callLog().at(agent.callLog().size() - 2).method, std::string("logout"));
        QCOMPARE(agent.liveObjects(), std::vector<std::string>{});
        QCOMPARE(agent.violations(), std::vector<std::string>{});
    }

    void anAgentThatGoesEndsTheSession() {
        GuiAgent agent;
        window_->doLogin(true);
        agent.stop();
        QElapsedTimer time;
        time.start();
        beat();
        QVERIFY2(time.elapsed() < 2000, "a dead agent must not hold the window up");
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(status(), kNoConnection);
        QCOMPARE(window_->windowTitle(), kPlainTitle);
        QCOMPARE(sets(), QStringList());
        QVERIFY(isEnabled("actionLogin"));
    }

    void aFailureOfTheAgentsInformationEndsTheSession_data() {
        QTest::addColumn<QString>("method");
        for (const char* method : {"getTarnClientInfo", "getTFAManager", "is2FAEnabled"})
            QTest::newRow(method) << QString::fromLatin1(method);
    }
    void aFailureOfTheAgentsInformationEndsTheSession() {
        QFETCH(QString, method);
        GuiAgent agent;
        window_->doLogin(true);
        agent.inject(session::toWire(method), simulator::Fault{"Out of order."});
        beat();
        QCOMPARE(agent.waitingInjections(), std::size_t(0));
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(status(), kNoConnection);
        QCOMPARE(window_->windowTitle(), kPlainTitle);
        QCOMPARE(sets(), QStringList());
        QCOMPARE(agent.liveObjects(), std::vector<std::string>{});
    }

    void anAgentWithoutTwoFactorManagerEndsTheSession() {
        GuiAgent agent;
        window_->doLogin(true);
        agent.inject("getTFAManager", simulator::NullResult{});
        beat();
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(status(), kNoConnection);
    }

    void aFailureOfTheListAloneIsToldAndForgiven() {
        GuiAgent agent;
        window_->doLogin(true);
        const QStringList before = sets();
        agent.inject("backup_sets_info", simulator::Fault{"The catalogue is locked."});
        agent.withWorld([](World& world) { world.sets().front()->info.name = "Renamed"; });
        beat();
        QVERIFY(session::connectedToAgent());
        QCOMPARE(status(), QStringLiteral("The catalogue is locked."));
        QCOMPARE(sets(), before);
        beat();
        QCOMPARE(sets(), setsOf(agent));
    }

    void aMalformedRecordInTheListIsToldAndForgiven() {
        GuiAgent agent;
        window_->doLogin(true);
        agent.inject("backup_sets_info", simulator::UnknownKey{});
        beat();
        QVERIFY(session::connectedToAgent());
        QCOMPARE(status(), QStringLiteral("Unknown map field type"));
    }

    void aHeartbeatWithoutASessionAsksNobody() {
        const GuiAgent agent;
        beat();
        QCOMPARE(agent.callLog().size(), std::size_t(0));
        QCOMPARE(sets(), QStringList());
    }

    void aHeartbeatIsDeliveredUnderAnOpenDialog() {
        GuiAgent agent;
        window_->doLogin(true);
        ModalDriver modals;
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [&](QWidget& dialog) {
            agent.withWorld([](World& world) { world.sets().front()->info.name = "Renamed"; });
            QCoreApplication::postEvent(window_.get(), new QEvent(heartbeat()));
            QTRY_COMPARE(sets(), setsOf(agent));
            press(dialog, "buttonQuit");
        });
        window_->OnConnect();
        QVERIFY(modals.done());
    }

    void twoHundredHeartbeatsLeaveNoObjectBehind() {
        GuiAgent agent;
        window_->doLogin(true);
        view().selectRow(0);
        for (int i = 0; i < 200; ++i)
            beat();
        QCOMPARE(agent.liveObjects().size(), std::size_t(1));
        window_->OnDisconnect();
        QCOMPARE(agent.liveObjects(), std::vector<std::string>{});
        QCOMPARE(agent.violations(), std::vector<std::string>{});
    }

    void comesBackFromBeingMinimized() {
        window_->showMinimized();
        QVERIFY(window_->isMinimized());
        window_->showMainWindow();
        QVERIFY(!window_->isMinimized());
        QVERIFY(window_->isVisible());
    }

    void staysMaximizedWhenItIsRaised() {
        window_->showMaximized();
        window_->showMainWindow();
        QVERIFY(window_->isMaximized());
    }

    void closingTheWindowEndsTheEventLoop() {
        QTimer::singleShot(0, window_.get(), &QWidget::close);
        QTimer::singleShot(5000, window_.get(), [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    void quitEndsTheEventLoop() {
        QTimer::singleShot(0, &child<QAction>(*window_, "actionQuit"), &QAction::trigger);
        QTimer::singleShot(5000, window_.get(), [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    void beatsEveryFiveSecondsByItself() {
        GuiAgent agent;
        QElapsedTimer sinceStart;
        sinceStart.start();
        window_->doLogin(true);
        agent.clearCallLog();
        QTRY_COMPARE_WITH_TIMEOUT(calls(agent, "backup_sets_info"), 1, 8000);
        QElapsedTimer sinceFirst;
        sinceFirst.start();
        QVERIFY2(sinceStart.elapsed() >= 3000,
                 "the first heartbeat comes 4 seconds after the start");
        QTRY_COMPARE_WITH_TIMEOUT(calls(agent, "backup_sets_info"), 2, 9000);
        QVERIFY2(sinceFirst.elapsed() >= 4000, "the next one comes 5 seconds later");
    }

    void endsItsThreadAtOnce() {
        QElapsedTimer time;
        time.start();
        window_.reset();
        QVERIFY(time.elapsed() < 1000);
    }

private:
    QEvent::Type heartbeat() const {
        return static_cast<QEvent::Type>(window_->heartbeatEventType());
    }
    void beat() {
        QEvent event(heartbeat());
        QCoreApplication::sendEvent(window_.get(), &event);
    }

    static int calls(const GuiAgent& agent, const char* method) {
        int count = 0;
        for (const std::string& name : methods(agent))
            count += name == method;
        return count;
    }

    QTableView& view() { return child<QTableView>(*window_, "backupSetsView"); }
    QStringList sets() {
        QStringList rows;
        const QAbstractItemModel& model = *view().model();
        for (int row = 0; row < model.rowCount(); ++row)
            rows << model.index(row, 0).data().toString() + QStringLiteral(" on ") +
                        model.index(row, 1).data().toString();
        return rows;
    }
    bool isEnabled(const char* action) { return child<QAction>(*window_, action).isEnabled(); }
    QString status() { return window_->statusBar()->currentMessage(); }

    std::unique_ptr<SimpleGUIMainWindow> window_;
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
