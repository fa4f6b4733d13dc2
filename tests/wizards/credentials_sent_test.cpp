// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <map>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWizard>

#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/wizards/credential_dialog_driver.h"
#include "tests/wizards/source_page_driver.h"
#include "wizards/enter_simple_user_psw.h"
#include "wizards/ssh_access_type.h"
#include "wizards/ssh_connect_as_dlg.h"
#include "wizards/ssh_sudo_credentials.h"

using simulator::LoginKind;
using support::child;
using support::isDialog;
using support::ModalDriver;
using wizards_test::fieldText;
using wizards_test::gives;
using wizards_test::Lines;
using wizards_test::PageDriver;
using wizards_test::press;
using wizards_test::rightPassword;
using wizards_test::Source;
using wizards_test::type;

namespace {

std::string setCurrent(const std::string& user) {
    return "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(" + user + "))";
}

/// The calls before a dialog opens, up to reading its user name.
Lines readLogin(const std::string& getUser) {
    return {"DataSourceBrowser.getCurrentCredentials()", "BackupSetCredentials.types()",
            "BackupSetCredentials.types()", getUser};
}

const std::string getWindowsUser = "Win32FS_Generic_BackupSetCredentials.getUserName()";
const std::string getUnixUser = "UnixFS_Generic_BackupSetCredentials.getUserName()";

const Lines showSSH{getUnixUser, "UnixFS_SSH_BackupSetCredentials.getSudoUser()",
                    "UnixFS_SSH_BackupSetCredentials.getSSHAccessType()",
                    "UnixFS_SSH_BackupSetCredentials.getSSHInterpreterPath()"};

/// The visible page, over a computer that requires this kind of login.
struct Shown {
    explicit Shown(LoginKind kind)
        : source(kind) {
        driver.show();
        source.takeCalls();
    }
    ~Shown() {
        driver.close();
        source.verifyAllReleased();
        support::resetSession();
    }

    /// Verifies that the login works if the agent accepts exactly these users and passwords.
    void verifyLogsIn(const std::map<std::string, std::string>& users) {
        source.agent.withWorld(
            [&users](simulator::World& world) { world.network.local()->users = users; });
        driver.pressNext();
        QVERIFY(modals.done());
        QVERIFY(driver.wizard().currentPage() != &driver.page());
    }

    Source source;
    PageDriver driver;
    ModalDriver modals;
};

} // namespace

/// What the dialogs send to the agent.
class CredentialsSentTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { support::resetSession(); }

    void aWindowsUserIsSent();
    void aUnixUserIsSent();
    void anSSHPasswordIsSent();
    void anIdentityFileIsSent();
    void aSudoUserIsSent();
    void sudoIsSwitchedOff();
    void anSSHAccessIsSent();
    void aScriptWantsAPath();
    void anUnknownAccessStartsAsTheFirst();
    void aCancelledDialogSendsNothing();
    void whatTheAgentRefusesIsShown();
};

void CredentialsSentTest::aWindowsUserIsSent() {
    Shown shown(LoginKind::Windows);
    shown.modals.expect(QStringLiteral("login"), isDialog<CEnterSimpleUserPsw>, [](QWidget& asked) {
        QCOMPARE(fieldText(asked, "editUserName"), QStringLiteral("demo"));
        type(asked, "editUserName", QString::fromUtf8("BÜRO\\zoë"));
        type(asked, "editPassword", QString::fromLatin1(rightPassword));
        press(asked, "btnOK");
    });
    shown.driver.click("btnConnectAs");
    QVERIFY(shown.modals.done());
    QCOMPARE(shown.source.takeCalls(),
             wizards_test::join(
                 {readLogin(getWindowsUser),
                  {R"(Win32FS_Generic_BackupSetCredentials.setCredentials("BÜRO\\zoë", ***))",
                   setCurrent("BÜRO\\zoë")}}));
    QCOMPARE(shown.driver.text("editConnectAs"), QString::fromUtf8("BÜRO\\zoë"));
    QCOMPARE(shown.driver.page().connectUser(), QString::fromUtf8("BÜRO\\zoë"));
    QVERIFY(!gives(shown.driver.page(), QString::fromLatin1(rightPassword)));
    shown.verifyLogsIn({{"BÜRO\\zoë", rightPassword}});
}

