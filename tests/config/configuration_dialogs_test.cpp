// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QTimeEdit>

#include "config/ad_account_dlg.h"
#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/config/dialog_steps.h"
#include "tests/support/gui_form_texts.h"

using namespace steps;
using hessiancln::DayOfWeekCode;
using simulator::Fault;
using simulator::World;
using support::callsOf;
using support::child;
using support::isDialog;
using support::ModalDriver;

namespace {

const char* const error = "Configuration Error";
const char* const ldapError = "LDAP User Validation Error";

const Calls readAccount = managerAsked + Calls{"ClientConfiguration.getADUserInfo()"};
const Calls readTimes = managerAsked + Calls{"ClientConfiguration.getDailyAdminRunTime()",
                                             "ClientConfiguration.getWeeklyAdminRunTime()",
                                             "ClientConfiguration.getWeeklyAdminRunDay()"};

Calls sent(const std::string& username, bool save) {
    return managerAsked + Calls{"ClientConfiguration.setADUserInfo({username=" + username +
                                ", password=***, save=" + (save ? "true})" : "false})")};
}

QTimeEdit& timeOf(QWidget& wizard, const char* name) {
    return child<QTimeEdit>(wizard, name);
}

QString dayOf(QWidget& wizard) {
    return child<QComboBox>(wizard, "comboDays").currentText();
}

} // namespace

/// The smaller dialogs about the agent itself, opened by the main window's commands.
class ConfigurationDialogsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { test_.start(); }
    void cleanup() { test_.end(); }

    void theAccountIsReadAndSaved();
    void theAccountIsValidated();
    void anAccountWithoutADomainIsNotShown();
    void anEmptyAccountIsABackslash();
    void theAccountIsChecked_data();
    void theAccountIsChecked();
    void cancellingTheAccountSendsNothing();
    void aFaultLeavesTheAccountOpen_data();
    void aFaultLeavesTheAccountOpen();

    void theTimesAreShownAndSaved_data();
    void theTimesAreShownAndSaved();
    void sundayIsTheFirstOfTheDays_data();
    void sundayIsTheFirstOfTheDays();
    void theChecksEnableTheTimes();
    void runningNowWritesNothing_data();
    void runningNowWritesNothing();
    void aRunThatFailsIsReportedAndClosesToo_data();
    void aRunThatFailsIsReportedAndClosesToo();
    void aFaultEndsTheTimes_data();
    void aFaultEndsTheTimes();

    void anAgentWithoutAConfigurationIsReported();

private:
    ModalDriver& modals() { return *test_.modals; }
    void expectAccount(const ModalDriver::Act& act) {
        modals().expect(q("account"), isDialog<ADAccountDlg>, [this, act](QWidget& dialog) {
            QTRY_VERIFY(test_.agent->callTexts().size() >= 3);
            act(dialog);
        });
    }
    void expectTimes(const ModalDriver::Act& act) {
        modals().expect(q("times"), isDialog<QWizard>, act);
    }
    void compareCalls(const Calls& expected) { QCOMPARE(callsOf(*test_.agent), expected); }
    void openAccount() { test_.run("on_actionLDAP_Account_triggered"); }
    void openTimes() { test_.run("on_actionAdmin_triggered"); }
    void openRegister() { test_.run("on_actionRegister_triggered"); }

    support::WizardTest test_;
};

void ConfigurationDialogsTest::theAccountIsReadAndSaved() {
    expectAccount([this](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Modify LDAP User Account"));
        QCOMPARE(dialog.parentWidget(), &test_.driver->window());
        support::compareWindowIcon(dialog);
        QCOMPARE(text(dialog, "editDomain"), q("OFFICE"));
        QCOMPARE(text(dialog, "editUser"), q("backup"));
        QCOMPARE(text(dialog, "editPassword"), q("correct horse"));
        QCOMPARE(text(dialog, "editConfirm"), q("correct horse"));
        type(dialog, "editDomain", "  HOME ");
        type(dialog, "editUser", " Jürgen\t");
        type(dialog, "editPassword", "  pass word ");
        type(dialog, "editConfirm", "  pass word ");
        expectNews(modals(), "LDAP User Validation",
                   "LDAP User Information is saved successfully.");
        press(dialog, "btnSave");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), 1);
        QCOMPARE(text(dialog, "editPassword"), QString());
    });
    openAccount();
    compareCalls(readAccount + sent("\"HOME\\\\Jürgen\"", true));
    test_.agent->withWorld([](World& world) {
        QCOMPARE(q(world.configuration.directoryAccount.password.c_str()), q("  pass word "));
    });
}

