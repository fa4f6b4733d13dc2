// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <atomic>
#include <utility>

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "app/call_gate.h"
#include "app/login_check.h"
#include "app/start_up.h"
#include "platform/posix/spnego_operations.h"
#include "session/connection.h"
#include "session/integrated_logon.h"
#include "session/text.h"
#include "tests/support/child_process.h"
#include "tests/support/clock_offset.h"
#include "tests/support/forwarding_security_operations.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_translation.h"
#include "tests/support/gui_wait.h"
#include "tests/support/kerberos_realm.h"
#include "tests/support/security_operations_override.h"

using support::child;
using support::clickDisconnect;
using support::ClockOffset;
using support::GuiAgent;
using support::InTheWait;
using support::MainWindowDriver;
using support::methodsOf;
using support::ModalDriver;
using support::PaintCount;
using support::quickTimes;
using support::waitingPanel;
using support::waitingText;
using namespace std::chrono_literals;

namespace {

const char* const check = "chkSSPILogin";

QString currentUser() {
    return session::fromWire(session::currentWindowsUser());
}

simulator::Options accepting(const std::string& keyTable) {
    simulator::Options options;
    options.guest = false;
    options.acceptLogon = keyTable;
    return options;
}

void press(QWidget& dialog, const char* button) {
    QTest::mouseClick(&child<QPushButton>(dialog, button), Qt::LeftButton);
}

/// How often this login method of the agent was called.
int count(const simulator::Simulator& agent, const std::string& method) {
    int found = 0;
    for (const auto& call : agent.callLog())
        found += call.method == method;
    return found;
}

/// The system's own operations. A logon that was given up may still be using them.
class CountedOperations : public support::ForwardingSecurityOperations {
public:
    CountedOperations()
        : ForwardingSecurityOperations(platform::spnegoOperations()) {}

    platform::SecurityStatus acquireCredentials(platform::SecurityHandle& credentials) override {
        const auto status = ForwardingSecurityOperations::acquireCredentials(credentials);
        held_ += credentials.held();
        return status;
    }
    void release(platform::SecurityHandle& credentials,
                 platform::SecurityHandle& context) override {
        const bool held = credentials.held();
        ForwardingSecurityOperations::release(credentials, context);
        held_ -= held;
    }

    /// Returns whether no logon uses them any more.
    bool waitForRelease() const {
        return QTest::qWaitFor([this] { return held_ == 0; }, 60'000);
    }

private:
    std::atomic<int> held_ = 0;
};

} // namespace

/// Logging in with a Kerberos ticket, using the real windows.
class KerberosLoginTest : public QObject {
    Q_OBJECT
private slots:
    void init() { realm_ = std::make_unique<support::KerberosRealm>(); }
    void cleanup() {
        support::resetSession();
        realm_->stopKdc();
        QVERIFY(operations_.waitForRelease());
        realm_.reset();
    }

    void fillsTheWindowAtTheStartWithoutAQuestion() {
        realm_->getTicket();
        const GuiAgent agent(accepting(realm_->keyTable()));
        MainWindowDriver driver;
        ModalDriver modals; // any dialog fails the test
        app::logInAtStart(driver.window());
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
        expectTheSessionOf(driver, currentUser());
        QVERIFY(!driver.cards().isEmpty());
        QCOMPARE(count(agent, "sspi_login"), 1);
        QCOMPARE(count(agent, "login"), 0);
        QCOMPARE(count(agent, "getAvailableDomains"), 0);
    }

    void fillsTheWindowOfTheRealProgram() {
        realm_->getTicket();
        const GuiAgent agent(accepting(realm_->keyTable()));
        const QTemporaryDir elsewhere;
        qputenv("XDG_RUNTIME_DIR", elsewhere.path().toLocal8Bit());
        qputenv("TARN_TEST_AGENT_PORT", QByteArray::number(agent.port()));
        qputenv("LD_PRELOAD", TARN_PORT_REDIRECT);
        const support::ChildProcess client(TARN_PROGRAM, {});
        qunsetenv("LD_PRELOAD");
        QVERIFY(agent.waitForCall("backup_sets_info", 1, 20s));
        QCOMPARE(count(agent, "sspi_login"), 1);
        // Calls of a password login and of its dialog.
        QCOMPARE(count(agent, "login"), 0);
        QCOMPARE(count(agent, "getAvailableDomains"), 0);
        QCOMPARE(agent.violations(), std::vector<std::string>{});
    }