void CredentialsSentTest::aUnixUserIsSent() {
    Shown shown(LoginKind::Unix);
    shown.modals.expect(QStringLiteral("login"), isDialog<CEnterSimpleUserPsw>, [](QWidget& asked) {
        type(asked, "editPassword", QString::fromLatin1(rightPassword));
        QTest::keyClick(&asked, Qt::Key_Return);
    });
    shown.driver.click("btnConnectAs");
    QVERIFY(shown.modals.done());
    QCOMPARE(
        shown.source.takeCalls(),
        wizards_test::join({readLogin(getUnixUser),
                            {R"(UnixFS_Generic_BackupSetCredentials.setCredentials("demo", ***))",
                             setCurrent("demo")}}));
    shown.verifyLogsIn({{"demo", rightPassword}});
}

void CredentialsSentTest::anSSHPasswordIsSent() {
    Shown shown(LoginKind::Ssh);
    shown.modals.expect(QStringLiteral("login"), isDialog<CSSHConnectAsDlg>, [](QWidget& asked) {
        QCOMPARE(fieldText(asked, "editUserName"), QStringLiteral("demo"));
        type(asked, "editUserName", QStringLiteral("anna"));
        type(asked, "editPassword", QString::fromLatin1(rightPassword));
        press(asked, "btnOK");
    });
    shown.driver.click("btnConnectAs");
    QVERIFY(shown.modals.done());
    QCOMPARE(
        shown.source.takeCalls(),
        wizards_test::join({readLogin(getUnixUser),
                            {R"(UnixFS_Generic_BackupSetCredentials.setCredentials("anna", ***))",
                             setCurrent("anna")},
                            showSSH}));
    QCOMPARE(shown.driver.text("editConnectAs"), QStringLiteral("anna"));
    shown.verifyLogsIn({{"anna", rightPassword}});
}

void CredentialsSentTest::anIdentityFileIsSent() {
    Shown shown(LoginKind::Ssh);
    shown.source.agent.withWorld([](simulator::World& world) {
        world.network.local()->keyFile = "/etc/id-ü";
        world.network.local()->passphrase = rightPassword;
    });
    shown.modals.expect(QStringLiteral("login"), isDialog<CSSHConnectAsDlg>, [](QWidget& asked) {
        press(asked, "radioIdentity");
        type(asked, "editIdentityUser", QStringLiteral("anna"));
        type(asked, "editIdentity", QString::fromUtf8("/etc/id-ü"));
        type(asked, "editPassPhrase", QString::fromLatin1(rightPassword));
        press(asked, "btnOK");
    });
    shown.driver.click("btnConnectAs");
    QVERIFY(shown.modals.done());
    QCOMPARE(
        shown.source.takeCalls(),
        wizards_test::join(
            {readLogin(getUnixUser),
             {R"(UnixFS_SSH_BackupSetCredentials.setCredentialsViaKeyFile("anna", "/etc/id-ü", ***))",
              setCurrent("anna")},
             showSSH}));
    shown.verifyLogsIn({{"anna", "another one"}});
}

void CredentialsSentTest::aSudoUserIsSent() {
    Shown shown(LoginKind::Ssh);
    shown.modals.expect(QStringLiteral("sudo"), isDialog<CSSHSudoCredentials>, [](QWidget& asked) {
        QCOMPARE(fieldText(asked, "editUserName"), QString());
        type(asked, "editUserName", QStringLiteral("root"));
        type(asked, "editPassword", QString::fromLatin1(rightPassword));
        press(asked, "btnOK");
    });
    shown.driver.click("btnSudo");
    QVERIFY(shown.modals.done());
    QCOMPARE(shown.source.takeCalls(),
             wizards_test::join(
                 {{"DataSourceBrowser.getCurrentCredentials()", "BackupSetCredentials.types()",
                   "UnixFS_SSH_BackupSetCredentials.getSudoUser()",
                   R"(UnixFS_SSH_BackupSetCredentials.setSudoAs("root", ***))"},
                  wizards_test::refreshOf(LoginKind::Ssh, "demo")}));
    QCOMPARE(shown.driver.text("editSudo"), QStringLiteral("root"));
    QVERIFY(!gives(shown.driver.page(), QString::fromLatin1(rightPassword)));
}

