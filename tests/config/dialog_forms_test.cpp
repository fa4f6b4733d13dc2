// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QRadioButton>
#include <QTimeEdit>

#include "config/ad_account_dlg.h"
#include "config/recovery_dlg.h"
#include "config/register_dlg.h"
#include "tests/config/registration_fixture.h"
#include "tests/support/gui_exposed_text.h"
#include "tests/support/gui_form_texts.h"

using namespace steps;
using simulator::World;
using support::child;
using support::compareBuddies;
using support::compareIcon;
using support::compareTexts;
using support::entriesOf;
using support::isDialog;

namespace {

QStringList words(const char* text) {
    return q(text).split(QLatin1Char(';'));
}

/// Records log messages during its lifetime.
class LogKeeper {
public:
    LogKeeper() { previous_ = qInstallMessageHandler(keep); }
    ~LogKeeper() { qInstallMessageHandler(previous_); }

    static QStringList lines;

private:
    static void keep(QtMsgType, const QMessageLogContext&, const QString& line) { lines << line; }

    QtMessageHandler previous_;
};

QStringList LogKeeper::lines;

} // namespace

/// The content of the dialogs about the agent before any input, and what they keep secret.
class DialogFormsTest : public QObject, private RegistrationFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { test_.end(); }

    void eachCommandOpensItsDialog_data();
    void eachCommandOpensItsDialog();
    void theRegistrationsTexts();
    void theRegistrationsFields();
    void theRegistrationsChoices();
    void registeringAgain();
    void theAdminTimes();
    void theAccount();
    void theRecovery();
    void tabGoesThroughTheFields_data();
    void tabGoesThroughTheFields();

    void keysAreNeverAnnounced();
    void passwordsAreNeverAnnounced();

private:
    /// Opens the dialog of the slot, inspects it, and closes it.
    template <class Dialog>
    void look(const char* slot, const support::ModalDriver::Act& act) {
        modals().expect(q(slot), isDialog<Dialog>, [act](QWidget& dialog) {
            act(dialog);
            static_cast<QDialog&>(dialog).reject();
        });
        test_.run(slot);
    }
    void lookAtRegistration(const support::ModalDriver::Act& act) {
        look<InitClntCfgDlg>("on_actionRegistration_Info_triggered", act);
    }
    /// Inspects the account dialog once it has read the account.
    void lookAtAccount(const support::ModalDriver::Act& act) {
        look<ADAccountDlg>("on_actionLDAP_Account_triggered", [act](QWidget& dialog) {
            QTRY_VERIFY(!text(dialog, "editUser").isEmpty());
            act(dialog);
        });
    }
    void verifyUnannounced(QWidget& dialog, std::initializer_list<const char*> secrets) {
        for (const char* secret : secrets) {
            QVERIFY(!support::gives(dialog, q(secret)));
            QVERIFY(!support::gives(test_.driver->window(), q(secret)));
        }
    }
};

void DialogFormsTest::eachCommandOpensItsDialog_data() {
    QTest::addColumn<QString>("dialog");
    QTest::newRow("actionLDAP_Account") << q("ADAccountDlg");
    QTest::newRow("actionAdmin") << q("QWizard");
    QTest::newRow("action_Recovery") << q("RecoveryDlg");
    QTest::newRow("actionRegister") << q("RegisterDlg");
    QTest::newRow("actionRegistration_Info") << q("InitClntCfgDlg");
}

void DialogFormsTest::eachCommandOpensItsDialog() {
    QFETCH(QString, dialog);
    modals().expect(
        dialog,
        [dialog](QWidget& widget) {
            return QString::fromLatin1(widget.metaObject()->className()) == dialog;
        },
        [](QWidget& widget) { static_cast<QDialog&>(widget).reject(); });
    test_.driver->trigger(QTest::currentDataTag());
    QVERIFY(modals().done());
}

