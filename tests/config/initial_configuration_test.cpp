// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QListWidget>
#include <QTemporaryDir>

#include "config/init_clnt_cfg_dlg.h"
#include "resources/pictures.h"
#include "session/process_values.h"
#include "simulator/world/world.h"
#include "tests/config/registration_steps.h"

using namespace steps;
using hessiancln::KeyEncryptionType;
using simulator::World;
using support::callsOf;
using support::child;
using support::isDialog;
using support::ModalDriver;

/// The dialog for the registration of the agent, at the first run and later.
class InitialConfigurationTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { test_.start(); }
    void cleanup() { test_.end(); }

    void whatTheAgentKnowsIsShown();
    void savingSendsIt();
    void theAccountKeyIsSetOnce_data();
    void theAccountKeyIsSetOnce();
    void anOldCipherIsSentByItsNewNumber();
    void aCustomerThatIsKeptNowhereIsNotSent();
    void eachChoiceHasItsCode();
    void eachCheckIsMade_data();
    void eachCheckIsMade();
    void addressesAreAddedAndRemoved();
    void aChangeOfTypeEmptiesTheKey();
    void keysStayHiddenAndGo();
    void aFaultAtSavingLeavesItOpen_data();
    void aFaultAtSavingLeavesItOpen();
    void noDialogOpensOnAFault();

    void theFirstRunIsSaved();
    void theFirstRunRegistersAndStartsTheDailyAdmin();
    void cancellingTheFirstRunDisconnects();
    void aNewAgentAsksAtTheLogin();
    void anAgentWithoutCustomersDoesntAsk();
    void aFaultAtTheFirstRunDisconnects_data();
    void aFaultAtTheFirstRunDisconnects();

    void aFileFillsTheFields();
    void aKeyAheadOfItsTypeIsLost();
    void noneIsNoTypeOfAPrivateKey();
    void aFileThatIsNoneChangesNothing();

private:
    ModalDriver& modals() { return *test_.modals; }
    void expectDialog(const ModalDriver::Act& act) {
        modals().expect(q("registration"), isDialog<InitClntCfgDlg>, act);
    }
    void expectSaved() {
        expectNews(modals(), "Configuration",
                   "Tarn-Client Registration Information is saved successfully.");
    }
    void modify() { test_.run("on_actionRegistration_Info_triggered"); }
    /// The agent is found to know nothing of its customer.
    void firstRun();
    void compareCalls(const Calls& expected) { QCOMPARE(callsOf(*test_.agent), expected); }
    void change(const std::function<void(World&)>& visit) { test_.agent->withWorld(visit); }
    /// Presses the button for a file, and chooses one of this name and with these bytes.
    void import(QWidget& dialog, const char* name, const QByteArray& bytes, bool remove = false);

    support::WizardTest test_;
    QTemporaryDir folder_;
};

void InitialConfigurationTest::firstRun() {
    change([](World& world) { world.customer = {}; });
    test_.agent->clearCallLog();
    test_.driver->window().checkInitialConfiguration();
    QVERIFY(modals().done());
}

void InitialConfigurationTest::whatTheAgentKnowsIsShown() {
    expectDialog([this](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Modify Tarn-Client Configuration"));
        QCOMPARE(dialog.parentWidget(), &test_.driver->window());
        QVERIFY(!dialog.windowIcon().isNull());
        QCOMPARE(text(dialog, "txtFieldCustomer"), q("Müller & Söhne GmbH"));
        QCOMPARE(text(dialog, "txtFieldAccountNum"), q("OFFICE-401"));
        QCOMPARE(text(dialog, "txtFieldClientNum"), q("A4C100931700"));
        QCOMPARE(addresses(dialog), q("vault1.example.net vault2.example.net"));
        for (const char* combo : {"cmbPrivateKeyType", "cmbAccountKeyType"})
            QCOMPARE(chosen(dialog, combo), q("AES256"));
        for (const char* key : {"txtFieldPrivateKey", "txtFieldPrivateKeyConfirm"})
            QCOMPARE(text(dialog, key), q("the quick brown fox"));
        for (const char* key : {"txtFieldAccountKey", "txtFieldAccountKeyConfirm"})
            QCOMPARE(text(dialog, key), q("jumps over the lazy dog"));
        QVERIFY(child<QCheckBox>(dialog, "chkForwardKey").isChecked());
        QCOMPARE(chosen(dialog, "cmbCountry"), q("Germany"));
        QCOMPARE(chosen(dialog, "cmbEmployees"), q("1 - 50"));
        QCOMPARE(chosen(dialog, "cmbIndustry"), q("Computer - hardware, software"));
        for (const char* group : {"grpPrivateKey", "grpAccountKey", "grpUserInfo"})
            QVERIFY2(!isEnabled(dialog, group), group);
        QVERIFY(!child<QCheckBox>(dialog, "chkRegister").isChecked());
        press(dialog, "btnCancel");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), int(InitClntCfgDlg::cancelled));
    });
    modify();
    compareCalls(kRead);
}