    void asksAtTheStartWithoutATicket() {
        const GuiAgent agent(accepting(realm_->keyTable()));
        MainWindowDriver driver;
        ModalDriver modals;
        modals.expect(QStringLiteral("the login dialog"), support::isDialog<LoginCheck>,
                      [&](QWidget& dialog) {
                          QVERIFY(child<QCheckBox>(dialog, check).isHidden());
                          QVERIFY(!child<QCheckBox>(dialog, check).isChecked());
                          QVERIFY(child<QGroupBox>(dialog, "groupLoginInfo").isEnabled());
                          QCOMPARE(driver.status(),
                                   QStringLiteral("A user name is needed to log in."));
                          press(dialog, "buttonQuit");
                      });
        app::logInAtStart(driver.window());
        QVERIFY(modals.done());
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(count(agent, "sspi_login"), 0);
    }

    void aHiddenWindowWaitsForTheAgent() {
        realm_->getTicket();
        MainWindowDriver driver;
        ModalDriver modals;
        app::startInTray(driver.window());
        app::logInAtStart(driver.window(), nullptr, 50ms);
        QVERIFY(!session::connectedToAgent());
        const GuiAgent agent(accepting(realm_->keyTable()));
        QTRY_VERIFY(session::connectedToAgent());
        QVERIFY(modals.done());
        QVERIFY(!driver.window().isVisible());
        QCOMPARE(count(agent, "getTarnClientType"), 1);
        expectTheSessionOf(driver, currentUser());
    }

    void aHiddenWindowComesOutWhenTheAgentStaysAway() {
        realm_->getTicket();
        MainWindowDriver driver;
        ModalDriver modals;
        bool asked = false;
        modals.expect(QStringLiteral("the login dialog"), support::isDialog<LoginCheck>,
                      [&](QWidget& dialog) {
                          asked = true;
                          QVERIFY(driver.window().isVisible());
                          press(dialog, "buttonQuit");
                      });
        app::startInTray(driver.window());
        app::logInAtStart(driver.window(), nullptr, 5ms);
        QVERIFY(!driver.window().isVisible());
        QTRY_VERIFY(asked);
        QVERIFY(modals.done());
    }

    void aLoginByTheUserEndsTheWaitForTheAgent() {
        realm_->getTicket();
        MainWindowDriver driver;
        ModalDriver modals;
        modals.expect(QStringLiteral("the login dialog"), support::isDialog<LoginCheck>,
                      [](QWidget& dialog) {
                          // The next attempt is due in the first round of this loop.
                          QTest::qWait(100);
                          press(dialog, "buttonQuit");
                      });
        app::startInTray(driver.window());
        app::logInAtStart(driver.window(), nullptr, 1ms);
        driver.window().showMainWindow();
        driver.trigger("actionLogin");
        QVERIFY(modals.done());
        const GuiAgent agent(accepting(realm_->keyTable()));
        QTest::qWait(200);
        QCOMPARE(count(agent, "getTarnClientType"), 0);
    }

    void asksAtTheStartWhenTheKdcIsAway() {
        realm_->getTicket();
        realm_->stopKdc();
        const GuiAgent agent(accepting(realm_->keyTable()));
        MainWindowDriver driver;
        ModalDriver modals;
        modals.expect(QStringLiteral("the login dialog"), support::isDialog<LoginCheck>,
                      [&](QWidget& dialog) {
                          QVERIFY(!child<QCheckBox>(dialog, check).isHidden());
                          // A logon that failed on this machine shows nothing else.
                          expectTheSessionOf(driver, currentUser());
                          press(dialog, "buttonQuit");
                      });
        app::logInAtStart(driver.window());
        QVERIFY(modals.done());
        QVERIFY(!session::connectedToAgent());
        QVERIFY(!driver.isEnabled("actionLogout"));
        QCOMPARE(count(agent, "sspi_login"), 0);
    }

    void asksAtTheStartWhenTheAgentGivesNoToken() {
        realm_->getTicket();
        simulator::Options options;
        options.integratedLogon = [](const std::string&) { return simulator::LogonStep{}; };
        GuiAgent agent(options);
        // So that a client that begins again each time comes to an end.
        agent.inject("sspi_login", simulator::Fault{"That was the tenth token."},
                     simulator::Times::Once, 9);
        MainWindowDriver driver;
        ModalDriver modals;
        modals.expect(QStringLiteral("the login dialog"), support::isDialog<LoginCheck>,
                      [](QWidget& dialog) { press(dialog, "buttonQuit"); });
        app::logInAtStart(driver.window());
        QVERIFY(modals.done());
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(count(agent, "sspi_login"), 1);
        agent.clearInjections();
    }

