// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <optional>

#include <QDir>
#include <QFileDialog>
#include <QScopedValueRollback>

#include "session/process_values.h"
#include "tests/config/registration_fixture.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_translation.h"

using namespace steps;
using hessiancln::KeyEncryptionType;
using simulator::World;
using support::callsOf;
using support::child;
using support::isDialog;

/// The registration dialog of a registered agent, and what both of its modes share.
class InitialConfigurationTest : public QObject, private RegistrationFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { test_.end(); }

    void whatTheAgentKnowsIsShown();
    void savingSendsIt();
    void registeringWhatIsThereStartsNothing();
    void theAccountKeyIsSetOnce_data();
    void theAccountKeyIsSetOnce();
    void anOldCipherIsSentByItsNewNumber();
    void aPrivateKeyOfNoTypeIsSentAsAes128();
    void anAccountKeyOfNoTypeMayBeEmpty();
    void aCustomerThatIsKeptNowhereIsNotSent();
    void eachChoiceHasItsCode();
    void countriesAreInTheOrderOfTheLanguage();
    void eachCheckIsMade_data();
    void eachCheckIsMade();
    void addressesAreAddedAndRemoved();
    void aChangeOfTypeEmptiesTheKey();
    void noDialogOpensOnAFault();

    void aFileFillsTheFields();
    void aKeyAheadOfItsTypeIsLost();
    void noneIsNoTypeOfAPrivateKey();
    void aFileThatIsNoneChangesNothing();
    void aFileWithoutKeysChangesNothing_data();
    void aFileWithoutKeysChangesNothing();
    void aFileThatIsTooLargeIsRefused();
    void keysThatCantBeChangedArentAFilesEither();
    void theChoiceBeginsAtHomeAfterAnIntegratedLogon();

private:
    void fillInAtFirst();
};

void InitialConfigurationTest::whatTheAgentKnowsIsShown() {
    expectDialog([this](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Modify Tarn-Client Configuration"));
        QCOMPARE(dialog.parentWidget(), &test_.driver->window());
        support::compareWindowIcon(dialog);
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
        QVERIFY(isChecked(dialog, "chkForwardKey"));
        QCOMPARE(chosen(dialog, "cmbCountry"), q("Germany"));
        QCOMPARE(chosen(dialog, "cmbEmployees"), q("1 - 50"));
        QCOMPARE(chosen(dialog, "cmbIndustry"), q("Computer - hardware, software"));
        for (const char* group : {"grpPrivateKey", "grpAccountKey", "grpUserInfo"})
            QVERIFY2(!isEnabled(dialog, group), group);
        QVERIFY(!isChecked(dialog, "chkRegister"));
        press(dialog, "btnCancel");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), 0);
    });
    modify();
    compareCalls(registrationRead);
}

void InitialConfigurationTest::savingSendsIt() {
    expectDialog([this](QWidget& dialog) {
        type(dialog, "txtFieldCustomer", "  Ada & Co ");
        type(dialog, "txtFieldAccountNum", " ab-1 ");
        type(dialog, "txtFieldClientNum", "a4c10093170z");
        expectSaved();
        press(dialog, "btnSave");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), 1);
        QCOMPARE(text(dialog, "txtFieldClientNum"), q("A4C10093170Z"));
    });
    modify();
    compareCalls(registrationRead + managerAsked +
                 sent("customer_name=\"Ada & Co\", account_num=\"AB-1\", "
                      "client_num=\"A4C10093170Z\", private_key_enc=7, account_key_enc=7"));
    change([](World& world) {
        QCOMPARE(q(world.registration.private_key.c_str()), q("the quick brown fox"));
        QCOMPARE(q(world.registration.account_key.c_str()), q("jumps over the lazy dog"));
    });
}

void InitialConfigurationTest::registeringWhatIsThereStartsNothing() {
    expectDialog([this](QWidget& dialog) {
        press(dialog, "chkRegister");
        expectNews(modals(), "Configuration",
                   "Tarn-Client Registration Information is saved and registered successfully.");
        press(dialog, "btnSave");
        QCOMPARE(static_cast<QDialog&>(dialog).result(), 2);
    });
    modify();
    compareCalls(registrationRead + managerAsked +
                 sent(known + ", private_key_enc=7, account_key_enc=7") +
                 Calls{"ClientConfiguration.init_register()"});
    QVERIFY(session::connectedToAgent());
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
    compareCalls(registrationRead + managerAsked +
                 sent(known + ", private_key_enc=5, account_key_enc=7"));
}

void InitialConfigurationTest::aPrivateKeyOfNoTypeIsSentAsAes128() {
    change([](World& world) { world.registration.private_key_enc = KeyEncryptionType(0); });
    expectDialog([this](QWidget& dialog) {
        QCOMPARE(child<QComboBox>(dialog, "cmbPrivateKeyType").currentIndex(), -1);
        QCOMPARE(text(dialog, "txtFieldPrivateKey"), q("the quick brown fox"));
        expectSaved();
        press(dialog, "btnSave");
    });
    modify();
    compareCalls(registrationRead + managerAsked +
                 sent(known + ", private_key_enc=5, account_key_enc=7"));
}

