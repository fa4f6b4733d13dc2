// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The client's half of secrets_test: a process that opens one dialog, types a secret into it
// without ever holding the whole secret itself, closes the dialog, and waits for inspection.
//
//     secret_dialogs DIALOG AGENT-PORT SEED [FILE]
//
// It prints "typed" and "closed", and waits for a line of input after each of them.
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>

#include <QApplication>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWizard>

#include "app/login_check.h"
#include "config/ad_account_dlg.h"
#include "config/init_clnt_cfg_dlg.h"
#include "config/tfa_code_dlg.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "tests/support/derived_secret.h"
#include "tests/support/security_operations_override.h"
#include "wizards/enter_simple_user_psw.h"
#include "wizards/select_data_source_page.h"
#include "wizards/ssh_connect_as_dlg.h"
#include "wizards/ssh_sudo_credentials.h"

namespace {

std::uint32_t seed = 0;

void say(const char* word) {
    std::cout << word << std::endl;
    std::string line;
    std::getline(std::cin, line);
}

/// Waits too, so that the memory can be searched.
[[noreturn]] void giveUp(const QString& why) {
    say(qPrintable(why));
    std::_Exit(1);
}

template <class Widget>
Widget& child(QWidget& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
    if (!found)
        giveUp(QStringLiteral("no such widget: ") + QString::fromLatin1(name));
    return *found;
}

/// Types key by key, replacing the content of the field.
void typeSecret(QWidget& dialog, const char* name) {
    auto& field = child<QLineEdit>(dialog, name);
    field.setFocus();
    field.selectAll();
    for (int place = 0; place < support::derivedSecretLength; ++place) {
        const QString text(QLatin1Char(support::derivedCharacter(seed, place)));
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, text);
        QApplication::sendEvent(&field, &key);
    }
}

void press(QWidget& dialog, const char* name) {
    child<QPushButton>(dialog, name).click();
}

/// Acts once on the next modal window of that class.
template <class Dialog, class Act>
void whenOpen(Act act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            act(*dialog);
        }
    });
    timer->start(5);
}

/// Confirms each message box. An error message ends the program.
void confirmMessages() {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        const bool isError = box && box->icon() == QMessageBox::Critical;
        // The only error that a test provokes: the program continues after it.
        if (isError && box->text().endsWith(QStringLiteral(" has a line of more than 64 KiB.")))
            say(qPrintable(box->text()));
        else if (isError)
            giveUp(box->text());
        if (box)
            box->accept();
    });
    timer->start(5);
}

void logIn(const QString& address) {
    session::connectToAgent(address.toStdString(), "demo", "demo", 1);
}

void login(const QString& address) {
    LoginCheck dialog;
    dialog.show();
    child<QLineEdit>(dialog, "lineEditUserName").setText(QStringLiteral("demo:") + address);
    typeSecret(dialog, "lineEditPassword");
    say("typed");
    dialog.OnLogin();
    if (!session::connectedToAgent())
        giveUp(QStringLiteral("not logged in"));
}

/// Fills in the fields, and ends the dialog with that button.
template <class Dialog>
auto fillAndPress(std::initializer_list<const char*> fields, const char* button) {
    return [fields = std::vector<const char*>(fields), button](Dialog& dialog) {
        for (const char* field : fields)
            typeSecret(dialog, field);
        say("typed");
        press(dialog, button);
    };
}

/// Enters a login on the data source page, which the agent then checks.
void tryLogin(const std::function<void(SelectDataSourcePage&)>& enter) {
    QWizard wizard;
    auto page = std::make_unique<SelectDataSourcePage>([](const std::string&) { return true; });
    SelectDataSourcePage& source = *page;
    wizard.addPage(page.release());
    wizard.show();
    enter(source);
    if (!source.validatePage())
        giveUp(QStringLiteral("the agent refuses the login"));
}

/// Uses a login entered in the dialog "Connect As".
template <class Dialog>
void connectAs(const std::function<void(Dialog&)>& act) {
    tryLogin([&](SelectDataSourcePage& source) {
        whenOpen<Dialog>(act);
        source.OnSelectConnectAs();
    });
}

void sshPassword() {
    connectAs<CSSHConnectAsDlg>(fillAndPress<CSSHConnectAsDlg>({"editPassword"}, "btnOK"));
}

void sshIdentity() {
    connectAs<CSSHConnectAsDlg>([](CSSHConnectAsDlg& dialog) {
        dialog.findChild<QAbstractButton*>(QStringLiteral("radioIdentity"))->click();
        child<QLineEdit>(dialog, "editIdentity").setText(QStringLiteral("/home/anna/.ssh/id"));
        typeSecret(dialog, "editPassPhrase");
        say("typed");
        press(dialog, "btnOK");
    });
}

/// The agent asks for it only after a login of its own.
void sudo(const char* button) {
    tryLogin([button](SelectDataSourcePage& source) {
        whenOpen<CSSHConnectAsDlg>([](CSSHConnectAsDlg& dialog) {
            child<QLineEdit>(dialog, "editUserName").setText(QStringLiteral("demo"));
            child<QLineEdit>(dialog, "editPassword").setText(QStringLiteral("demo"));
            press(dialog, "btnOK");
        });
        source.OnSelectConnectAs();
        whenOpen<CSSHSudoCredentials>([button](CSSHSudoCredentials& dialog) {
            child<QLineEdit>(dialog, "editUserName").setText(QStringLiteral("backup"));
            typeSecret(dialog, "editPassword");
            say("typed");
            press(dialog, button);
        });
        source.OnSelectSudo();
    });
}