    void saysWhyTheAgentRefusesAtTheStart() {
        realm_->getTicket();
        const GuiAgent agent(accepting(realm_->wrongKeyTable()));
        MainWindowDriver driver;
        ModalDriver modals;
        modals.expect(QStringLiteral("the login dialog"), support::isDialog<LoginCheck>,
                      [&](QWidget& dialog) {
                          QCOMPARE(driver.status(), wrongKey());
                          press(dialog, "buttonQuit");
                      });
        app::logInAtStart(driver.window());
        QVERIFY(modals.done());
    }

    void theDialogLogsOnWhileTheBoxIsChecked() {
        realm_->getTicket();
        GuiAgent agent(accepting(realm_->keyTable()));
        MainWindowDriver driver;
        ModalDriver modals;
        modals.expect(QStringLiteral("the login dialog"), support::isDialog<LoginCheck>,
                      [](QWidget& dialog) {
                          QVERIFY(!child<QCheckBox>(dialog, check).isHidden());
                          QVERIFY(child<QCheckBox>(dialog, check).isChecked());
                          QVERIFY(!child<QGroupBox>(dialog, "groupLoginInfo").isEnabled());
                          press(dialog, "buttonLogin");
                      });
        driver.window().OnConnect();
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
        expectTheSessionOf(driver, currentUser());
        QCOMPARE(session::fromWire(session::currentUser()), currentUser());
        QCOMPARE(count(agent, "sspi_login"), 1);
    }

    void theDialogTakesAPasswordWhileTheBoxIsNotChecked() {
        realm_->getTicket();
        GuiAgent agent(accepting(realm_->keyTable()));
        MainWindowDriver driver;
        ModalDriver modals;
        modals.expect(
            QStringLiteral("the login dialog"), support::isDialog<LoginCheck>, [](QWidget& dialog) {
                child<QCheckBox>(dialog, check).click();
                QVERIFY(child<QGroupBox>(dialog, "groupLoginInfo").isEnabled());
                child<QLineEdit>(dialog, "lineEditUserName").setText(QStringLiteral("demo"));
                child<QLineEdit>(dialog, "lineEditPassword").setText(QStringLiteral("demo"));
                press(dialog, "buttonLogin");
            });
        driver.window().OnConnect();
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
        expectTheSessionOf(driver, QStringLiteral("demo"));
        QCOMPARE(count(agent, "sspi_login"), 0);
        QCOMPARE(count(agent, "login"), 1);
    }

    void checkingTheBoxAgainForgetsTheAddress() {
        realm_->getTicket();
        GuiAgent agent(accepting(realm_->keyTable()));
        LoginCheck dialog;
        auto& box = child<QCheckBox>(dialog, check);
        box.click();
        child<QLineEdit>(dialog, "lineEditUserName").setText(QStringLiteral("anna:10.0.0.7"));
        QCOMPARE(dialog.host(), QStringLiteral("10.0.0.7"));
        box.click();
        QCOMPARE(dialog.host(), QStringLiteral("127.0.0.1"));
        press(dialog, "buttonLogin");
        QVERIFY(session::connectedToAgent());
        QCOMPARE(count(agent, "sspi_login"), 1);
    }

    void theDialogSaysWhyTheAgentRefuses() {
        realm_->getTicket();
        const GuiAgent agent(accepting(realm_->wrongKeyTable()));
        expectRefusal(wrongKey());
    }

    void theDialogSaysThatTheClockIsWrong() {
        realm_->getTicket();
        realm_->getServiceTicket();
        const GuiAgent agent(accepting(realm_->keyTable()));
        const ClockOffset wrong(1h);
        expectRefusal(QStringLiteral("Unspecified GSS failure.  Minor code may provide more "
                                     "information: Clock skew too great"));
    }

    void theDialogShowsAFaultOfTheAgent() {
        realm_->getTicket();
        GuiAgent agent(accepting(realm_->keyTable()));
        agent.inject("sspi_login", simulator::Fault{"The account is locked."});
        expectRefusal(QStringLiteral("The account is locked."));
        QCOMPARE(count(agent, "sspi_login"), 1);
    }

