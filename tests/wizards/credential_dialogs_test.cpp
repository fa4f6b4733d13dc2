// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolTip>
#include <QTranslator>

#include "resources/pictures.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/wizards/credential_dialog_driver.h"
#include "wizards/enter_simple_user_psw.h"
#include "wizards/ssh_connect_as_dlg.h"
#include "wizards/ssh_sudo_credentials.h"
#include "wizards/user_name_validator.h"

using support::child;
using wizards_test::canBeConfirmed;
using wizards_test::fieldText;
using wizards_test::gives;
using wizards_test::press;
using wizards_test::rightPassword;
using wizards_test::type;

namespace {

/// A language that puts an underscore before each text.
class Underlining : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return QLatin1Char('_') + QString::fromUtf8(text);
    }
};

} // namespace

/// The dialogs without an agent.
class CredentialDialogsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { support::resetSession(); }

    void theSimpleDialogAsksForUserAndPassword();
    void aUserNameIsChecked_data();
    void aUserNameIsChecked();
    void aRefusedUserNameIsExplained();
    void theSSHDialogHasTwoPages();
    void theSSHDialogMirrorsItsFields();
    void theSudoDialogAsksForAUser();
    void theSudoDialogStartsEmptyWithoutAUser();
    void noDialogGivesAwayASecret();
    void dialogsFollowTheLanguage();
};