void InitialConfigurationTest::savingSendsIt() {
    expectDialog([this](QWidget& dialog) {
        type(dialog, "txtFieldCustomer", "  Ada & Co ");
        type(dialog, "txtFieldAccountNum", " ab-1 ");
        type(dialog, "txtFieldClientNum", "a4c10093170z");
        expectSaved();
        press(dialog, "btnSave");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), int(InitClntCfgDlg::saved));
        QCOMPARE(text(dialog, "txtFieldClientNum"), q("A4C10093170Z"));
    });
    modify();
    compareCalls(kRead + kManager +
                 sent("customer_name=\"Ada & Co\", account_num=\"AB-1\", "
                      "client_num=\"A4C10093170Z\", private_key_enc=7, account_key_enc=7"));
    change([](World& world) {
        QCOMPARE(q(world.registration.private_key.c_str()), q("the quick brown fox"));
        QCOMPARE(q(world.registration.account_key.c_str()), q("jumps over the lazy dog"));
    });
}

void InitialConfigurationTest::theAccountKeyIsSetOnce_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("open");
    QTest::newRow("set") << q("key") << 5 << false;
    QTest::newRow("empty") << q("") << 5 << true;
    QTest::newRow("of no type") << q("key") << 0 << true;
    QTest::newRow("of an unknown type") << q("key") << 99 << true;
}

void InitialConfigurationTest::theAccountKeyIsSetOnce() {
    QFETCH(QString, key);
    QFETCH(int, type);
    QFETCH(bool, open);
    change([&](World& world) {
        world.registration.account_key = key.toStdString();
        world.registration.account_key_enc = KeyEncryptionType(type);
    });
    expectDialog([open](QWidget& dialog) {
        QCOMPARE(isEnabled(dialog, "grpAccountKey"), open);
        QVERIFY(!isEnabled(dialog, "grpPrivateKey"));
        press(dialog, "btnCancel");
    });
    modify();
}

void InitialConfigurationTest::anOldCipherIsSentByItsNewNumber() {
    change([](World& world) { world.registration.private_key_enc = KeyEncryptionType(2); });
    expectDialog([this](QWidget& dialog) {
        QCOMPARE(chosen(dialog, "cmbPrivateKeyType"), q("AES128"));
        expectSaved();
        press(dialog, "btnSave");
    });
    modify();
    compareCalls(kRead + kManager + sent(kKnown + ", private_key_enc=5, account_key_enc=7"));
}

void InitialConfigurationTest::aCustomerThatIsKeptNowhereIsNotSent() {
    change([](World& world) { world.configuration.keepsCustomer = false; });
    expectDialog([this](QWidget& dialog) {
        QVERIFY(isEnabled(dialog, "grpUserInfo"));
        chooseUserInfo(dialog);
        expectSaved();
        press(dialog, "btnSave");
    });
    modify();
    Calls read = kRead;
    read.pop_back();
    compareCalls(read + kManager + sent(kKnown + ", private_key_enc=7, account_key_enc=7") +
                 Calls{"ClientConfiguration.getUserInfoConfiguration()"});
}