    void aSilentKdcLeavesTheWindowAlive_data() {
        QTest::addColumn<bool>("withTicket");
        QTest::newRow("with a ticket") << true;
        QTest::newRow("with client keys") << false;
    }

    void aSilentKdcLeavesTheWindowAlive() {
        QFETCH(bool, withTicket);
        if (withTicket)
            realm_->getTicket();
        else
            realm_->writeClientKeys();
        realm_->silenceKdc();
        const GuiAgent agent(accepting(realm_->keyTable()));
        app::CallGate gate(quickTimes);
        MainWindowDriver driver;
        driver.window().keepAliveBy(gate);
        PaintCount paints(driver.window());
        bool seen = false;
        const InTheWait user([&] {
            // On a busy machine, the agent may keep the program waiting first.
            if (waitingText() != QStringLiteral("The logon service hasn't answered for N s."))
                return;
            if (!std::exchange(seen, true))
                paints.count = 0;
            driver.window().update();
            if (paints.count >= 3)
                clickDisconnect();
        });
        QVERIFY(!driver.window().doLogin(true));
        QVERIFY(seen);
        const QString left =
            QStringLiteral("Disconnected, as the logon service hadn't answered for ");
        QVERIFY2(driver.status().startsWith(left), qPrintable(driver.status()));
        QVERIFY(!session::connectedToAgent());
        QCOMPARE(methodsOf(agent), std::vector<std::string>{"getTarnClientType"});
    }

    void aSilentKdcDoesntKeepTheProgramFromQuitting() {
        realm_->getTicket();
        realm_->silenceKdc();
        const support::Translation german(QStringLiteral("de"));
        const GuiAgent agent(accepting(realm_->keyTable()));
        app::CallGate gate(quickTimes);
        MainWindowDriver driver;
        driver.window().keepAliveBy(gate);
        bool quit = false;
        const InTheWait user([&] {
            // On a busy machine, the agent may keep the program waiting first.
            if (waitingText() != QStringLiteral("Der Anmeldedienst antwortet seit N s nicht."))
                return;
            quit = true;
            driver.trigger("actionQuit");
        });
        QCOMPARE(app::runLoggedIn(driver.window(), gate), 0);
        QVERIFY(quit);
        QCOMPARE(methodsOf(agent), std::vector<std::string>{"getTarnClientType"});
    }

    void theBoxIsThereWhileTheTicketIsValid() {
        const auto isOffered = [] {
            LoginCheck dialog;
            return !child<QCheckBox>(dialog, check).isHidden();
        };
        QVERIFY(!isOffered());
        realm_->getTicket();
        QVERIFY(isOffered());
        {
            const ClockOffset later(11h);
            QVERIFY(!isOffered());
        }
        realm_->destroyTicket();
        QVERIFY(!isOffered());
    }

    void takesTheTicketOfAUserWithLettersBeyondAscii() {
        realm_->addUser("Jörg-Žofie");
        realm_->getTicket("Jörg-Žofie");
        GuiAgent agent(accepting(realm_->keyTable()));
        MainWindowDriver driver;
        ModalDriver modals;
        app::logInAtStart(driver.window());
        QVERIFY(modals.done());
        QVERIFY(session::connectedToAgent());
    }

private:
    static QString wrongKey() {
        return QStringLiteral("Unspecified GSS failure.  Minor code may provide more information: "
                              "Request ticket server OstrandBakSvc/localhost@TARN.TEST kvno 2 "
                              "enctype aes256-cts found in keytab but cannot decrypt ticket");
    }

    static void expectTheSessionOf(MainWindowDriver& driver, const QString& user) {
        QCOMPARE(driver.status(), QStringLiteral("Logged in to '127.0.0.1' as '%1'").arg(user));
        QCOMPARE(driver.window().windowTitle(),
                 QStringLiteral("Ostrand Backup - %1@127.0.0.1").arg(user));
    }

    static void expectRefusal(const QString& text) {
        LoginCheck dialog;
        dialog.show();
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Login Failed"), text);
        press(dialog, "buttonLogin");
        QVERIFY(modals.done());
        QVERIFY(dialog.isVisible());
        QVERIFY(child<QCheckBox>(dialog, check).isChecked());
        QVERIFY(!session::connectedToAgent());
    }

    std::unique_ptr<support::KerberosRealm> realm_;
    CountedOperations operations_;
    const support::SecurityOperationsOverride inUse_{&operations_};
};

QTEST_MAIN(KerberosLoginTest)
#include "kerberos_login_test.moc"