void CredentialsSentTest::sudoIsSwitchedOff() {
    Shown shown(LoginKind::Ssh);
    shown.modals.expect(QStringLiteral("sudo"), isDialog<CSSHSudoCredentials>, [](QWidget& asked) {
        // The content of the fields is ignored.
        type(asked, "editUserName", QStringLiteral("root"));
        type(asked, "editPassword", QString::fromLatin1(rightPassword));
        press(asked, "btnNoSudo");
    });
    shown.driver.click("btnSudo");
    QVERIFY(shown.modals.done());
    const Lines calls = shown.source.takeCalls();
    QVERIFY(calls.size() > 4);
    QCOMPARE(calls.at(3), std::string(R"(UnixFS_SSH_BackupSetCredentials.setSudoAs("", ***))"));
    // The agent refuses a password without a user, so the password was empty too.
    QCOMPARE(shown.driver.text("editSudo"), QString());
}

void CredentialsSentTest::anSSHAccessIsSent() {
    Shown shown(LoginKind::Ssh);
    const auto choose = [&shown](int index, const QString& path) {
        shown.modals.expect(
            QStringLiteral("access"), isDialog<CSSHAccessType>, [=](QWidget& asked) {
                QCOMPARE(asked.windowTitle(), QStringLiteral("Select SSH Access Type"));
                QCOMPARE(child<QGroupBox>(asked, "groupOptions").title(),
                         QStringLiteral("SSH Access Options:"));
                QCOMPARE(child<QLabel>(asked, "labelInterface").text(),
                         QStringLiteral("&Interface:"));
                QCOMPARE(child<QLabel>(asked, "labelPath").text(), QStringLiteral("&Path"));
                auto& combo = child<QComboBox>(asked, "comboInterface");
                QCOMPARE(combo.itemText(0), QStringLiteral("Perl"));
                QCOMPARE(combo.itemText(1), QStringLiteral("Python"));
                QCOMPARE(combo.itemText(2), QStringLiteral("Direct Script Execution"));
                QCOMPARE(combo.count(), 3);
                combo.setCurrentIndex(index);
                type(asked, "editPath", path);
                press(asked, "btnOK");
            });
        shown.driver.click("btnSSHAccess");
        QVERIFY(shown.modals.done());
    };
    choose(1, {});
    QCOMPARE(shown.source.takeCalls(),
             wizards_test::join(
                 {{"DataSourceBrowser.getCurrentCredentials()", "BackupSetCredentials.types()",
                   "UnixFS_SSH_BackupSetCredentials.getSSHInterpreterPath()",
                   "UnixFS_SSH_BackupSetCredentials.getSSHAccessType()",
                   R"(UnixFS_SSH_BackupSetCredentials.setSSHAccessType(1, ""))"},
                  showSSH}));
    QCOMPARE(shown.driver.text("editSSHAccess"), QStringLiteral("Python"));
    choose(0, QStringLiteral("/usr/bin/perl"));
    QCOMPARE(shown.driver.text("editSSHAccess"), QStringLiteral("Perl: /usr/bin/perl"));
    choose(2, QStringLiteral("/opt/script"));
    QCOMPARE(shown.driver.text("editSSHAccess"),
             QStringLiteral("Direct Script Execution: /opt/script"));
    choose(0, {});
    QCOMPARE(shown.driver.text("editSSHAccess"), QStringLiteral("Perl"));
}