void DialogFormsTest::theRegistrationsTexts() {
    lookAtRegistration([](QWidget& dialog) {
        compareTexts(dialog,
                     {{"grpCustomerInfo", "Customer Registration Info"},
                      {"labCustomer", "Customer &Name"},
                      {"btnBrowse", "&Browse"},
                      {"labAccountNum", "Acc&ount #"},
                      {"labClientNum", "Tarn-C&lient #"},
                      {"labSystemPort", "Tarn-System Operation Port #"},
                      {"labSystemPortNum", "4401"},
                      {"grpSystemInfo", "Tarn-System Info"},
                      {"labAddress", "Addr&ess"},
                      {"btnAdd", "&Add"},
                      {"btnRemove", "&Remove"},
                      {"grpEncryptionKeys", "Encryption Keys"},
                      {"grpPrivateKey", "Private Key"},
                      {"labPrivateKeyType", "&Type"},
                      {"labPrivateKey", "&Key"},
                      {"labPrivateKeyConfirm", "Con&firm"},
                      {"grpAccountKey", "Account Key"},
                      {"labAccountKeyType", "Ty&pe"},
                      {"labAccountKey", "Ke&y"},
                      {"labAccountKeyConfirm", "C&onfirm"},
                      {"chkForwardKey", "Allo&w encryption forwarding to Tarn-System"},
                      {"labWarning", "<font color=#FF0000>WARNING:</font>"},
                      {"labWarningMsg", "<font color=#FF0000>IF THESE ENCRYPTION KEYS ARE LOST, "
                                        "NOBODY CAN EVER RESTORE YOUR DATA!</font>"},
                      {"grpUserInfo", "User Info"},
                      {"labCountry", "Co&untry"},
                      {"labEmployees", "Nu&mber of Employees"},
                      {"labIndustry", "Industry &Verticals"},
                      {"chkRegister", "Connect to &Tarn-System and verify information"},
                      {"btnSave", "&Save"},
                      {"btnCancel", "&Cancel"}});
        QVERIFY(child<QLabel>(dialog, "labWarningMsg").wordWrap());
        compareIcon(dialog, "btnSave", ":/button/ok");
        compareIcon(dialog, "btnCancel", ":/button/cancel");
    });
}

void DialogFormsTest::theRegistrationsFields() {
    lookAtRegistration([](QWidget& dialog) {
        compareBuddies(dialog, {{"labCustomer", "txtFieldCustomer"},
                                {"labAccountNum", "txtFieldAccountNum"},
                                {"labClientNum", "txtFieldClientNum"},
                                {"labAddress", "txtFieldInputAddress"},
                                {"labPrivateKeyType", "cmbPrivateKeyType"},
                                {"labPrivateKey", "txtFieldPrivateKey"},
                                {"labPrivateKeyConfirm", "txtFieldPrivateKeyConfirm"},
                                {"labAccountKeyType", "cmbAccountKeyType"},
                                {"labAccountKey", "txtFieldAccountKey"},
                                {"labAccountKeyConfirm", "txtFieldAccountKeyConfirm"},
                                {"labCountry", "cmbCountry"},
                                {"labEmployees", "cmbEmployees"},
                                {"labIndustry", "cmbIndustry"}});
        for (const auto& [name, limit] : {std::pair("txtFieldCustomer", 50),
                                          {"txtFieldAccountNum", 10},
                                          {"txtFieldClientNum", 12}})
            QCOMPARE(child<QLineEdit>(dialog, name).maxLength(), limit);
        for (const char* name : keyFields)
            QCOMPARE(child<QLineEdit>(dialog, name).echoMode(), QLineEdit::Password);
    });
}

void DialogFormsTest::theRegistrationsChoices() {
    lookAtRegistration([](QWidget& dialog) {
        const auto compare = [&dialog](const char* combo, const char* entries) {
            QCOMPARE(entriesOf(child<QComboBox>(dialog, combo)), words(entries));
        };
        compare("cmbPrivateKeyType", "DES;AES128;AES192;AES256");
        compare("cmbAccountKeyType", "NONE;DES;AES128;AES192;AES256");
        compare("cmbEmployees", "1 - 50;51 - 200;201 - 500;501 - 1,000;1,001 - 5,000;"
                                "5,001 - 10,000;More than 10,000");
        compare("cmbIndustry", "Manufacturing and energy;Retail and wholesale trade;"
                               "Utilities and telecommunications;Computer - hardware, software;"
                               "Business services and construction;"
                               "Media, entertainment, and leisure;"
                               "Financial services and insurance;Public sector and healthcare");
    });
}

