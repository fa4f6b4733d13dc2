// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAction>
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
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/system/failures.h"

using simulator::World;
using support::cardsOf;
using support::child;
using support::GuiAgent;
using support::isDialog;
using support::MainWindowDriver;
using support::methodsOf;
using support::ModalDriver;

namespace {

const QString plainTitle = QStringLiteral("Ostrand Backup");
const QString terminatedText = QStringLiteral("Current connection terminated");
const QString noConnection = QStringLiteral("No API connection exists");

const QStringList everSwitched =
    QStringLiteral("menu_Backup_Set menu_Configuration actionAdmin "
                   "actionLogout buttonEventLog dateTimeFrom dateTimeTo "
                   "actionLogin actionNew_Backup_Set actionBackup_Now "
                   "actionRestore actionDeleteFromOnline "
                   "actionSynchronize buttonStop pageProperties "
                   "actionTFASettings")
        .split(QLatin1Char(' '));

QString currentUser() {
    return session::fromWire(session::currentWindowsUser());
}

/// Records the message of a status bar each time it is painted.
class PaintedStatus : public QObject {
public:
    explicit PaintedStatus(QStatusBar& bar)
        : bar_(bar) {
        bar.installEventFilter(this);
    }
    QStringList texts;

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            texts << bar_.currentMessage();
        return false;
    }
    QStatusBar& bar_;
};

void press(QWidget& dialog, const char* button) {
    QTest::mouseClick(&child<QPushButton>(dialog, button), Qt::LeftButton);
}

} // namespace