void CredentialsSentTest::aScriptWantsAPath() {
    Shown shown(LoginKind::Ssh);
    shown.modals.expect(QStringLiteral("access"), isDialog<CSSHAccessType>, [](QWidget& asked) {
        child<QComboBox>(asked, "comboInterface").setCurrentIndex(2);
        press(asked, "btnOK");
    });
    shown.modals.expectErrorBox(QStringLiteral("Cannot set ssh access type"),
                                QStringLiteral("The access method 'direct script execution' "
                                               "requires the script path to execute"));
    shown.modals.expect(
        QStringLiteral("access again"), isDialog<CSSHAccessType>, [](QWidget& asked) {
            QCOMPARE(asked.focusWidget(), &child<QWidget>(asked, "editPath"));
            // Changing the language meanwhile sets the texts.
            child<QPushButton>(asked, "btnOK").setText(QString());
            QEvent change(QEvent::LanguageChange);
            QCoreApplication::sendEvent(&asked, &change);
            QCOMPARE(child<QPushButton>(asked, "btnOK").text(), QStringLiteral("&OK"));
            QCOMPARE(child<QComboBox>(asked, "comboInterface").currentIndex(), 2);
            press(asked, "btnCancel");
        });
    shown.driver.click("btnSSHAccess");
    QVERIFY(shown.modals.done());
    QCOMPARE(shown.source.takeCalls().size(), std::size_t(4));
}

void CredentialsSentTest::anUnknownAccessStartsAsTheFirst() {
    Shown shown(LoginKind::Ssh);
    shown.source.agent.inject("getSSHAccessType", simulator::UnknownEnumValue{{}, 7});
    shown.modals.expect(QStringLiteral("access"), isDialog<CSSHAccessType>, [](QWidget& asked) {
        QCOMPARE(child<QComboBox>(asked, "comboInterface").currentIndex(), 0);
        press(asked, "btnCancel");
    });
    shown.driver.click("btnSSHAccess");
    QVERIFY(shown.modals.done());
}

void CredentialsSentTest::aCancelledDialogSendsNothing() {
    const auto cancel = [](QWidget& asked) {
        if (asked.findChild<QLineEdit*>(QStringLiteral("editPassword")))
            type(asked, "editPassword", QString::fromLatin1(rightPassword));
        press(asked, "btnCancel");
    };
    Shown shown(LoginKind::Ssh);
    shown.modals.expect(QStringLiteral("login"), isDialog<CSSHConnectAsDlg>, cancel);
    shown.driver.click("btnConnectAs");
    shown.modals.expect(QStringLiteral("sudo"), isDialog<CSSHSudoCredentials>, cancel);
    shown.driver.click("btnSudo");
    shown.modals.expect(QStringLiteral("access"), isDialog<CSSHAccessType>, cancel);
    shown.driver.click("btnSSHAccess");
    QVERIFY(shown.modals.done());
    for (const std::string& call : shown.source.takeCalls())
        QVERIFY2(call.find(".set") == std::string::npos, call.c_str());
}

void CredentialsSentTest::whatTheAgentRefusesIsShown() {
    Shown shown(LoginKind::Windows);
    shown.source.agent.inject("setCredentials", simulator::Fault{"No such user."});
    shown.modals.expect(QStringLiteral("login"), isDialog<CEnterSimpleUserPsw>, [](QWidget& asked) {
        type(asked, "editUserName", QStringLiteral("anna"));
        type(asked, "editPassword", QString::fromLatin1(rightPassword));
        press(asked, "btnOK");
    });
    shown.modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("No such user."));
    shown.driver.click("btnConnectAs");
    QCOMPARE(shown.driver.text("editConnectAs"), QStringLiteral("demo"));

    shown.source.agent.inject("getCurrentCredentials", simulator::NullResult{});
    shown.modals.expectErrorBox(QStringLiteral("Error"),
                                QStringLiteral("The agent did not return the requested object."));
    shown.driver.click("btnConnectAs");
    QVERIFY(shown.modals.done());
}

QTEST_MAIN(CredentialsSentTest)
#include "credentials_sent_test.moc"