void DialogFormsTest::registeringAgain() {
    look<RegisterDlg>("on_actionRegister_triggered", [](QWidget& dialog) {
        compareTexts(dialog,
                     {{"groupRegInfo", "Registration Info"},
                      {"labCustomerName", "Customer Name:"},
                      {"labAccountNum", "Account Number:"},
                      {"labClientNum", "Tarn-Client Number:"},
                      {"btnClose", "&Close"},
                      {"groupRegister", "Re-Register"},
                      {"labNote", "NOTE: Tarn-Client registration ensures secure access to the "
                                  "Tarn-System. You must coordinate this activity with your "
                                  "Service Provider."},
                      {"btnRegister", "&Re-Register"},
                      {"labStatus", ""}});
        compareIcon(dialog, "btnClose", ":/button/ok");
        compareIcon(dialog, "btnRegister", ":/tree/selected_file");
    });
}

void DialogFormsTest::theAdminTimes() {
    look<QWizard>("on_actionAdmin_triggered", [](QWidget& dialog) {
        auto& wizard = static_cast<QWizard&>(dialog);
        QCOMPARE(wizard.pageIds().size(), 1);
        QCOMPARE(wizard.currentPage()->title(), q("Admin Configuration"));
        QCOMPARE(wizard.currentPage()->subTitle(),
                 q("Tarn-Client daily/weekly admin configuration "));
        support::compareWindowIcon(wizard);
        QCOMPARE(wizard.pixmap(QWizard::WatermarkPixmap).toImage(),
                 QPixmap(q(":/images/wizard_retention")).toImage());
        QCOMPARE(wizard.button(QWizard::FinishButton)->text(), q("&Finish"));
        QCOMPARE(wizard.button(QWizard::CancelButton)->text(), q("&Cancel"));
        compareTexts(wizard, {{"groupAdmin", "Admin Process"},
                              {"checkDaily", "&Daily"},
                              {"labelDailyStartAt", "start at:"},
                              {"btnDaily", "&Run Now"},
                              {"checkWeekly", "&Weekly"},
                              {"labelWeeklyStartAt", "start at:"},
                              {"labelEvery", "Every"},
                              {"btnWeekly", "R&un Now"}});
        for (const char* name : {"timeDaily", "timeWeekly"})
            QCOMPARE(child<QTimeEdit>(wizard, name).displayFormat(), q("hh:mm"));
        QCOMPARE(entriesOf(child<QComboBox>(wizard, "comboDays")),
                 words("Sunday;Monday;Tuesday;Wednesday;Thursday;Friday;Saturday"));
    });
}

void DialogFormsTest::theAccount() {
    lookAtAccount([](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Modify LDAP User Account"));
        compareTexts(dialog, {{"groupUser", "LDAP user settings"},
                              {"labelUser", "&User Account:"},
                              {"labelPassword", "&Password:"},
                              {"labelConfirm", "Con&firm:"},
                              {"labelDomain", "&Domain:"},
                              {"btnValidate", "&Validate Now..."},
                              {"btnSave", "&Save"},
                              {"btnCancel", "&Cancel"}});
        compareBuddies(dialog, {{"labelUser", "editUser"},
                                {"labelPassword", "editPassword"},
                                {"labelConfirm", "editConfirm"},
                                {"labelDomain", "editDomain"}});
        for (const char* name : {"editPassword", "editConfirm"})
            QCOMPARE(child<QLineEdit>(dialog, name).echoMode(), QLineEdit::Password);
    });
}

void DialogFormsTest::theRecovery() {
    look<RecoveryDlg>("on_action_Recovery_triggered", [](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Recovery"));
        compareTexts(dialog,
                     {{"groupRecovery", "Recovery"},
                      {"radioDatabase", "R&ecover Backup History Database from the cloud"}});
        const auto& box = child<QDialogButtonBox>(dialog, "buttonBox");
        for (const auto& [which, picture] : {std::pair(QDialogButtonBox::Ok, ":/button/ok"),
                                             {QDialogButtonBox::Cancel, ":/button/cancel"}})
            QCOMPARE(box.button(which)->icon().pixmap(16).toImage(),
                     QIcon(q(picture)).pixmap(16).toImage());
    });
}