void InitialConfigurationTest::eachChoiceHasItsCode() {
    expectDialog([](QWidget& dialog) {
        auto& countries = child<QComboBox>(dialog, "cmbCountry");
        QCOMPARE(countries.count(), 249);
        QCOMPARE(countries.itemData(countries.findText(q("Åland Islands"))).toInt(), 248);
        QCOMPARE(countries.itemText(0), q("Afghanistan"));
        QCOMPARE(countries.itemText(248), q("Zimbabwe"));
        for (const auto& [name, count] : {std::pair("cmbEmployees", 7), {"cmbIndustry", 8}}) {
            auto& combo = child<QComboBox>(dialog, name);
            QCOMPARE(combo.count(), count);
            for (int row = 0; row < count; ++row)
                QCOMPARE(combo.itemData(row).toInt(), row + 1);
        }
        press(dialog, "btnCancel");
    });
    modify();
}

void InitialConfigurationTest::eachCheckIsMade_data() {
    QTest::addColumn<int>("row");
    for (std::size_t row = 0; row < kSpoilings.size(); ++row)
        QTest::newRow(kSpoilings[row].message) << static_cast<int>(row);
}

void InitialConfigurationTest::eachCheckIsMade() {
    QFETCH(int, row);
    const Spoiling& spoiling = kSpoilings[static_cast<std::size_t>(row)];
    expectDialog([&](QWidget& dialog) {
        fill(dialog);
        spoiling.spoil(dialog);
        modals().expectErrorBox(q("Configuration Error"), q(spoiling.message));
        press(dialog, "btnSave");
        QVERIFY(dialog.isVisible());
        fill(dialog);
        expectSaved();
        press(dialog, "btnSave");
        QVERIFY(!dialog.isVisible());
    });
    firstRun();
    compareCalls(kCheck + kRead + kManager + sentFilled() + kUserInfoSent);
}

void InitialConfigurationTest::addressesAreAddedAndRemoved() {
    expectDialog([this](QWidget& dialog) {
        type(dialog, "txtFieldInputAddress", "  vault3.example.net ");
        press(dialog, "btnAdd");
        QCOMPARE(text(dialog, "txtFieldInputAddress"), QString());
        type(dialog, "txtFieldInputAddress", " vault1.example.net");
        press(dialog, "btnAdd");
        QCOMPARE(text(dialog, "txtFieldInputAddress"), q(" vault1.example.net"));
        type(dialog, "txtFieldInputAddress", " \t");
        press(dialog, "btnAdd");
        QCOMPARE(addresses(dialog), q("vault1.example.net vault2.example.net vault3.example.net"));
        auto& list = child<QListWidget>(dialog, "listBoxAddress");
        list.setCurrentRow(1);
        press(dialog, "btnRemove");
        QCOMPARE(addresses(dialog), q("vault1.example.net vault3.example.net"));
        list.setCurrentRow(-1);
        press(dialog, "btnRemove");
        QCOMPARE(list.count(), 2);
        expectSaved();
        press(dialog, "btnSave");
    });
    modify();
    change([](World& world) {
        QCOMPARE(q(world.registration.tarnsys_ip_addr.c_str()),
                 q("vault1.example.net\\;vault3.example.net"));
    });
}

void InitialConfigurationTest::aChangeOfTypeEmptiesTheKey() {
    expectDialog([](QWidget& dialog) {
        fill(dialog);
        choose(dialog, "cmbPrivateKeyType", 0);
        QCOMPARE(text(dialog, "txtFieldPrivateKey") + text(dialog, "txtFieldPrivateKeyConfirm"),
                 QString());
        QCOMPARE(text(dialog, "txtFieldAccountKey"), q("account key"));
        choose(dialog, "cmbAccountKeyType", 0);
        QCOMPARE(text(dialog, "txtFieldAccountKey") + text(dialog, "txtFieldAccountKeyConfirm"),
                 QString());
        press(dialog, "btnCancel");
    });
    firstRun();
}

void InitialConfigurationTest::keysStayHiddenAndGo() {
    expectDialog([](QWidget& dialog) {
        for (const char* name : kKeyFields)
            verifyHidden(dialog, name);
        press(dialog, "btnCancel");
        for (const char* name : kKeyFields)
            QCOMPARE(text(dialog, name), QString());
    });
    modify();
}