void ConfigurationDialogsTest::theAccountIsValidated() {
    expectAccount([this](QWidget& dialog) {
        expectNews(modals(), "LDAP User Validation",
                   "LDAP User Information is validated successfully.");
        press(dialog, "btnValidate");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), 2);
        QVERIFY(!dialog.isVisible());
    });
    openAccount();
    compareCalls(readAccount + sent("\"OFFICE\\\\backup\"", false));
}

void ConfigurationDialogsTest::anAccountWithoutADomainIsNotShown() {
    test_.agent->withWorld(
        [](World& world) { world.configuration.directoryAccount.username = "anna@example.org"; });
    expectAccount([](QWidget& dialog) {
        for (const char* field : {"editUser", "editPassword", "editConfirm", "editDomain"})
            QCOMPARE(text(dialog, field), QString());
        press(dialog, "btnCancel");
    });
    openAccount();
    compareCalls(readAccount);
}

void ConfigurationDialogsTest::anEmptyAccountIsABackslash() {
    expectAccount([this](QWidget& dialog) {
        for (const char* field : {"editUser", "editPassword", "editDomain"})
            type(dialog, field, "");
        expectNews(modals(), "LDAP User Validation",
                   "LDAP User Information is saved successfully.");
        press(dialog, "btnSave");
    });
    openAccount();
    compareCalls(readAccount + sent("\"\\\\\"", true));
}

void ConfigurationDialogsTest::theAccountIsChecked_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("message");
    QTest::newRow("user") << q("editUser") << q("")
                          << q("Username is required for initialization.");
    QTest::newRow("password") << q("editPassword") << q("")
                              << q("Password is required for initialization.");
    QTest::newRow("no confirmation")
        << q("editConfirm") << q("") << q("The password you typed do not match.");
    QTest::newRow("other confirmation")
        << q("editConfirm") << q("correct horse ") << q("The password you typed do not match.");
    QTest::newRow("domain") << q("editDomain") << q("")
                            << q("Domain is required for initialization.");
}

void ConfigurationDialogsTest::theAccountIsChecked() {
    QFETCH(QString, field);
    QFETCH(QString, value);
    QFETCH(QString, message);
    expectAccount([&](QWidget& dialog) {
        dialog.findChild<QLineEdit*>(field)->setText(value);
        for (const char* button : {"btnSave", "btnValidate"}) {
            modals().expectErrorBox(q(ldapError), message);
            press(dialog, button);
            QVERIFY(dialog.isVisible());
        }
        press(dialog, "btnCancel");
    });
    openAccount();
    compareCalls(readAccount);
}

void ConfigurationDialogsTest::cancellingTheAccountSendsNothing() {
    expectAccount([](QWidget& dialog) {
        press(dialog, "btnCancel");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), 0);
    });
    openAccount();
    compareCalls(readAccount);
}

void ConfigurationDialogsTest::aFaultLeavesTheAccountOpen_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("calls");
    QTest::newRow("opening, manager") << q("getConfigurationManager") << 0 << q("") << 1;
    QTest::newRow("opening, account") << q("getADUserInfo") << 0 << q("") << 2;
    for (const char* button : {"btnSave", "btnValidate"}) {
        QTest::addRow("%s, manager", button) << q("getConfigurationManager") << 1 << q(button) << 3;
        QTest::addRow("%s, account", button) << q("setADUserInfo") << 0 << q(button) << 4;
    }
}

void ConfigurationDialogsTest::aFaultLeavesTheAccountOpen() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(QString, button);
    QFETCH(int, calls);
    const bool opening = button.isEmpty();
    failAfter(*test_.agent, after, qPrintable(method));
    if (opening)
        modals().expectErrorBox(q(ldapError), q("Out of order."));
    modals().expect(q("account"), isDialog<ADAccountDlg>, [&](QWidget& dialog) {
        if (!opening) {
            QTRY_COMPARE(text(dialog, "editUser"), q("backup"));
            modals().expectErrorBox(q(ldapError), q("Out of order."));
            press(dialog, qPrintable(button));
            QCOMPARE(text(dialog, "editPassword"), q("correct horse"));
        }
        QVERIFY(dialog.isVisible());
        QCOMPARE(text(dialog, "editUser"), opening ? QString() : q("backup"));
        press(dialog, "btnCancel");
    });
    openAccount();
    compareCalls(first(
        calls, readAccount + sent("\"OFFICE\\\\backup\"", button == QLatin1String("btnSave"))));
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void ConfigurationDialogsTest::theTimesAreShownAndSaved_data() {
    QTest::addColumn<bool>("daily");
    QTest::addColumn<bool>("weekly");
    QTest::newRow("both") << true << true;
    QTest::newRow("daily") << true << false;
    QTest::newRow("weekly") << false << true;
    QTest::newRow("none") << false << false;
}