void DialogFormsTest::tabGoesThroughTheFields_data() {
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("order");
    QTest::newRow("registration")
        << q("on_actionRegistration_Info_triggered")
        << q("txtFieldCustomer;txtFieldAccountNum;txtFieldClientNum;btnBrowse;"
             "txtFieldInputAddress;btnAdd;listBoxAddress;btnRemove;cmbPrivateKeyType;"
             "txtFieldPrivateKey;txtFieldPrivateKeyConfirm;cmbAccountKeyType;txtFieldAccountKey;"
             "txtFieldAccountKeyConfirm;chkForwardKey;cmbCountry;cmbEmployees;cmbIndustry;"
             "chkRegister;btnSave;btnCancel");
    QTest::newRow("account") << q("on_actionLDAP_Account_triggered")
                             << q("editUser;editPassword;editConfirm;editDomain;btnSave;btnCancel;"
                                  "btnValidate");
    QTest::newRow("times") << q("on_actionAdmin_triggered")
                           << q("checkDaily;timeDaily;btnDaily;checkWeekly;timeWeekly;comboDays;"
                                "btnWeekly");
    QTest::newRow("registering again")
        << q("on_actionRegister_triggered") << q("btnRegister;btnClose");
    QTest::newRow("recovery") << q("on_action_Recovery_triggered")
                              << q("radioOrphanedSet;radioDatabase");
}

void DialogFormsTest::tabGoesThroughTheFields() {
    QFETCH(QString, slot);
    QFETCH(QString, order);
    const QStringList names = order.split(QLatin1Char(';'));
    look<QDialog>(qPrintable(slot), [&names](QWidget& dialog) {
        QCoreApplication::processEvents();
        auto* const start = dialog.findChild<QWidget*>(names.first());
        QVERIFY(start);
        QStringList found;
        QWidget* widget = start;
        do {
            if (names.contains(widget->objectName()))
                found << widget->objectName();
            widget = widget->nextInFocusChain();
        } while (widget != start);
        QCOMPARE(found, names);
    });
}

void DialogFormsTest::keysAreNeverAnnounced() {
    LogKeeper log;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder_.path()));
    const auto verify = [this](QWidget& dialog) {
        verifyUnannounced(dialog, {"quick brown", "lazy dog", "typed key", "file key"});
    };
    expectDialog([&](QWidget& dialog) {
        verify(dialog);
        import(dialog, "a.cri", "PrivateEncKey=the file key\nAccEncKey=the file key\n");
        verify(dialog);
        fill(dialog);
        for (const char* name : keyFields)
            type(dialog, name, "the typed key");
        verify(dialog);
        modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
        test_.agent->inject("setTarnCRegistrationInfo", simulator::Fault{"Out of order."});
        press(dialog, "btnSave");
        verify(dialog);
        expectSaved();
        press(dialog, "btnSave");
        for (const char* name : keyFields)
            QCOMPARE(text(dialog, name), QString());
    });
    firstRun();
    look<RegisterDlg>("on_actionRegister_triggered", verify);
    look<RecoveryDlg>("on_action_Recovery_triggered", verify);
    QCOMPARE(QDir(folder_.path()).entryList(QDir::Files), QStringList(q("a.cri")));
    QVERIFY(QDir::setCurrent(before));
    for (const char* secret : {"quick brown", "lazy dog", "typed key", "file key"})
        QCOMPARE(LogKeeper::lines.filter(q(secret)), QStringList());
}

void DialogFormsTest::passwordsAreNeverAnnounced() {
    LogKeeper log;
    lookAtAccount([this](QWidget& dialog) {
        verifyUnannounced(dialog, {"correct horse"});
        for (const char* name : {"editPassword", "editConfirm"})
            type(dialog, name, "a typed password");
        verifyUnannounced(dialog, {"correct horse", "a typed password"});
        test_.agent->inject("setADUserInfo", simulator::Fault{"Out of order."});
        modals().expectErrorBox(q("LDAP User Validation Error"), q("Out of order."));
        press(dialog, "btnValidate");
        verifyUnannounced(dialog, {"a typed password"});
    });
    for (const char* secret : {"correct horse", "a typed password"})
        QCOMPARE(LogKeeper::lines.filter(q(secret)), QStringList());
}

QTEST_MAIN(DialogFormsTest)
#include "dialog_forms_test.moc"