void InitialConfigurationTest::aFaultAtSavingLeavesItOpen_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("kept");
    QTest::newRow("manager") << q("getConfigurationManager") << 2 << false;
    QTest::newRow("registration") << q("setTarnCRegistrationInfo") << 0 << false;
    QTest::newRow("customer") << q("getUserInfoConfiguration") << 2 << true;
    QTest::newRow("its record") << q("setUserInfo") << 0 << true;
    QTest::newRow("server") << q("init_register") << 0 << true;
}

void InitialConfigurationTest::aFaultAtSavingLeavesItOpen() {
    QFETCH(QString, method);
    QFETCH(int, after);
    QFETCH(bool, kept);
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
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void InitialConfigurationTest::noDialogOpensOnAFault() {
    for (const char* method : {"getConfigurationManager", "getTarnCRegistrationInfo",
                               "getUserInfoConfiguration", "getUserInfo"}) {
        failAfter(*test_.agent, 0, method);
        modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
        modify();
        QVERIFY(callsOf(*test_.agent).back().ends_with(std::string(method) + "()"));
    }
    QVERIFY(session::connectedToAgent());
}

void InitialConfigurationTest::theFirstRunIsSaved() {
    expectDialog([this](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Initial Tarn-Client Configuration"));
        for (const char* group : {"grpPrivateKey", "grpAccountKey", "grpUserInfo"})
            QVERIFY2(isEnabled(dialog, group), group);
        for (const char* combo : {"cmbCountry", "cmbEmployees", "cmbIndustry"})
            QCOMPARE(child<QComboBox>(dialog, combo).currentIndex(), -1);
        fill(dialog);
        expectSaved();
        press(dialog, "btnSave");
    });
    firstRun();
    compareCalls(kCheck + kRead + kManager + sentFilled() + kUserInfoSent);
    QVERIFY(session::connectedToAgent());
    change([](World& world) {
        QCOMPARE(q(world.registration.private_key.c_str()), q("private key"));
        QCOMPARE(q(world.registration.account_key.c_str()), q("account key"));
    });
}

void InitialConfigurationTest::theFirstRunRegistersAndStartsTheDailyAdmin() {
    expectDialog([this](QWidget& dialog) {
        fill(dialog);
        press(dialog, "chkRegister");
        expectNews(modals(), "Configuration",
                   "Tarn-Client Registration Information is saved and registered successfully.");
        press(dialog, "btnSave");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), int(InitClntCfgDlg::registered));
    });
    firstRun();
    const Calls expected = kCheck + kRead + kManager + sentFilled() + kUserInfoSent +
                           Calls{"ClientConfiguration.init_register()"} + kManager +
                           Calls{"ClientConfiguration.start_daily_admin()"};
    Calls calls = callsOf(*test_.agent);
    const std::size_t refreshing = expected.size();
    QVERIFY(calls.size() > refreshing + 1);
    // Its arguments are the times of now.
    QVERIFY(calls[refreshing].starts_with("ClientConnection.activity_log("));
    QCOMPARE(calls[refreshing + 1], std::string("ClientConnection.running_activities()"));
    calls.resize(refreshing);
    QCOMPARE(calls, expected);
    QVERIFY(test_.driver->status().endsWith(q(": Daily admin started.")));
}

void InitialConfigurationTest::cancellingTheFirstRunDisconnects() {
    expectDialog([](QWidget& dialog) { dialog.close(); });
    firstRun();
    compareCalls(kCheck + kRead + Calls{"ClientConnection.logout()"});
    QVERIFY(!session::connectedToAgent());
}

void InitialConfigurationTest::aNewAgentAsksAtTheLogin() {
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

void InitialConfigurationTest::anAgentWithoutCustomersDoesntAsk() {
    change([](World& world) { world.configuration.keepsCustomer = false; });
    firstRun();
    Calls expected = kCheck;
    expected.pop_back();
    compareCalls(expected);
    QVERIFY(session::connectedToAgent());
}

void InitialConfigurationTest::aFaultAtTheFirstRunDisconnects_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("after");
    QTest::newRow("info") << q("getTarnClientInfo") << 0;
    QTest::newRow("registration") << q("getTarnCRegistrationInfo") << 0;
    for (const char* method :
         {"getConfigurationManager", "getUserInfoConfiguration", "getUserInfo"})
        for (int after : {0, 1})
            QTest::addRow("%s %d", method, after) << q(method) << after;
}