/// The main window against an agent: login, refresh, faults, logout.
class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { driver_ = std::make_unique<MainWindowDriver>(); }
    void cleanup() { driver_.reset(); }

    void startsWithoutASession() {
        QCOMPARE(window().windowTitle(), plainTitle);
        QVERIFY(isEnabled("actionLogin"));
        QVERIFY(!isEnabled("actionLogout"));
        QVERIFY(!isEnabled("actionNew_Backup_Set"));
        QVERIFY(!child<QMenu>(window(), "menu_Backup_Set").isEnabled());
        QVERIFY(child<QWidget>(window(), "btnItems")
                    .isEnabledTo(&child<QWidget>(window(), "pageProperties")));
        QVERIFY(!child<QWidget>(window(), "pageProperties").isEnabled());
    }

    void logsInToTheAgentOfThisMachineAndListsItsSets() {
        GuiAgent agent;
        QVERIFY(window().doLogin(true));
        QVERIFY(session::connectedToAgent());
        QCOMPARE(status(), QStringLiteral("Logged in to '127.0.0.1' as '%1'").arg(currentUser()));
        QCOMPARE(window().windowTitle(),
                 QStringLiteral("Ostrand Backup - %1@127.0.0.1").arg(currentUser()));
        QCOMPARE(sets(), cardsOf(agent));
        QVERIFY(sets().size() > 3);
        QVERIFY(isEnabled("actionNew_Backup_Set"));
        QVERIFY(!isEnabled("actionLogin"));
        QCOMPARE(methodsOf(agent),
                 (std::vector<std::string>{"getTarnClientType", "login", "getTarnClientInfo",
                                           "getTFAManager", "is2FAEnabled", "activity_log",
                                           "running_activities", "backup_sets_info",
                                           "getTarnClientInfo", "getConfigurationManager",
                                           "getUserInfoConfiguration", "getUserInfo"}));
        QCOMPARE(agent.violations(), std::vector<std::string>{});
    }

    void reportsWhyTheFirstLoginFailed() {
        QVERIFY(!window().doLogin(true));
        QCOMPARE(status(),
                 session::fromWire("Failed to connect to '127.0.0.1' on port 4411. O/S error " +
                                   support::failures::refused().reported()));
        QCOMPARE(window().windowTitle(), plainTitle);
    }

    void reportsTheFirstLoginBeforeThatBlocks() {
        const PaintedStatus painted(*window().statusBar());
        QVERIFY(!window().doLogin(true));
        QVERIFY(!painted.texts.isEmpty());
        QCOMPARE(painted.texts.first(), QStringLiteral("Logging to Tarn-Client..."));
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
        app::logInAtStart(window());
        QVERIFY(modals.done());
        QCOMPARE(status(), QStringLiteral("Logged in to '127.0.0.1' as 'demo'"));
        QCOMPARE(window().windowTitle(), QStringLiteral("Ostrand Backup - demo@127.0.0.1"));
        QCOMPARE(sets(), cardsOf(agent));
    }

    void aListThatCantBeReadOffersNoFirstSet() {
        GuiAgent agent;
        agent.inject("backup_sets_info", simulator::Fault{"Out of order."});
        support::ModalDriver modals;
        window().doLogin(true);
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
        QCOMPARE(sets(), QStringList());
        QCOMPARE(status(), QStringLiteral("Out of order."));
    }

    void theStatusComesBackAfterAMenu() {
        const GuiAgent agent;
        window().doLogin(true);
        const QString before = status();
        QVERIFY(!before.isEmpty());
        auto& menu = child<QMenu>(window(), "menu_Backup_Set");
        menu.popup(window().mapToGlobal({0, 0}));
        menu.setActiveAction(menu.actions().first());
        menu.close();
        QCOMPARE(status(), before);
    }

    void asksNobodyWhenTheFirstLoginWorked() {
        const GuiAgent agent;
        ModalDriver modals;
        app::logInAtStart(window());
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
    }

    void cancellingTheLoginLeavesTheWindowAsItWas() {
        ModalDriver modals;
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>,
                      [](QWidget& dialog) { press(dialog, "buttonQuit"); });
        app::logInAtStart(window());
        QVERIFY(modals.done());
        QVERIFY(window().isVisible());
        QVERIFY(status().startsWith(QStringLiteral("Failed to connect")));
        QCOMPARE(window().windowTitle(), plainTitle);
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
        app::logInAtStart(window());
        QVERIFY(modals.done());
        QCOMPARE(status(), QStringLiteral("Logged in to 'far.example' as 'anna'"));
        QCOMPARE(window().windowTitle(), QStringLiteral("Ostrand Backup - anna@far.example"));
        for (const char* name :
             {"actionLogout", "actionNew_Backup_Set", "actionBackup_Now", "actionRestore",
              "actionDeleteFromOnline", "actionSynchronize", "actionAdmin"})
            QVERIFY2(!isEnabled(name), name);
        QVERIFY(isEnabled("actionLogin"));
    }

    void theConnectCommandShowsTheDialog() {
        GuiAgent agent;
        ModalDriver modals;
        const QIcon branded(QStringLiteral(":/icons/help.png"));
        window().setWindowIcon(branded);
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [&branded](QWidget& dialog) {
            QVERIFY(!branded.isNull());
            QCOMPARE(dialog.windowIcon().pixmap(64).toImage(), branded.pixmap(64).toImage());
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
        child<QAction>(window(), "actionLogin").trigger();
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
        QCOMPARE(sets(), cardsOf(agent));
    }

    void aHeartbeatShowsWhatChanged() {
        GuiAgent agent;
        window().doLogin(true);
        agent.withWorld([](World& world) {
            world.removeSet(world.sets().back()->info.id);
            world.sets().front()->info.name = "Renamed";
            simulator::BackupSetState added;
            added.info.name = "Added";
            added.info.computer = "elsewhere";
            world.addSet(added);
        });
        beat();
        QCOMPARE(sets(), cardsOf(agent));
        QCOMPARE(sets().first().left(7), QStringLiteral("Renamed"));
        QCOMPARE(sets().last(), QStringLiteral("Added\nBackup of: elsewhere"));
    }

    void theSelectedSetDecidesWhatCanBeDone() {
        GuiAgent agent;
        agent.withWorld([](World& world) {
            auto& info = world.sets().front()->info;
            info.in_sync = true;
            info.has_items = true;
        });
        window().doLogin(true);
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

    void theDetailsGoWithTheLastSet() {
        GuiAgent agent;
        window().doLogin(true);
        view().selectRow(0);
        QVERIFY(!driver_->details().at(0).isEmpty());
        agent.withWorld([](World& world) {
            while (!world.sets().empty())
                world.removeSet(world.sets().front()->info.id);
        });
        beat();
        QCOMPARE(sets(), QStringList());
        QCOMPARE(driver_->details().join(QString()), QString());
        QVERIFY(!child<QWidget>(window(), "pageProperties").isEnabled());
        QVERIFY(!isEnabled("actionSynchronize"));
        QVERIFY(session::connectedToAgent());
    }

    void theSessionDecidesWhatIsEnabled() {
        GuiAgent agent;
        QCOMPARE(enabled(), QStringList{QStringLiteral("actionLogin")});
        window().doLogin(true);
        view().selectRow(0);
        child<QTableView>(window(), "tableCurrentActivities").selectRow(0);
        QStringList all = everSwitched;
        all.removeOne(QStringLiteral("actionLogin"));
        all.removeOne(QStringLiteral("actionTFASettings"));
        QCOMPARE(enabled(), all);
        child<QTableView>(window(), "tableCurrentActivities").clearSelection();
        all.removeOne(QStringLiteral("buttonStop"));
        QCOMPARE(enabled(), all);
        window().OnDisconnect();
        QCOMPARE(enabled(), QStringList{QStringLiteral("actionLogin")});
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
        window().doLogin(true);
        QVERIFY(session::g_isCentrallyManaged);
        QVERIFY(!isEnabled("actionNew_Backup_Set"));
        view().selectRow(0);
        QVERIFY(child<QWidget>(window(), "pageProperties").isEnabled());
        for (const char* button : {"btnItems", "btnSchedule", "btnRetention"})
            QVERIFY2(!child<QWidget>(window(), button).isEnabled(), button);

        agent.withWorld([&](World& world) { world.about = {{wire, "yes"}}; });
        beat();
        QVERIFY(!session::g_isCentrallyManaged);
        QVERIFY(isEnabled("actionNew_Backup_Set"));
        for (const char* button : {"btnItems", "btnSchedule", "btnRetention"})
            QVERIFY2(child<QWidget>(window(), button).isEnabled(), button);
    }

    void centralManagementIsReadFromTheFirstSuchRowAndKeptWithoutOne() {
        GuiAgent agent;
        agent.withWorld([](World& world) {
            world.about = {{"Zentral-verwaltete Backup-Politik", "Yes"},
                           {"Centrally Managed Backup Policy", "No"}};
        });
        window().doLogin(true);
        QVERIFY(session::g_isCentrallyManaged);
        agent.withWorld([](World& world) { world.about = {{"Version", "1"}}; });
        beat();
        QVERIFY(session::g_isCentrallyManaged);
    }

    void twoFactorSettingsStayEnabledAfterADisconnect() {
        GuiAgent agent;
        agent.withWorld([](World& world) { world.twoFactor = true; });
        window().doLogin(true);
        QVERIFY(isEnabled("actionTFASettings"));
        child<QAction>(window(), "actionLogout").trigger();
        QVERIFY(isEnabled("actionTFASettings"));
        QVERIFY(!child<QMenu>(window(), "menu_Configuration").isEnabled());
    }

    void disconnectingLogsOutAndEmptiesTheWindow() {
        const GuiAgent agent;
        window().doLogin(true);
        view().selectRow(0);
        child<QAction>(window(), "actionLogout").trigger();
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(window().windowTitle(), plainTitle);
        QCOMPARE(status(), terminatedText);
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
        window().doLogin(true);
        agent.stop();
        beat();
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(status(), noConnection);
        QCOMPARE(window().windowTitle(), plainTitle);
        QCOMPARE(sets(), QStringList());
        QVERIFY(isEnabled("actionLogin"));
    }

    void aHeartbeatWithoutASessionAsksNobody() {
        const GuiAgent agent;
        beat();
        QCOMPARE(agent.callLog().size(), std::size_t(0));
        QCOMPARE(sets(), QStringList());
    }

    void aHeartbeatIsDeliveredUnderAnOpenDialog() {
        GuiAgent agent;
        window().doLogin(true);
        ModalDriver modals;
        modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [&](QWidget& dialog) {
            agent.withWorld([](World& world) { world.sets().front()->info.name = "Renamed"; });
            driver_->postBeat();
            QTRY_COMPARE(sets(), cardsOf(agent));
            press(dialog, "buttonQuit");
        });
        window().OnConnect();
        QVERIFY(modals.done());
    }

    void quitEndsTheEventLoop() {
        QTimer::singleShot(0, &child<QAction>(window(), "actionQuit"), &QAction::trigger);
        QTimer::singleShot(5000, &window(), [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    void beatsByItself() {
        GuiAgent agent;
        SimpleGUIMainWindow window(nullptr, std::make_unique<support::RecordingTray>(false));
        window.doLogin(true);
        agent.clearCallLog();
        QTRY_COMPARE_WITH_TIMEOUT(calls(agent, "backup_sets_info"), 1, 20'000);
        QTRY_COMPARE_WITH_TIMEOUT(calls(agent, "backup_sets_info"), 2, 20'000);
    }

private:
    SimpleGUIMainWindow& window() { return driver_->window(); }
    QTableView& view() { return driver_->sets(); }
    QStringList sets() { return driver_->cards(); }
    bool isEnabled(const char* action) { return driver_->isEnabled(action); }
    QString status() { return driver_->status(); }
    /// The enabled ones among everything that is ever enabled or disabled, except the buttons in
    /// the details.
    QStringList enabled() {
        QStringList names;
        for (const QString& name : everSwitched)
            if (window().findChild<QObject*>(name)->property("enabled").toBool())
                names << name;
        return names;
    }
    void beat() { driver_->beat(); }

    static int calls(const GuiAgent& agent, const char* method) {
        int count = 0;
        for (const std::string& name : methodsOf(agent))
            count += name == method;
        return count;
    }

    std::unique_ptr<MainWindowDriver> driver_;
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
