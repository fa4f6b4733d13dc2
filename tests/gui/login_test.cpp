// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <optional>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QTest>

#include "app/login_check.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "session/integrated_logon.h"
#include "session/text.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_translation.h"
#include "tests/support/scripted_security_operations.h"
#include "tests/support/security_operations_override.h"
#include "tests/support/system/failures.h"

using support::child;
using support::GuiAgent;
using support::ModalDriver;

namespace {

/// Fills in the dialog.
void type(QDialog& dialog, const QString& user, const QString& password) {
    child<QLineEdit>(dialog, "lineEditUserName").setText(user);
    child<QLineEdit>(dialog, "lineEditPassword").setText(password);
}

void press(QDialog& dialog, const char* button) {
    QTest::mouseClick(&child<QPushButton>(dialog, button), Qt::LeftButton);
}

QString text(QDialog& dialog, const char* edit) {
    return child<QLineEdit>(dialog, edit).text();
}

QString currentUser() {
    return session::fromWire(session::currentWindowsUser());
}

/// The login calls received by an agent.
std::vector<std::string> logins(const simulator::Simulator& agent) {
    std::vector<std::string> found;
    for (const auto& call : agent.callLog())
        if (call.method == "login" || call.method == "sspi_login")
            found.push_back(call.text());
    return found;
}

std::string login(const std::string& baseUrl, const std::string& user) {
    return "ClientConnection.login(\"" + baseUrl + "\", \"13.0.0.0\", \"" + user + "\", ***, 1)";
}

const std::string localUrl = "https://127.0.0.1:4411";

simulator::Options inDomains() {
    simulator::Options options;
    options.domains = {"NORTH", "SOUTH"};
    return options;
}

/// A system with integrated logon, which fails at its first step.
struct FailingSecurity : support::ScriptedSecurityOperations {
    FailingSecurity() { queryStatus = -1; }
};

} // namespace

class LoginTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        // The size common on desktops; this platform's is larger.
        QFont font = QApplication::font();
        font.setPointSize(9);
        QApplication::setFont(font);
    }
    void cleanup() { support::resetSession(); }

    void looksAsItShould() {
        LoginCheck dialog;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Login"));
        support::compareWindowIcon(dialog);
        QCOMPARE(dialog.size(), QSize(294, 180));
        QCOMPARE(dialog.minimumHeight(), 180);
        QCOMPARE(dialog.maximumHeight(), 180);
        QCOMPARE(child<QGroupBox>(dialog, "groupLoginInfo").title(),
                 QStringLiteral("Login Information"));
        QCOMPARE(child<QLabel>(dialog, "labelUserName").text(), QStringLiteral("User &Name:"));
        QCOMPARE(child<QLabel>(dialog, "labelPassword").text(), QStringLiteral("&Password:"));
        QCOMPARE(child<QCheckBox>(dialog, "chkSSPILogin").text(),
                 QStringLiteral("&Use currently logged in user"));
        QCOMPARE(child<QPushButton>(dialog, "buttonLogin").text(), QStringLiteral("&Login"));
        QCOMPARE(child<QPushButton>(dialog, "buttonQuit").text(), QStringLiteral("&Cancel"));
        QCOMPARE(child<QLineEdit>(dialog, "lineEditPassword").echoMode(), QLineEdit::Password);
        QCOMPARE(child<QPushButton>(dialog, "buttonLogin").minimumWidth(),
                 child<QPushButton>(dialog, "buttonQuit").minimumWidth());
        support::compareIcon(dialog, "buttonLogin", ":/button/ok");
        support::compareIcon(dialog, "buttonQuit", ":/button/cancel");
    }

    void hasItsSlotsInOrder() {
        const QMetaObject& meta = LoginCheck::staticMetaObject;
        QByteArrayList slotNames;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            slotNames << meta.method(i).methodSignature();
        QCOMPARE(slotNames,
                 (QByteArrayList{"OnQuit()", "OnLogin()", "on_chkSSPILogin_clicked(bool)"}));
    }

    void aLongDomainDoesNotStretchTheDialog() {
        simulator::Options options;
        options.domains = {std::string(150, 'W')};
        const GuiAgent agent(options);
        LoginCheck dialog;
        dialog.show();
        QVERIFY2(dialog.width() <= 500, qPrintable(QString::number(dialog.width())));
        QCOMPARE(child<QComboBox>(dialog, "comboDomain").currentText(),
                 QString(150, QLatin1Char('W')));
    }

    void reachesItsFieldsByLabel() {
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        QCOMPARE(child<QLabel>(dialog, "labelUserName").buddy(),
                 &child<QLineEdit>(dialog, "lineEditUserName"));
        QCOMPARE(child<QLabel>(dialog, "labelPassword").buddy(),
                 &child<QLineEdit>(dialog, "lineEditPassword"));
        QCOMPARE(child<QLabel>(dialog, "labelDomain").buddy(),
                 &child<QComboBox>(dialog, "comboDomain"));
    }

    void tabGoesDownTheFields() {
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        child<QComboBox>(dialog, "comboDomain").setFocus();
        for (const char* next :
             {"lineEditUserName", "lineEditPassword", "buttonLogin", "buttonQuit", "comboDomain"}) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QCOMPARE(dialog.focusWidget()->objectName(), QString::fromLatin1(next));
        }
    }

    void namesEachWidgetThatTakesTheFocus() {
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        for (const char* name : {"comboDomain", "lineEditUserName", "lineEditPassword"})
            QVERIFY2(!child<QWidget>(dialog, name).accessibleName().isEmpty(), name);
    }

    void startsInThePasswordOfTheCurrentUser() {
        if (currentUser().isEmpty())
            QSKIP("This system doesn't report the current user");
        LoginCheck dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(text(dialog, "lineEditUserName"), currentUser());
        QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("lineEditPassword"));
    }

    void withoutIntegratedLogonTheFieldsAreOpen() {
        LoginCheck dialog;
        QVERIFY(child<QCheckBox>(dialog, "chkSSPILogin").isHidden());
        QVERIFY(!child<QCheckBox>(dialog, "chkSSPILogin").isChecked());
        QVERIFY(child<QGroupBox>(dialog, "groupLoginInfo").isEnabled());
    }

    void hasNoDomainRowWithoutDomains() {
        const GuiAgent agent;
        LoginCheck dialog;
        QVERIFY(!dialog.findChild<QComboBox*>());
        QCOMPARE(agent.callTexts(),
                 std::vector<std::string>{"ClientConnection.getAvailableDomains()"});
    }

    void hasNoDomainRowWithoutAnAgent() {
        LoginCheck dialog;
        QVERIFY(!dialog.findChild<QComboBox*>());
    }

    void offersTheDomainsFirst() {
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        auto& combo = child<QComboBox>(dialog, "comboDomain");
        QCOMPARE(combo.count(), 2);
        QCOMPARE(combo.itemText(0), QStringLiteral("NORTH"));
        QCOMPARE(combo.itemText(1), QStringLiteral("SOUTH"));
        auto& form = child<QFormLayout>(dialog, "formLayout");
        QCOMPARE(form.itemAt(0, QFormLayout::FieldRole)->widget(), &combo);
        QCOMPARE(form.itemAt(0, QFormLayout::LabelRole)->widget(),
                 &child<QLabel>(dialog, "labelDomain"));
        QCOMPARE(child<QLabel>(dialog, "labelDomain").text(), QStringLiteral("&From:"));
        QCOMPARE(dialog.size(), QSize(294, 180));
    }

    void growsWhereItsTextsNeedMoreRoom() {
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSize(24);
        QApplication::setFont(large);
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        QApplication::setFont(usual);
        QVERIFY(dialog.height() > 180);
        QVERIFY(dialog.height() >= dialog.layout()->minimumSize().height());
        QVERIFY(dialog.width() >= dialog.layout()->minimumSize().width());
    }

    void logsIn() {
        const GuiAgent agent;
        LoginCheck dialog;
        type(dialog, QStringLiteral("demo"), QStringLiteral("demo"));
        dialog.setResult(7);
        press(dialog, "buttonLogin");
        QCOMPARE(dialog.result(), 0);
        QVERIFY(session::connectedToAgent());
        QCOMPARE(dialog.user(), QStringLiteral("demo"));
        QCOMPARE(dialog.host(), QStringLiteral("127.0.0.1"));
        QCOMPARE(logins(agent), std::vector{login(localUrl, "demo")});
        QCOMPARE(dialog.cursor().shape(), Qt::ArrowCursor);
    }

    void returnLogsIn() {
        const GuiAgent agent;
        LoginCheck dialog;
        dialog.show();
        type(dialog, QStringLiteral("demo"), QStringLiteral("demo"));
        QTest::keyClick(&child<QLineEdit>(dialog, "lineEditPassword"), Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QVERIFY(session::connectedToAgent());
    }

    void aWrongPasswordLeavesItOpenWithThePasswordStillThere() {
        const GuiAgent agent;
        LoginCheck dialog;
        type(dialog, QStringLiteral("demo"), QStringLiteral("wrong"));
        dialog.show();
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Login Failed"),
                              QStringLiteral("Unknown user name or bad password."));
        press(dialog, "buttonLogin");
        QVERIFY(modals.done());
        QVERIFY(dialog.isVisible());
        QCOMPARE(text(dialog, "lineEditUserName"), QStringLiteral("demo"));
        QCOMPARE(text(dialog, "lineEditPassword"), QStringLiteral("wrong"));
        QCOMPARE(dialog.cursor().shape(), Qt::ArrowCursor);
        QVERIFY(!session::connectedToAgent());

        type(dialog, QStringLiteral("demo"), QStringLiteral("demo"));
        press(dialog, "buttonLogin");
        QVERIFY(session::connectedToAgent());
        QVERIFY(!dialog.isVisible());
    }

    void anAbsentAgentIsReported() {
        expectFailure(
            session::fromWire("Failed to connect to '127.0.0.1' on port 4411. O/S error " +
                              support::failures::refused().reported()));
    }

    void anAgentOfAnotherKindIsRefused() {
        GuiAgent agent;
        agent.withWorld([](simulator::World& world) { world.clientType = 1; });
        expectFailure(QStringLiteral(
            "It is not allowed to connect to Tarn-Client Full using Tarn-Mobile User."));
        QVERIFY(logins(agent).empty());
        QCOMPARE(session::clientType(), 1);
    }

    void aFaultIsReportedAsItCame() {
        GuiAgent agent;
        agent.inject("login", simulator::Fault{"<b>No</b> & never"});
        expectFailure(QStringLiteral("<b>No</b> & never"));
    }

    void cancelGivesOne() {
        LoginCheck dialog;
        dialog.setResult(7);
        press(dialog, "buttonQuit");
        QCOMPARE(dialog.result(), 1);
    }

    void escapeGivesZeroLikeALogin() {
        LoginCheck dialog;
        dialog.show();
        dialog.setResult(7);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.result(), 0);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!session::connectedToAgent());
    }

    void theCloseButtonGivesZeroLikeALogin() {
        LoginCheck dialog;
        dialog.show();
        dialog.setResult(7);
        dialog.close();
        QCOMPARE(dialog.result(), 0);
    }

    void namesTheUserInADomain_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("user");
        QTest::newRow("a plain name gets the domain")
            << QStringLiteral("demo") << QStringLiteral("SOUTH\\demo");
        QTest::newRow("a leading backslash means no domain")
            << QStringLiteral("\\demo") << QStringLiteral("demo");
        QTest::newRow("a name with a domain keeps it")
            << QStringLiteral("NORTH\\demo") << QStringLiteral("NORTH\\demo");
    }
    void namesTheUserInADomain() {
        QFETCH(QString, typed);
        QFETCH(QString, user);
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        child<QComboBox>(dialog, "comboDomain").setCurrentIndex(1);
        type(dialog, typed, QStringLiteral("demo"));
        press(dialog, "buttonLogin");
        QVERIFY(session::connectedToAgent());
        QCOMPARE(dialog.user(), user);
        const auto calls = logins(agent);
        QCOMPARE(calls.size(), std::size_t(1));
        // The log escapes a backslash as in a literal.
        const QString logged =
            QString(user).replace(QStringLiteral("\\"), backslashOfLog(calls[0]));
        QCOMPARE(calls[0], login(localUrl, session::toWire(logged)));
    }

    void theUserFieldMayNameAnAgent() {
        const simulator::Simulator elsewhere;
        LoginCheck dialog;
        type(dialog, QStringLiteral("demo:") + session::fromWire(elsewhere.address()),
             QStringLiteral("demo"));
        press(dialog, "buttonLogin");
        QVERIFY(session::connectedToAgent());
        QCOMPARE(dialog.user(), QStringLiteral("demo"));
        QCOMPARE(dialog.host(), QStringLiteral("127.0.0.1"));
        QCOMPARE(logins(elsewhere), std::vector{login(elsewhere.baseUrl(), "demo")});
        session::disconnectFromAgent();
    }

    void withIntegratedLogonTheFieldsAreClosedAtFirst() {
        FailingSecurity security;
        const support::SecurityOperationsOverride override(&security);
        LoginCheck dialog;
        QVERIFY(!child<QCheckBox>(dialog, "chkSSPILogin").isHidden());
        QVERIFY(child<QCheckBox>(dialog, "chkSSPILogin").isChecked());
        QVERIFY(!child<QGroupBox>(dialog, "groupLoginInfo").isEnabled());
    }

    void aClickOnTheCheckBoxForgetsWhatWasTyped() {
        FailingSecurity security;
        const support::SecurityOperationsOverride override(&security);
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        dialog.show();
        auto& check = child<QCheckBox>(dialog, "chkSSPILogin");
        check.click();
        QVERIFY(child<QGroupBox>(dialog, "groupLoginInfo").isEnabled());
        type(dialog, QStringLiteral("somebody:there"), QStringLiteral("secret"));
        child<QComboBox>(dialog, "comboDomain").setCurrentIndex(1);
        check.click();
        QVERIFY(!child<QGroupBox>(dialog, "groupLoginInfo").isEnabled());
        QCOMPARE(text(dialog, "lineEditUserName"), currentUser());
        QCOMPARE(text(dialog, "lineEditPassword"), QString());
        QCOMPARE(child<QComboBox>(dialog, "comboDomain").currentIndex(), 0);
    }

    void withTheBoxCheckedItIsTheAgentOfThisMachine() {
        FailingSecurity security;
        const support::SecurityOperationsOverride override(&security);
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        QCOMPARE(dialog.host(), QStringLiteral("127.0.0.1"));
        QCOMPARE(dialog.user(), currentUser());
        press(dialog, "buttonLogin");
        QVERIFY(agent.waitForCall("getTarnClientType"));
    }

    void anIntegratedLogonThatFailsInThisSystemBehavesLikeEscape() {
        FailingSecurity security;
        const support::SecurityOperationsOverride override(&security);
        const GuiAgent agent;
        LoginCheck dialog;
        dialog.show();
        dialog.setResult(7);
        ModalDriver modals;
        press(dialog, "buttonLogin");
        QCOMPARE(dialog.result(), 0);
        QVERIFY(modals.done());
        QVERIFY(!session::connectedToAgent());
        QVERIFY(logins(agent).empty());
    }

    void anEmptyUserTakesTheIntegratedPathAndIgnoresThePassword() {
        FailingSecurity security;
        const support::SecurityOperationsOverride override(&security);
        const GuiAgent agent;
        LoginCheck dialog;
        child<QCheckBox>(dialog, "chkSSPILogin").click();
        type(dialog, QString(), QStringLiteral("secret"));
        press(dialog, "buttonLogin");
        QVERIFY(agent.waitForCall("getTarnClientType"));
        QVERIFY(logins(agent).empty());
        QVERIFY(!session::connectedToAgent());
    }

    void changesItsLanguageWhileItIsOpen() {
        const GuiAgent agent(inDomains());
        LoginCheck dialog;
        dialog.show();
        std::optional<support::Translation> german(QStringLiteral("de"));
        QTRY_COMPARE(dialog.windowTitle(), QStringLiteral("Anmeldung"));
        QCOMPARE(child<QLabel>(dialog, "labelDomain").text(), QString::fromUtf8("&Domäne:"));
        QCOMPARE(child<QPushButton>(dialog, "buttonLogin").text(), QStringLiteral("A&nmelden"));
        QVERIFY(dialog.width() >= dialog.layout()->minimumSize().width());
        QVERIFY(dialog.height() >= dialog.layout()->minimumSize().height());
        german.reset();
        QTRY_COMPARE(dialog.windowTitle(), QStringLiteral("Login"));
    }

private:
    static QString backslashOfLog(const std::string& call) {
        return call.find("\\\\") == std::string::npos ? QStringLiteral("\\")
                                                      : QStringLiteral("\\\\");
    }

    void expectFailure(const QString& message) {
        LoginCheck dialog;
        type(dialog, QStringLiteral("demo"), QStringLiteral("demo"));
        dialog.show();
        ModalDriver modals;
        modals.expectErrorBox(QStringLiteral("Login Failed"), message);
        press(dialog, "buttonLogin");
        QVERIFY(modals.done());
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.cursor().shape(), Qt::ArrowCursor);
        QVERIFY(!session::connectedToAgent());
    }
};

QTEST_MAIN(LoginTest)
#include "login_test.moc"