void InitialConfigurationTest::aFaultAtTheFirstRunDisconnects() {
    QFETCH(QString, method);
    QFETCH(int, after);
    failAfter(*test_.agent, after, qPrintable(method));
    modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
    firstRun();
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(test_.agent->waitingInjections(), std::size_t{0});
}

void InitialConfigurationTest::import(QWidget& dialog, const char* name, const QByteArray& bytes,
                                      bool remove) {
    const QString path = folder_.filePath(q(name));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    expectCriFile(modals(), path, remove);
    press(dialog, "btnBrowse");
}

void InitialConfigurationTest::aFileFillsTheFields() {
    expectDialog([this](QWidget& dialog) {
        import(dialog, "Ada.CRI",
               "UserName=Jürgen & Co\r\nAccountName=acc\r\nClientNumber=abcdefghijkl\r\n"
               "SystemAddress= a.example.net \\;\\;b.example.net\r\nPrivateEncType=5\r\n"
               "PrivateEncKey=one=two\r\nAccEncType=2\r\nAccEncKey= three \r\nOther=x\r\n");
        QCOMPARE(text(dialog, "txtFieldCustomer"), q("Jürgen & Co"));
        QCOMPARE(text(dialog, "txtFieldAccountNum"), q("acc"));
        QCOMPARE(text(dialog, "txtFieldClientNum"), q("abcdefghijkl"));
        QCOMPARE(addresses(dialog), q("a.example.net b.example.net"));
        QCOMPARE(chosen(dialog, "cmbPrivateKeyType"), q("AES256"));
        QCOMPARE(text(dialog, "txtFieldPrivateKey"), q("one=two"));
        QCOMPARE(text(dialog, "txtFieldPrivateKeyConfirm"), q("one=two"));
        QCOMPARE(chosen(dialog, "cmbAccountKeyType"), q("DES"));
        QCOMPARE(text(dialog, "txtFieldAccountKey"), q(" three "));
        QCOMPARE(text(dialog, "txtFieldAccountKeyConfirm"), q(" three "));
        press(dialog, "btnCancel");
    });
    modify();
    compareCalls(kRead);
}

void InitialConfigurationTest::aKeyAheadOfItsTypeIsLost() {
    expectDialog([this](QWidget& dialog) {
        import(dialog, "a.cri",
               "PrivateEncKey=lost\nPrivateEncType=2\n"
               "AccEncKey=kept\nAccEncType=8\n");
        QCOMPARE(chosen(dialog, "cmbPrivateKeyType"), q("DES"));
        QCOMPARE(text(dialog, "txtFieldPrivateKey"), QString());
        // The type was that one before.
        QCOMPARE(text(dialog, "txtFieldAccountKey"), q("kept"));
        press(dialog, "btnCancel");
    });
    modify();
}

void InitialConfigurationTest::noneIsNoTypeOfAPrivateKey() {
    expectDialog([this](QWidget& dialog) {
        import(dialog, "a.cri", "PrivateEncType=1\nAccEncType=1\n");
        QCOMPARE(child<QComboBox>(dialog, "cmbPrivateKeyType").currentIndex(), -1);
        QCOMPARE(chosen(dialog, "cmbAccountKeyType"), q("NONE"));
        press(dialog, "btnCancel");
    });
    modify();
}

void InitialConfigurationTest::aFileThatIsNoneChangesNothing() {
    expectDialog([this](QWidget& dialog) {
        const auto unchanged = [&dialog] {
            return text(dialog, "txtFieldCustomer") == q("Müller & Söhne GmbH");
        };
        import(dialog, "a.txt", "UserName=b\n");
        QVERIFY(unchanged());
        import(dialog, "gone.cri", "UserName=b\n", true);
        QVERIFY(unchanged());
        modals().expect(q("file"), isDialog<QFileDialog>,
                        [](QWidget& chooser) { static_cast<QDialog&>(chooser).reject(); });
        press(dialog, "btnBrowse");
        QVERIFY(unchanged());
        press(dialog, "btnCancel");
    });
    modify();
}

QTEST_MAIN(InitialConfigurationTest)
#include "initial_configuration_test.moc"