void ConfigurationDialogsTest::theTimesAreShownAndSaved() {
    QFETCH(bool, daily);
    QFETCH(bool, weekly);
    test_.agent->withWorld([=](World& world) {
        world.configuration.dailyAdmin.hour = daily ? 7 : -1;
        world.configuration.weeklyAdmin.hour = weekly ? 0 : -1;
        world.configuration.weeklyDay = DayOfWeekCode::Wednesday;
    });
    expectTimes([=](QWidget& wizard) {
        QCOMPARE(wizard.windowTitle(), q("Configuration Wizard"));
        QCOMPARE(isChecked(wizard, "checkDaily"), daily);
        QCOMPARE(isChecked(wizard, "checkWeekly"), weekly);
        for (const char* name : {"timeDaily", "labelDailyStartAt"})
            QCOMPARE(isEnabled(wizard, name), daily);
        for (const char* name : {"timeWeekly", "labelWeeklyStartAt", "labelEvery", "comboDays"})
            QCOMPARE(isEnabled(wizard, name), weekly);
        if (daily)
            QCOMPARE(timeOf(wizard, "timeDaily").time(), QTime(7, 30));
        if (weekly) {
            QCOMPARE(timeOf(wizard, "timeWeekly").time(), QTime(0, 15));
            QCOMPARE(dayOf(wizard), q("Wednesday"));
        }
        timeOf(wizard, "timeDaily").setTime(QTime(6, 45));
        child<QComboBox>(wizard, "comboDays").setCurrentIndex(6);
        QVERIFY(support::finishWizard(wizard));
    });
    openTimes();
    Calls expected = readTimes;
    if (!weekly)
        expected.pop_back();
    const std::string off = "{hour=-1, minute=0, second=0})";
    compareCalls(expected + managerAsked +
                 Calls{"ClientConfiguration.setDailyAdminRunTime(" +
                           (daily ? "{hour=6, minute=45, second=0})" : off),
                       "ClientConfiguration.setWeeklyAdminRunTime(5, " +
                           (weekly ? "{hour=0, minute=15, second=0})" : off)});
}

void ConfigurationDialogsTest::sundayIsTheFirstOfTheDays_data() {
    QTest::addColumn<int>("day");
    QTest::newRow("Sunday") << 6;
    QTest::newRow("a day without a name") << 7;
}

void ConfigurationDialogsTest::sundayIsTheFirstOfTheDays() {
    QFETCH(int, day);
    test_.agent->withWorld(
        [day](World& world) { world.configuration.weeklyDay = DayOfWeekCode(day); });
    expectTimes([](QWidget& wizard) {
        QCOMPARE(child<QComboBox>(wizard, "comboDays").currentIndex(), 0);
        QCOMPARE(dayOf(wizard), q("Sunday"));
        QVERIFY(support::finishWizard(wizard));
    });
    openTimes();
    QCOMPARE(q(callsOf(*test_.agent).back().c_str()),
             q("ClientConfiguration.setWeeklyAdminRunTime(6, {hour=23, minute=15, second=0})"));
}

void ConfigurationDialogsTest::theChecksEnableTheTimes() {
    expectTimes([](QWidget& wizard) {
        press(wizard, "checkDaily");
        QVERIFY(!isEnabled(wizard, "timeDaily") && !isEnabled(wizard, "labelDailyStartAt"));
        QVERIFY(isEnabled(wizard, "timeWeekly"));
        press(wizard, "checkWeekly");
        for (const char* name : {"timeWeekly", "labelWeeklyStartAt", "labelEvery", "comboDays"})
            QVERIFY2(!isEnabled(wizard, name), name);
        QVERIFY(isEnabled(wizard, "btnDaily") && isEnabled(wizard, "btnWeekly"));
        press(wizard, "checkDaily");
        QVERIFY(isEnabled(wizard, "timeDaily") && !isEnabled(wizard, "timeWeekly"));
        support::cancelWizard(wizard, 0);
    });
    openTimes();
    compareCalls(readTimes);
}