void simple() {
    connectAs<CEnterSimpleUserPsw>(fillAndPress<CEnterSimpleUserPsw>({"editPassword"}, "btnOK"));
}

/// Waits until the dialog has read its content from the agent.
void waitForText(QLineEdit& field) {
    while (field.text().isEmpty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
}

void account(std::initializer_list<const char*> fields, const char* button) {
    ADAccountDlg dialog;
    dialog.show();
    waitForText(child<QLineEdit>(dialog, "editUser"));
    fillAndPress<ADAccountDlg>(fields, button)(dialog);
}

void registration(std::initializer_list<const char*> fields, const char* button) {
    InitClntCfgDlg dialog(true);
    dialog.show();
    fillAndPress<InitClntCfgDlg>(fields, button)(dialog);
}

/// The agent sends the key, then refuses the next call.
void unreadRegistration() {
    try {
        InitClntCfgDlg dialog(true);
    } catch (const std::exception&) {
        return say("typed");
    }
    giveUp(QStringLiteral("the agent refuses nothing"));
}

void registrationFile(const QString& path, const char* button) {
    InitClntCfgDlg dialog(true);
    dialog.show();
    whenOpen<QFileDialog>([path](QFileDialog& chooser) {
        child<QLineEdit>(chooser, "fileNameEdit").setText(path);
        static_cast<QDialog&>(chooser).accept();
    });
    press(dialog, "btnBrowse");
    if (child<QLineEdit>(dialog, "txtFieldCustomer").text() != QStringLiteral("Read to the end"))
        giveUp(QStringLiteral("the file isn't read to its end"));
    say("typed");
    press(dialog, button);
}

void code() {
    TFACodeDlg dialog(2, nullptr);
    dialog.show();
    waitForText(child<QLineEdit>(dialog, "editEmail"));
    typeSecret(dialog, "editCode");
    say("typed");
    press(dialog, "btnValidate");
    if (dialog.result() != QDialog::Accepted)
        giveUp(QStringLiteral("the agent refuses the code"));
}

/// Runs the function for that dialog, in a session.
void open(const QString& dialog, const QString& file) {
    const std::map<QString, std::function<void()>> dialogs = {
        {QStringLiteral("simple"), simple},
        {QStringLiteral("sshPassword"), sshPassword},
        {QStringLiteral("sshIdentity"), sshIdentity},
        {QStringLiteral("sudo"), [] { sudo("btnOK"); }},
        {QStringLiteral("noSudo"), [] { sudo("btnNoSudo"); }},
        {QStringLiteral("accountTyped"),
         [] {
             account({"editPassword", "editConfirm"}, "btnSave");
         }},
        {QStringLiteral("accountValidated"),
         [] {
             account({"editPassword", "editConfirm"}, "btnValidate");
         }},
        {QStringLiteral("accountShown"), [] { account({}, "btnCancel"); }},
        {QStringLiteral("privateKeyTyped"),
         [] {
             registration({"txtFieldPrivateKey", "txtFieldPrivateKeyConfirm"}, "btnSave");
         }},
        {QStringLiteral("accountKeyTyped"),
         [] {
             registration({"txtFieldAccountKey", "txtFieldAccountKeyConfirm"}, "btnSave");
         }},
        {QStringLiteral("keysShown"), [] { registration({}, "btnCancel"); }},
        {QStringLiteral("longKeysKept"), [] { registration({}, "btnSave"); }},
        {QStringLiteral("keysUnread"), unreadRegistration},
        {QStringLiteral("keyFromFile"), [&file] { registrationFile(file, "btnSave"); }},
        {QStringLiteral("longKeyFromFile"), [&file] { registrationFile(file, "btnSave"); }},
        {QStringLiteral("keyFromFileCancelled"), [&file] { registrationFile(file, "btnCancel"); }},
        {QStringLiteral("keyReplacedFromFile"), [&file] { registrationFile(file, "btnCancel"); }},
        {QStringLiteral("code"), code}};
    const auto known = dialogs.find(dialog);
    if (known == dialogs.end())
        giveUp(QStringLiteral("no such dialog"));
    known->second();
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4)
        return 2;
    resources::initPictures();
    // Otherwise a system may offer a login without a password, and disable the field.
    support::leaveOutSystemSecurity();
    seed = arguments[3].toUInt();
    confirmMessages();
    try {
        const QString address = QStringLiteral("127.0.0.1:") + arguments[2];
        if (arguments[1] == QStringLiteral("login")) {
            login(address);
        } else {
            logIn(address);
            open(arguments[1], arguments.value(4));
        }
    } catch (const std::exception& failure) {
        giveUp(QString::fromUtf8(failure.what()));
    }
    QApplication::processEvents();
    say("closed");
    session::disconnectFromAgent();
}