void CredentialDialogsTest::theSimpleDialogAsksForUserAndPassword() {
    CEnterSimpleUserPsw dialog(QStringLiteral("OFFICE\\anna"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Select Credentials"));
    QCOMPARE(child<QGroupBox>(dialog, "groupCredentials").title(), QStringLiteral("Credentials"));
    QCOMPARE(child<QLabel>(dialog, "labelUserName").text(), QStringLiteral("&User Name:"));
    QCOMPARE(child<QLabel>(dialog, "labelPassword").text(), QStringLiteral("&Password:"));
    QCOMPARE(child<QLabel>(dialog, "labelUserName").buddy(),
             &child<QLineEdit>(dialog, "editUserName"));
    QCOMPARE(child<QLabel>(dialog, "labelPassword").buddy(),
             &child<QLineEdit>(dialog, "editPassword"));
    QCOMPARE(child<QPushButton>(dialog, "btnOK").text(), QStringLiteral("&OK"));
    QCOMPARE(child<QPushButton>(dialog, "btnCancel").text(), QStringLiteral("&Cancel"));
    auto& user = child<QLineEdit>(dialog, "editUserName");
    auto& password = child<QLineEdit>(dialog, "editPassword");
    QCOMPARE(password.echoMode(), QLineEdit::Password);
    QCOMPARE(user.selectedText(), QStringLiteral("OFFICE\\anna"));
    QCOMPARE(password.selectedText().size(), 10);
    QCOMPARE(password.text(), QStringLiteral("**********"));

    QVERIFY(!canBeConfirmed(dialog));
    type(dialog, "editUserName", QStringLiteral("bernd"));
    QVERIFY(!canBeConfirmed(dialog));
    type(dialog, "editPassword", QStringLiteral("x"));
    QVERIFY(canBeConfirmed(dialog));
    QCOMPARE(dialog.user(), QStringLiteral("bernd"));
    QCOMPARE(dialog.password().text(), std::string("x"));
}

void CredentialDialogsTest::aUserNameIsChecked_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("state");
    const auto row = [](const char* title, const QString& name, QValidator::State state) {
        QTest::newRow(title) << name << static_cast<int>(state);
    };
    const QString twenty(20, QLatin1Char('u'));
    row("a name", QStringLiteral("anna"), QValidator::Acceptable);
    row("a name of this world", QString::fromUtf8("zoë müller"), QValidator::Acceptable);
    row("20 characters", twenty, QValidator::Acceptable);
    row("21 characters", twenty + QLatin1Char('u'), QValidator::Invalid);
    row("a domain", QStringLiteral("OFFICE\\anna"), QValidator::Acceptable);
    row("an empty domain", QStringLiteral("\\anna"), QValidator::Acceptable);
    row("all that is allowed", twenty + QLatin1Char('\\') + twenty, QValidator::Acceptable);
    row("a domain too long", twenty + QStringLiteral("u\\anna"), QValidator::Invalid);
    row("nothing", QString(), QValidator::Intermediate);
    row("a domain alone", QStringLiteral("OFFICE\\"), QValidator::Intermediate);
    row("two domains", QStringLiteral("A\\B\\anna"), QValidator::Invalid);
    for (const QChar c : QStringLiteral("/\"[]:|<>+=;,?*@"))
        row(QByteArray("the character ").append(c.toLatin1()).constData(),
            QStringLiteral("an") + c + QStringLiteral("na"), QValidator::Invalid);
}

void CredentialDialogsTest::aUserNameIsChecked() {
    QFETCH(QString, name);
    QFETCH(int, state);
    QLineEdit edit;
    const CUserNameValidator validator(&edit);
    int position = 0;
    QCOMPARE(static_cast<int>(validator.validate(name, position)), state);
}

void CredentialDialogsTest::aRefusedUserNameIsExplained() {
    CEnterSimpleUserPsw dialog(QStringLiteral("anna"));
    dialog.show();
    auto& edit = child<QLineEdit>(dialog, "editUserName");
    // That of an earlier test may stay for a moment.
    QToolTip::hideText();
    QTRY_COMPARE(QToolTip::text(), QString());
    edit.end(false);
    QTest::keyClicks(&edit, QStringLiteral("1"));
    QCOMPARE(QToolTip::text(), QString());
    QTest::keyClicks(&edit, QStringLiteral("@"));
    QCOMPARE(edit.text(), QStringLiteral("anna1"));
    QCOMPARE(QToolTip::text(),
             QStringLiteral("User names cannot contain these characters: \\/\"[]:|<>+=;,?*@ and "
                            "must be less than 20 characters"));
}

void CredentialDialogsTest::theSSHDialogHasTwoPages() {
    CSSHConnectAsDlg dialog(QStringLiteral("anna"));
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Select SSH Login Authentication"));
    QCOMPARE(child<QGroupBox>(dialog, "groupStyle").title(),
             QStringLiteral("Authentication Style"));
    QCOMPARE(child<QGroupBox>(dialog, "groupCredentials").title(), QStringLiteral("Credentials"));
    const std::pair<const char*, const char*> labels[] = {{"labelUserName", "&User Name:"},
                                                          {"labelPassword", "Pass&word:"},
                                                          {"labelIdentityUser", "&User Name"},
                                                          {"labelIdentity", "Identity &File:"},
                                                          {"labelPassPhrase", "P&assphrase:"}};
    for (const auto& [name, text] : labels)
        QCOMPARE(child<QLabel>(dialog, name).text(), QString::fromLatin1(text));
    QCOMPARE(child<QRadioButton>(dialog, "radioPassword").text(), QStringLiteral("&Password"));
    QCOMPARE(child<QRadioButton>(dialog, "radioIdentity").text(), QStringLiteral("&Identity File"));
    for (const char* secret : {"editPassword", "editPassPhrase"}) {
        QCOMPARE(child<QLineEdit>(dialog, secret).echoMode(), QLineEdit::Password);
        QCOMPARE(fieldText(dialog, secret), QStringLiteral("********"));
    }
    QVERIFY(!canBeConfirmed(dialog));
    QVERIFY(dialog.usesPassword());
    QVERIFY(child<QWidget>(dialog, "pagePassword").isVisible());
    press(dialog, "radioIdentity");
    QVERIFY(!dialog.usesPassword());
    QVERIFY(child<QWidget>(dialog, "pageIdentity").isVisible());
    press(dialog, "radioPassword");
    QVERIFY(child<QWidget>(dialog, "pagePassword").isVisible());
    QVERIFY(!canBeConfirmed(dialog));
}

void CredentialDialogsTest::theSSHDialogMirrorsItsFields() {
    CSSHConnectAsDlg dialog(QStringLiteral("anna"));
    QCOMPARE(fieldText(dialog, "editIdentityUser"), QStringLiteral("anna"));
    type(dialog, "editUserName", QStringLiteral("bernd"));
    QCOMPARE(fieldText(dialog, "editIdentityUser"), QStringLiteral("bernd"));
    type(dialog, "editIdentityUser", QStringLiteral("clara"));
    QCOMPARE(fieldText(dialog, "editUserName"), QStringLiteral("clara"));
    QVERIFY(!canBeConfirmed(dialog));
    type(dialog, "editPassPhrase", QStringLiteral("abc"));
    QCOMPARE(fieldText(dialog, "editPassword"), QStringLiteral("abc"));
    QVERIFY(canBeConfirmed(dialog));
    type(dialog, "editPassword", QStringLiteral("def"));
    QCOMPARE(fieldText(dialog, "editPassPhrase"), QStringLiteral("def"));
    type(dialog, "editIdentity", QStringLiteral("/id"));
    QCOMPARE(dialog.identityFile(), QStringLiteral("/id"));
}

void CredentialDialogsTest::theSudoDialogAsksForAUser() {
    CSSHSudoCredentials dialog(QStringLiteral("root"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Select 'SUDO' credentials"));
    QCOMPARE(child<QGroupBox>(dialog, "groupCredentials").title(), QStringLiteral("Credentials"));
    QCOMPARE(child<QPushButton>(dialog, "btnOK").text(), QStringLiteral("&OK"));
    QCOMPARE(child<QPushButton>(dialog, "btnCancel").text(), QStringLiteral("&Cancel"));
    QCOMPARE(child<QPushButton>(dialog, "btnNoSudo").text(), QStringLiteral("&No SUDO"));
    QCOMPARE(dialog.user(), QStringLiteral("root"));
    QCOMPARE(dialog.password().text(), std::string("********"));
    QCOMPARE(child<QLineEdit>(dialog, "editPassword").echoMode(), QLineEdit::Password);
    QVERIFY(!canBeConfirmed(dialog));
    type(dialog, "editUserName", QStringLiteral("backup"));
    QVERIFY(!canBeConfirmed(dialog));
    type(dialog, "editPassword", QStringLiteral("x"));
    QVERIFY(canBeConfirmed(dialog));
    QVERIFY(!dialog.noSudo());
    press(dialog, "btnNoSudo");
    QVERIFY(dialog.noSudo());
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
}

void CredentialDialogsTest::theSudoDialogStartsEmptyWithoutAUser() {
    CSSHSudoCredentials dialog({});
    QCOMPARE(dialog.user(), QString());
    QCOMPARE(dialog.password().text(), std::string());
    QVERIFY(!canBeConfirmed(dialog));
}

void CredentialDialogsTest::noDialogGivesAwayASecret() {
    const QString secret = QString::fromLatin1(rightPassword);
    CEnterSimpleUserPsw simple(QStringLiteral("anna"));
    CSSHConnectAsDlg ssh(QStringLiteral("anna"));
    CSSHSudoCredentials sudo(QStringLiteral("root"));
    QWidget* dialogs[] = {&simple, &ssh, &sudo};
    for (QWidget* dialog : dialogs) {
        dialog->show();
        QVERIFY(!gives(*dialog, secret));
        // A text that isn't hidden is found.
        type(*dialog, "editUserName", secret);
        QVERIFY(gives(*dialog, secret));
        type(*dialog, "editUserName", QStringLiteral("anna"));
        type(*dialog, "editPassword", secret);
        QCOMPARE(fieldText(*dialog, "editPassword"), secret);
        QVERIFY(!gives(*dialog, secret));
    }
}

void CredentialDialogsTest::dialogsFollowTheLanguage() {
    CEnterSimpleUserPsw simple(QStringLiteral("anna"));
    CSSHConnectAsDlg ssh(QStringLiteral("anna"));
    CSSHSudoCredentials sudo(QStringLiteral("anna"));
    QWidget* const dialogs[] = {&simple, &ssh, &sudo};
    for (QWidget* dialog : dialogs)
        type(*dialog, "editPassword", QString::fromLatin1(rightPassword));
    Underlining language;
    QCoreApplication::installTranslator(&language);
    for (QWidget* dialog : dialogs) {
        QTRY_VERIFY(dialog->windowTitle().startsWith(QLatin1Char('_')));
        for (const QLabel* label : dialog->findChildren<QLabel*>())
            QVERIFY2(label->text().startsWith(QLatin1Char('_')), qPrintable(label->text()));
        for (const QAbstractButton* button : dialog->findChildren<QAbstractButton*>())
            QVERIFY2(button->text().startsWith(QLatin1Char('_')), qPrintable(button->text()));
        QCOMPARE(fieldText(*dialog, "editUserName"), QStringLiteral("anna"));
        QCOMPARE(fieldText(*dialog, "editPassword"), QString::fromLatin1(rightPassword));
    }
    QCoreApplication::removeTranslator(&language);
}

QTEST_MAIN(CredentialDialogsTest)
#include "credential_dialogs_test.moc"