void InitialConfigurationTest::anAccountKeyOfNoTypeMayBeEmpty() {
    change([](World& world) { world.registration.account_key_enc = KeyEncryptionType(0); });
    expectDialog([this](QWidget& dialog) {
        QCOMPARE(chosen(dialog, "cmbAccountKeyType"), q("NONE"));
        type(dialog, "txtFieldAccountKey", "");
        type(dialog, "txtFieldAccountKeyConfirm", "");
        expectSaved();
        press(dialog, "btnSave");
    });
    modify();
    compareCalls(registrationRead + managerAsked +
                 sent(known + ", private_key_enc=7, account_key_enc=0"));
    change([](World& world) { QVERIFY(world.registration.account_key.empty()); });
}

void InitialConfigurationTest::aCustomerThatIsKeptNowhereIsNotSent() {
    change([](World& world) { world.configuration.keepsCustomer = false; });
    expectDialog([this](QWidget& dialog) {
        QVERIFY(isEnabled(dialog, "grpUserInfo"));
        for (const char* combo : {"cmbCountry", "cmbEmployees", "cmbIndustry"})
            QCOMPARE(child<QComboBox>(dialog, combo).currentIndex(), -1);
        chooseUserInfo(dialog);
        expectSaved();
        press(dialog, "btnSave");
    });
    modify();
    Calls read = registrationRead;
    read.pop_back();
    compareCalls(read + managerAsked + sent(known + ", private_key_enc=7, account_key_enc=7") +
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

void InitialConfigurationTest::countriesAreInTheOrderOfTheLanguage() {
    expectDialog([](QWidget& dialog) {
        auto& countries = child<QComboBox>(dialog, "cmbCountry");
        session::g_language = q("de");
        std::optional<support::Translation> german(q("de"));
        QTRY_COMPARE(countries.currentText(), q("Deutschland"));
        QCOMPARE(countries.currentData().toInt(), 276);
        QCOMPARE(countries.count(), 249);
        QStringList begin;
        for (int row = 0; row < 4; ++row)
            begin << countries.itemText(row);
        QCOMPARE(begin,
                 (QStringList{q("Afghanistan"), q("Ägypten"), q("Ålandinseln"), q("Albanien")}));
        QCOMPARE(countries.itemData(1).toInt(), 818);
        session::g_language.clear();
        german.reset();
        QTRY_COMPARE(countries.currentText(), q("Germany"));
        QCOMPARE(text(dialog, "txtFieldPrivateKey"), q("the quick brown fox"));
        QCOMPARE(text(dialog, "txtFieldAccountKey"), q("jumps over the lazy dog"));
        press(dialog, "btnCancel");
    });
    modify();
}

void InitialConfigurationTest::eachCheckIsMade_data() {
    QTest::addColumn<int>("row");
    for (std::size_t row = 0; row < spoilings.size(); ++row)
        QTest::newRow(spoilings[row].message) << static_cast<int>(row);
}

void InitialConfigurationTest::eachCheckIsMade() {
    QFETCH(int, row);
    const Spoiling& spoiling = spoilings[static_cast<std::size_t>(row)];
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
    compareCalls(check + registrationRead + managerAsked + sentFilled() + userInfoSent);
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
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            type(dialog, "txtFieldInputAddress",
                 key == Qt::Key_Return ? "vault4.example.net" : "vault5.example.net");
            child<QLineEdit>(dialog, "txtFieldInputAddress").setFocus();
            QTest::keyClick(&child<QLineEdit>(dialog, "txtFieldInputAddress"), key);
            QCOMPARE(text(dialog, "txtFieldInputAddress"), QString());
        }
        QCOMPARE(addresses(dialog), q("vault1.example.net vault2.example.net vault3.example.net "
                                      "vault4.example.net vault5.example.net"));
        auto& list = child<QListWidget>(dialog, "listBoxAddress");
        for (int row : {4, 3}) {
            list.setCurrentRow(row);
            press(dialog, "btnRemove");
        }
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

void InitialConfigurationTest::noDialogOpensOnAFault() {
    int calls = 0;
    for (const char* method : {"getConfigurationManager", "getTarnCRegistrationInfo",
                               "getUserInfoConfiguration", "getUserInfo"}) {
        failAfter(*test_.agent, 0, method);
        modals().expectErrorBox(q("Configuration Error"), q("Out of order."));
        test_.agent->clearCallLog();
        modify();
        compareCalls(first(++calls, registrationRead));
    }
    QVERIFY(session::connectedToAgent());
}

/// The dialog of an agent that knows no customer yet, in which everything can be changed.
void InitialConfigurationTest::fillInAtFirst() {
    test_.agent->clearCallLog();
    InitClntCfgDlg dialog(true);
    dialog.exec();
    QVERIFY(modals().done());
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
    fillInAtFirst();
    compareCalls(registrationRead);
}

void InitialConfigurationTest::aKeyAheadOfItsTypeIsLost() {
    expectDialog([this](QWidget& dialog) {
        import(dialog, "a.cri",
               "PrivateEncKey=lost\nPrivateEncType=2\n"
               "AccEncKey=kept\nAccEncType=8\n");
        QCOMPARE(chosen(dialog, "cmbPrivateKeyType"), q("DES"));
        QCOMPARE(text(dialog, "txtFieldPrivateKey"), QString());
        // This type was set before.
        QCOMPARE(text(dialog, "txtFieldAccountKey"), q("kept"));
        press(dialog, "btnCancel");
    });
    fillInAtFirst();
}

void InitialConfigurationTest::noneIsNoTypeOfAPrivateKey() {
    expectDialog([this](QWidget& dialog) {
        import(dialog, "a.cri", "PrivateEncType=1\nAccEncType=1\n");
        QCOMPARE(child<QComboBox>(dialog, "cmbPrivateKeyType").currentIndex(), -1);
        QCOMPARE(chosen(dialog, "cmbAccountKeyType"), q("NONE"));
        press(dialog, "btnCancel");
    });
    fillInAtFirst();
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

void InitialConfigurationTest::aFileWithoutKeysChangesNothing_data() {
    QTest::addColumn<QByteArray>("bytes");
    QByteArray binary;
    for (int i = 0; i < 70000; ++i)
        binary.append(static_cast<char>((i * 7919) >> 3));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("binary") << binary;
    QTest::newRow("unknown keys") << QByteArray(
        "username=b\nCustomer=b\n UserName=b\nUserName\n=b\nAccEncKeys=b\n");
}

void InitialConfigurationTest::aFileWithoutKeysChangesNothing() {
    QFETCH(QByteArray, bytes);
    expectDialog([&](QWidget& dialog) {
        import(dialog, "a.cri", bytes);
        expectSaved();
        press(dialog, "btnSave");
    });
    modify();
    compareCalls(registrationRead + managerAsked +
                 sent(known + ", private_key_enc=7, account_key_enc=7"));
}

void InitialConfigurationTest::aFileThatIsTooLargeIsRefused() {
    expectDialog([this](QWidget& dialog) {
        importInVain(dialog, "long.cri", QByteArray("AccountName=after\n").repeated(100'000),
                     "\"%1\" is larger than 1 MiB.");
        QCOMPARE(text(dialog, "txtFieldCustomer"), q("Müller & Söhne GmbH"));
        QVERIFY(text(dialog, "txtFieldAccountNum") != q("after"));
        press(dialog, "btnCancel");
    });
    modify();
}

void InitialConfigurationTest::keysThatCantBeChangedArentAFilesEither() {
    expectDialog([this](QWidget& dialog) {
        QVERIFY(!child<QWidget>(dialog, "grpPrivateKey").isEnabled());
        QVERIFY(!child<QWidget>(dialog, "grpAccountKey").isEnabled());
        const QStringList before = {
            chosen(dialog, "cmbPrivateKeyType"), text(dialog, "txtFieldPrivateKey"),
            chosen(dialog, "cmbAccountKeyType"), text(dialog, "txtFieldAccountKey")};
        import(dialog, "a.cri",
               "UserName=b\nPrivateEncType=2\nPrivateEncKey=new\nAccEncType=2\nAccEncKey=new\n");
        QCOMPARE(text(dialog, "txtFieldCustomer"), q("b"));
        QCOMPARE(
            (QStringList{chosen(dialog, "cmbPrivateKeyType"), text(dialog, "txtFieldPrivateKey"),
                         chosen(dialog, "cmbAccountKeyType"), text(dialog, "txtFieldAccountKey")}),
            before);
        QCOMPARE(label(dialog, "labImport"), q("Values imported: 1. Lines skipped: 4."));
        press(dialog, "btnCancel");
    });
    modify();
}

void InitialConfigurationTest::theChoiceBeginsAtHomeAfterAnIntegratedLogon() {
    const QScopedValueRollback<std::string> user(session::g_currentUser, std::string());
    expectDialog([this](QWidget& dialog) {
        modals().expect(q("file"), isDialog<QFileDialog>, [](QWidget& chooser) {
            QCOMPARE(static_cast<QFileDialog&>(chooser).directory().path(), QDir::homePath());
            static_cast<QDialog&>(chooser).reject();
        });
        press(dialog, "btnBrowse");
        press(dialog, "btnCancel");
    });
    modify();
}

QTEST_MAIN(InitialConfigurationTest)
#include "initial_configuration_test.moc"