void ConfigurationDialogsTest::runningNowWritesNothing_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("method");
    QTest::newRow("daily") << q("btnDaily") << q("start_daily_admin");
    QTest::newRow("weekly") << q("btnWeekly") << q("start_weekly_admin");
}

void ConfigurationDialogsTest::runningNowWritesNothing() {
    QFETCH(QString, button);
    QFETCH(QString, method);
    expectTimes([&](QWidget& wizard) {
        timeOf(wizard, "timeDaily").setTime(QTime(6, 45));
        press(wizard, qPrintable(button));
        QVERIFY(!wizard.isVisible());
    });
    openTimes();
    compareCalls(readTimes + managerAsked +
                 Calls{"ClientConfiguration." + method.toStdString() + "()"});
}

void ConfigurationDialogsTest::aRunThatFailsIsReportedAndClosesToo_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::newRow("daily") << q("btnDaily") << q("start_daily_admin") << 0;
    QTest::newRow("weekly") << q("btnWeekly") << q("start_weekly_admin") << 0;
    for (const char* button : {"btnDaily", "btnWeekly"})
        QTest::addRow("%s, manager", button) << q(button) << q("getConfigurationManager") << 1;
}

void ConfigurationDialogsTest::aRunThatFailsIsReportedAndClosesToo() {
    QFETCH(QString, button);
    QFETCH(QString, method);
    QFETCH(int, after);
    failAfter(*test_.agent, after, qPrintable(method));
    expectTimes([&](QWidget& wizard) {
        modals().expectErrorBox(q(error), q("Out of order."));
        press(wizard, qPrintable(button));
        QVERIFY(!wizard.isVisible());
    });
    openTimes();
    Calls expected = readTimes + managerAsked;
    if (after == 0)
        expected.push_back("ClientConfiguration." + method.toStdString() + "()");
    compareCalls(expected);
}

void ConfigurationDialogsTest::aFaultEndsTheTimes_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("calls");
    QTest::newRow("manager") << q("getConfigurationManager") << 0 << 1;
    QTest::newRow("daily") << q("getDailyAdminRunTime") << 0 << 2;
    QTest::newRow("weekly") << q("getWeeklyAdminRunTime") << 0 << 3;
    QTest::newRow("day") << q("getWeeklyAdminRunDay") << 0 << 4;
    QTest::newRow("saving, manager") << q("getConfigurationManager") << 1 << 5;
    QTest::newRow("saving, daily") << q("setDailyAdminRunTime") << 0 << 6;
    QTest::newRow("saving, weekly") << q("setWeeklyAdminRunTime") << 0 << 7;
}

void ConfigurationDialogsTest::aFaultEndsTheTimes() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(int, calls);
    failAfter(*test_.agent, after, qPrintable(method));
    if (QByteArray(QTest::currentDataTag()).startsWith("saving"))
        expectTimes([](QWidget& wizard) { QVERIFY(support::finishWizard(wizard)); });
    modals().expectErrorBox(q(error), q("Out of order."));
    openTimes();
    const Calls methods{"getConfigurationManager", "getDailyAdminRunTime",
                        "getWeeklyAdminRunTime",   "getWeeklyAdminRunDay",
                        "getConfigurationManager", "setDailyAdminRunTime",
                        "setWeeklyAdminRunTime"};
    QCOMPARE(support::methodsOf(*test_.agent), first(calls, methods));
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void ConfigurationDialogsTest::anAgentWithoutAConfigurationIsReported() {
    const auto expectBox = [this](const char* title) {
        test_.agent->inject("getConfigurationManager", simulator::NullResult{});
        modals().expectErrorBox(q(title), q("The agent did not return the requested object."));
    };
    expectBox(error);
    openRegister();
    expectBox(error);
    openTimes();
    expectBox(error);
    test_.run("on_actionRegistration_Info_triggered");
    expectBox(ldapError);
    modals().expect(q("account"), isDialog<ADAccountDlg>,
                    [](QWidget& dialog) { press(dialog, "btnCancel"); });
    openAccount();
}

QTEST_MAIN(ConfigurationDialogsTest)
#include "configuration_dialogs_test.moc"
