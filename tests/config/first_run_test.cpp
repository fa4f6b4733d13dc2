// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/process_values.h"
#include "tests/config/registration_fixture.h"
#include "tests/support/gui_form_texts.h"

using namespace steps;
using simulator::World;
using support::callsOf;
using support::child;
using support::ModalDriver;

namespace {

/// All calls of a first run.
const Calls firstRunCalls = check + registrationRead + managerAsked + sentFilled() + userInfoSent +
                            Calls{"ClientConfiguration.init_register()"} + managerAsked +
                            Calls{"ClientConfiguration.start_daily_admin()"};
const Calls logoutCalls{"ClientConnection.logout()"};

} // namespace

/// The registration of an agent on its first use, which the login opens.
class FirstRunTest : public QObject, private RegistrationFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { test_.end(); }

    void theFirstRunIsSaved();
    void theFirstRunRegistersAndStartsTheDailyAdmin();
    void aDailyAdminThatFailsIsReported_data();
    void aDailyAdminThatFailsIsReported();
    void cancellingTheFirstRunDisconnects_data();
    void cancellingTheFirstRunDisconnects();
    void aNewAgentAsksAtTheLogin();
    void anAgentWithoutCustomersDoesntAsk();
    void aFaultAtTheFirstRunDisconnects_data();
    void aFaultAtTheFirstRunDisconnects();
    void aFaultAtSavingLeavesItOpen_data();
    void aFaultAtSavingLeavesItOpen();
    void aSecondPressSavesAllAgain();
    void aSessionThatEndsMeanwhileIsReportedAtSaving();

private:
    /// Fills in everything, ticks the registration, and saves. Starting the daily work may then
    /// fail.
    void expectRegistration(bool failing = false) {
        expectDialog([this, failing](QWidget& dialog) {
            fill(dialog);
            press(dialog, "chkRegister");
            expectNews(
                modals(), "Configuration",
                "Tarn-Client Registration Information is saved and registered successfully.");
            if (failing)
                modals().expectErrorBox(q("Error"), q("Out of order."));
            press(dialog, "btnSave");
            QCOMPARE(static_cast<QDialog&>(dialog).result(), 2);
        });
    }
};

void FirstRunTest::theFirstRunIsSaved() {
    expectDialog([this](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Initial Tarn-Client Configuration"));
        QCOMPARE(dialog.parentWidget(), &test_.driver->window());
        support::compareWindowIcon(dialog);
        for (const char* group : {"grpPrivateKey", "grpAccountKey", "grpUserInfo"})
            QVERIFY2(isEnabled(dialog, group), group);
        for (const char* combo : {"cmbCountry", "cmbEmployees", "cmbIndustry"})
            QCOMPARE(child<QComboBox>(dialog, combo).currentIndex(), -1);
        fill(dialog);
        expectSaved();
        press(dialog, "btnSave");
    });
    firstRun();
    compareCalls(check + registrationRead + managerAsked + sentFilled() + userInfoSent);
    QVERIFY(session::connectedToAgent());
    change([](World& world) {
        QCOMPARE(q(world.registration.private_key.c_str()), q("private key"));
        QCOMPARE(q(world.registration.account_key.c_str()), q("account key"));
    });
}

void FirstRunTest::theFirstRunRegistersAndStartsTheDailyAdmin() {
    expectRegistration();
    firstRun();
    Calls calls = callsOf(*test_.agent);
    const std::size_t refreshing = firstRunCalls.size();
    QVERIFY(calls.size() > refreshing);
    // Its arguments depend on the current time.
    QVERIFY(calls[refreshing].starts_with("ClientConnection.activity_log("));
    calls.erase(calls.begin() + static_cast<std::ptrdiff_t>(refreshing));
    const Calls activities{"ClientConnection.running_activities()",
                           "ClientConnection.backup_set(2)", "BackupSet.getName()"};
    QCOMPARE(calls, firstRunCalls + activities);
    QVERIFY(test_.driver->status().endsWith(q(": Daily admin started.")));
    change([](World& world) { QCOMPARE(world.configuration.registrations, 1); });
}

void FirstRunTest::aDailyAdminThatFailsIsReported_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("calls");
    const int all = static_cast<int>(firstRunCalls.size());
    QTest::newRow("manager") << q("getConfigurationManager") << 3 << all - 1;
    QTest::newRow("run") << q("start_daily_admin") << 0 << all;
}

void FirstRunTest::aDailyAdminThatFailsIsReported() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(int, calls);
    failAfter(*test_.agent, after, qPrintable(method));
    expectRegistration(true);
    firstRun();
    compareCalls(first(calls, firstRunCalls));
    QVERIFY(session::connectedToAgent());
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void FirstRunTest::cancellingTheFirstRunDisconnects_data() {
    QTest::addColumn<bool>("closing");
    QTest::newRow("by the button") << false;
    QTest::newRow("by closing the window") << true;
}

void FirstRunTest::cancellingTheFirstRunDisconnects() {
    QFETCH(bool, closing);
    expectDialog([closing](QWidget& dialog) {
        if (closing)
            dialog.close();
        else
            press(dialog, "btnCancel");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), 0);
    });
    firstRun();
    compareCalls(check + registrationRead + logoutCalls);
    QVERIFY(!session::connectedToAgent());
}

