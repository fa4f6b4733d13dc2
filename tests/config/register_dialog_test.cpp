// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>

#include "config/register_dlg.h"
#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/config/dialog_steps.h"
#include "tests/support/gui_form_texts.h"

using namespace steps;
using simulator::World;
using support::callsOf;
using support::child;
using support::isDialog;
using support::ModalDriver;

namespace {

const Calls readNumbers = managerAsked + Calls{"ClientConfiguration.getCustomerName()",
                                               "ClientConfiguration.getAccountNumber()",
                                               "ClientConfiguration.getClientNumber()"};

} // namespace

/// The dialog that registers the agent again, opened from the main window.
class RegisterDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { test_.start(); }
    void cleanup() { test_.end(); }

    void theNumbersAreShown();
    void registeringAgainReplacesItsStatus_data();
    void registeringAgainReplacesItsStatus();
    void theStatusReportsThatItIsRegistering();
    void whatTheAgentReportsDoesNotStretchTheDialog_data();
    void whatTheAgentReportsDoesNotStretchTheDialog();
    void noRegistrationOpensOnAFault_data();
    void noRegistrationOpensOnAFault();

private:
    void expectRegister(const ModalDriver::Act& act) {
        test_.modals->expect(q("register"), isDialog<RegisterDlg>, act);
    }
    void compareCalls(const Calls& expected) { QCOMPARE(callsOf(*test_.agent), expected); }
    void openRegister() { test_.run("on_actionRegister_triggered"); }

    support::WizardTest test_;
};

void RegisterDialogTest::theNumbersAreShown() {
    expectRegister([this](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Re-Register"));
        QCOMPARE(dialog.parentWidget(), &test_.driver->window());
        support::compareWindowIcon(dialog);
        QCOMPARE(label(dialog, "txtCustomerName"), q("Müller & Söhne GmbH"));
        QCOMPARE(label(dialog, "txtAccountNum"), q("OFFICE-401"));
        QCOMPARE(label(dialog, "txtClientNum"), q("A4C100931700"));
        QCOMPARE(label(dialog, "labStatus"), QString());
        press(dialog, "btnClose");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), int(QDialog::Accepted));
    });
    openRegister();
    compareCalls(readNumbers);
}

void RegisterDialogTest::registeringAgainReplacesItsStatus_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::newRow("registration") << q("re_register") << 0;
    QTest::newRow("manager") << q("getConfigurationManager") << 1;
}

void RegisterDialogTest::registeringAgainReplacesItsStatus() {
    QFETCH(QString, method);
    QFETCH(int, after);
    failAfter(*test_.agent, after, qPrintable(method));
    expectRegister([](QWidget& dialog) {
        press(dialog, "btnRegister");
        QCOMPARE(label(dialog, "labStatus"), q("Out of order."));
        // A screen reader says the same.
        QCOMPARE(QAccessible::queryAccessibleInterface(&child<QLabel>(dialog, "labStatus"))
                     ->text(QAccessible::Name),
                 q("Out of order."));
        QVERIFY(dialog.isVisible());
        press(dialog, "btnRegister");
        QCOMPARE(label(dialog, "labStatus"),
                 q("Tarn-Client successfully registered with Tarn-System."));
        press(dialog, "btnClose");
    });
    openRegister();
    const Calls again = managerAsked + Calls{"ClientConfiguration.re_register()"};
    compareCalls(readNumbers + (after == 0 ? again : managerAsked) + again);
    test_.agent->withWorld([](World& world) { QCOMPARE(world.configuration.registrations, 1); });
}

void RegisterDialogTest::theStatusReportsThatItIsRegistering() {
    expectRegister([](QWidget& dialog) {
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        StatusWatch watch(child<QLabel>(dialog, "labStatus"));
        press(dialog, "btnRegister");
        QVERIFY(watch.painted.contains(q("Registering...")));
        press(dialog, "btnClose");
    });
    openRegister();
}

void RegisterDialogTest::whatTheAgentReportsDoesNotStretchTheDialog_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("one word") << QString(20000, QLatin1Char('W'));
    QTest::newRow("many lines") << q("word\n").repeated(4000);
}

void RegisterDialogTest::whatTheAgentReportsDoesNotStretchTheDialog() {
    QFETCH(QString, text);
    const hessiancln::tarnc_reg_info before = [this] {
        hessiancln::tarnc_reg_info registration;
        test_.agent->withWorld([&](World& world) { registration = world.registration; });
        return registration;
    }();
    test_.agent->withWorld([&](World& world) {
        auto& reported = world.registration;
        reported.customer_name = reported.account_num = reported.client_num = text.toStdString();
    });
    test_.agent->inject("re_register", simulator::Fault{text.toStdString()});
    expectRegister([&text](QWidget& dialog) {
        press(dialog, "btnRegister");
        const QString status = label(dialog, "labStatus");
        QVERIFY(status.size() > 50 && text.startsWith(status.left(status.size() - 1)));
        QCOMPARE(status.right(1), q("…"));
        QCoreApplication::processEvents();
        QVERIFY2(dialog.width() <= 800, qPrintable(QString::number(dialog.width())));
        QVERIFY2(dialog.height() <= 1200, qPrintable(QString::number(dialog.height())));
        press(dialog, "btnClose");
    });
    openRegister();
    test_.agent->withWorld([&](World& world) { world.registration = before; });
}

void RegisterDialogTest::noRegistrationOpensOnAFault_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("calls");
    int calls = 0;
    for (const char* method :
         {"getConfigurationManager", "getCustomerName", "getAccountNumber", "getClientNumber"})
        QTest::newRow(method) << q(method) << ++calls;
}

void RegisterDialogTest::noRegistrationOpensOnAFault() {
    QFETCH(QString, method);
    QFETCH(int, calls);
    failAfter(*test_.agent, 0, qPrintable(method));
    test_.modals->expectErrorBox(q("Configuration Error"), q("Out of order."));
    openRegister();
    compareCalls(first(calls, readNumbers));
}

QTEST_MAIN(RegisterDialogTest)
#include "register_dialog_test.moc"