void FirstRunTest::aNewAgentAsksAtTheLogin() {
    test_.end();
    test_.modals = std::make_unique<ModalDriver>();
    expectDialog([](QWidget& dialog) {
        QCOMPARE(text(dialog, "txtFieldClientNum"), QString());
        QCOMPARE(addresses(dialog), QString());
        press(dialog, "btnCancel");
    });
    test_.start(simulator::Scenario::FirstRun);
    QVERIFY(!session::connectedToAgent());
}

void FirstRunTest::anAgentWithoutCustomersDoesntAsk() {
    change([](World& world) { world.configuration.keepsCustomer = false; });
    firstRun();
    Calls expected = check;
    expected.pop_back();
    compareCalls(expected);
    QVERIFY(session::connectedToAgent());
}

void FirstRunTest::aFaultAtTheFirstRunDisconnects_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("calls");
    QTest::newRow("info") << q("getTarnClientInfo") << 0 << 1;
    QTest::newRow("manager") << q("getConfigurationManager") << 0 << 2;
    QTest::newRow("customer") << q("getUserInfoConfiguration") << 0 << 3;
    QTest::newRow("its record") << q("getUserInfo") << 0 << 4;
    QTest::newRow("dialog, manager") << q("getConfigurationManager") << 1 << 5;
    QTest::newRow("dialog, registration") << q("getTarnCRegistrationInfo") << 0 << 6;
    QTest::newRow("dialog, customer") << q("getUserInfoConfiguration") << 1 << 7;
    QTest::newRow("dialog, its record") << q("getUserInfo") << 1 << 8;
}

void FirstRunTest::aFaultAtTheFirstRunDisconnects() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(int, calls);
    failAfter(*test_.agent, after, qPrintable(method));
    modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
    firstRun();
    compareCalls(first(calls, check + registrationRead) + logoutCalls);
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void FirstRunTest::aFaultAtSavingLeavesItOpen_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("kept");
    QTest::addColumn<int>("calls");
    QTest::newRow("manager") << q("getConfigurationManager") << 2 << false << 9;
    QTest::newRow("registration") << q("setTarnCRegistrationInfo") << 0 << false << 10;
    QTest::newRow("customer") << q("getUserInfoConfiguration") << 2 << true << 11;
    QTest::newRow("its record") << q("setUserInfo") << 0 << true << 12;
    QTest::newRow("server") << q("init_register") << 0 << true << 13;
}

void FirstRunTest::aFaultAtSavingLeavesItOpen() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(bool, kept);
    QFETCH(int, calls);
    failAfter(*test_.agent, after, qPrintable(method));
    expectDialog([this, kept](QWidget& dialog) {
        fill(dialog);
        press(dialog, "chkRegister");
        modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
        press(dialog, "btnSave");
        QVERIFY(dialog.isVisible());
        change([kept](World& world) {
            QCOMPARE(world.registration.client_num == "ABCDEFGHIJK1", kept);
            QCOMPARE(world.configuration.registrations, 0);
        });
        QCOMPARE(text(dialog, "txtFieldPrivateKey"), q("private key"));
        press(dialog, "btnCancel");
    });
    firstRun();
    compareCalls(first(calls, firstRunCalls) + logoutCalls);
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void FirstRunTest::aSecondPressSavesAllAgain() {
    failAfter(*test_.agent, 0, "init_register");
    expectDialog([this](QWidget& dialog) {
        fill(dialog);
        press(dialog, "chkRegister");
        modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
        press(dialog, "btnSave");
        expectNews(modals(), "Configuration",
                   "Tarn-Client Registration Information is saved and registered successfully.");
        press(dialog, "btnSave");
        QVERIFY(!dialog.isVisible());
    });
    firstRun();
    const Calls saving =
        managerAsked + sentFilled() + userInfoSent + Calls{"ClientConfiguration.init_register()"};
    const Calls expected = check + registrationRead + saving + saving + managerAsked +
                           Calls{"ClientConfiguration.start_daily_admin()"};
    QCOMPARE(first(static_cast<int>(expected.size()), callsOf(*test_.agent)), expected);
    change([](World& world) { QCOMPARE(world.configuration.registrations, 1); });
}

void FirstRunTest::aSessionThatEndsMeanwhileIsReportedAtSaving() {
    expectDialog([this](QWidget& dialog) {
        fill(dialog);
        failAfter(*test_.agent, 0, "getTarnClientInfo");
        test_.driver->beat();
        QVERIFY(!session::connectedToAgent());
        modals().expectErrorBox(q("Configuration Error"), q("No API connection exists"));
        press(dialog, "btnSave");
        QVERIFY(dialog.isVisible());
        QCOMPARE(text(dialog, "txtFieldPrivateKey"), q("private key"));
        press(dialog, "btnCancel");
    });
    firstRun();
    // Only one logout, from the heartbeat.
    compareCalls(check + registrationRead + Calls{"ClientConnection.getTarnClientInfo()"} +
                 logoutCalls);
    QCOMPARE(test_.driver->status(), q("Current connection terminated"));
}

QTEST_MAIN(FirstRunTest)
#include "first_run_test.moc"
