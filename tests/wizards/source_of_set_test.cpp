// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QTest>
#include <QWizard>

#include "api/client_connection.h"
#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/wizards/source_page_driver.h"

using simulator::LoginKind;
using support::ModalDriver;
using wizards_test::join;
using wizards_test::Lines;
using wizards_test::PageDriver;
using wizards_test::Source;

namespace {

/// An agent set up for tests of this page, with a session.
struct Session {
    explicit Session(LoginKind kind = LoginKind::Windows, simulator::Options options = {})
        : source(kind, std::move(options)) {}
    ~Session() { support::resetSession(); }

    Source source;
};

} // namespace

/// The page, filled from a set.
class SourceOfSetTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { support::resetSession(); }

    void honoursTheFlagOfTheAgentsAccountUnseen();
    void showsTheSSHLogin();
    void showsTheSourceOfASet();
    void showsASetWhoseCredentialsFail_data();
    void showsASetWhoseCredentialsFail();
    void showsTheSourceOfASetWithoutItems();
    void refusesASetOfAnotherKind();
    void offersTheComputerOfASetForARestore();
    void givesTheCredentialsToTheSet();
    void givesNoCredentialsThatAreNone();
};

void SourceOfSetTest::honoursTheFlagOfTheAgentsAccountUnseen() {
    Session session;
    const auto set = session.source.set(
        [](simulator::CredentialsState& login) { login.usingClientAccount = true; });
    PageDriver driver([](const std::string&) { return false; });
    QVERIFY(driver.page().initFromSet(set));
    driver.show();
    QVERIFY(!driver.isShown("chkUseTarnClientAccount"));
    QVERIFY(driver.isChecked("chkUseTarnClientAccount"));
    QVERIFY(!driver.isEnabled("btnConnectAs"));
    QVERIFY(!driver.isEnabled("editConnectAs"));
}

void SourceOfSetTest::showsTheSSHLogin() {
    Session session(LoginKind::Ssh);
    const auto set = session.source.set([](simulator::CredentialsState& login) {
        login.user = "anna";
        login.sudoUser = "root";
        login.access = 1;
        login.interpreterPath = "/opt/skript-ü";
    });
    PageDriver driver;
    QVERIFY(driver.page().initFromSet(set));
    QCOMPARE(driver.text("editConnectAs"), QStringLiteral("anna"));
    QCOMPARE(driver.text("editSudo"), QStringLiteral("root"));
    QCOMPARE(driver.text("editSSHAccess"), QString::fromUtf8("Python: /opt/skript-ü"));
}

void SourceOfSetTest::showsTheSourceOfASet() {
    Session session;
    const auto set = session.source.set([](simulator::CredentialsState& login) {
        login.user = "OFFICE\\anna";
        login.usingClientAccount = false;
    });
    PageDriver driver;
    session.source.takeCalls();
    QVERIFY(driver.page().initFromSet(set));
    QCOMPARE(
        session.source.takeCalls(),
        join({{"BackupSet.getDataType()", "BackupSet.getComputerName()",
               "BackupSet.getCredentials()", "BackupSetCredentials.isUsingClientCredentials()",
               R"(DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(OFFICE\anna)))"},
              wizards_test::refreshOf(LoginKind::Windows, R"(OFFICE\anna)")}));
    driver.show();
    QCOMPARE(driver.text("editComputerName"), QStringLiteral("My Computer"));
    QCOMPARE(driver.text("editConnectAs"), QStringLiteral("OFFICE\\anna"));
    QVERIFY(!driver.isEnabled("editComputerName"));
    QVERIFY(!driver.isEnabled("btnShowNetDiscovery"));
    QVERIFY(driver.isEnabled("btnConnectAs"));
}

void SourceOfSetTest::showsASetWhoseCredentialsFail_data() {
    QTest::addColumn<int>("number");
    QTest::newRow("there are none") << 0;
    QTest::newRow("the flag") << 1;
    QTest::newRow("the browser refuses them") << 2;
}

void SourceOfSetTest::showsASetWhoseCredentialsFail() {
    QFETCH(int, number);
    const char* const methods[] = {"getCredentials", "isUsingClientCredentials",
                                   "setCurrentCredentials"};
    const Lines calls{
        "BackupSet.getCredentials()", "BackupSetCredentials.isUsingClientCredentials()",
        "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(OFFICE\\anna))"};
    Session session;
    const auto set = session.source.set([](simulator::CredentialsState& login) {
        login.user = "OFFICE\\anna";
        login.usingClientAccount = false;
    });
    PageDriver driver;
    session.source.agent.inject(methods[number], simulator::Fault{"Locked."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Init Error"), QStringLiteral("Locked."));
    session.source.takeCalls();
    QVERIFY(driver.page().initFromSet(set));
    QVERIFY(modals.done());
    QCOMPARE(session.source.takeCalls(),
             join({{"BackupSet.getDataType()", "BackupSet.getComputerName()"},
                   Lines(calls.begin(), calls.begin() + number + 1),
                   wizards_test::refreshOf(LoginKind::Windows, "demo")}));
    QCOMPARE(driver.text("editConnectAs"), QStringLiteral("demo"));
    QVERIFY(!driver.isEnabled("editComputerName"));
    QVERIFY(!driver.isEnabled("btnShowNetDiscovery"));
}

void SourceOfSetTest::showsTheSourceOfASetWithoutItems() {
    Session session;
    const auto set = session.source.set([](simulator::CredentialsState&) {});
    PageDriver driver;
    session.source.takeCalls();
    QVERIFY(driver.page().initFromEmptySet(set));
    QCOMPARE(session.source.takeCalls(),
             (Lines{"BackupSet.getDataType()", "BackupSet.getComputerName()"}));
    QCOMPARE(driver.text("editComputerName"), QStringLiteral("My Computer"));
    QVERIFY(!driver.isEnabled("editComputerName"));
    QVERIFY(!driver.isEnabled("btnShowNetDiscovery"));
}

void SourceOfSetTest::refusesASetOfAnotherKind() {
    Session session;
    const auto set = session.source.set([](simulator::CredentialsState&) {});
    session.source.agent.withWorld([](simulator::World& world) {
        world.sets().front()->info.data_type = hessiancln::BackupDataType::Oracle;
    });
    PageDriver driver;
    session.source.takeCalls();
    QVERIFY(!driver.page().initFromSet(set));
    QVERIFY(!driver.page().initFromEmptySet(set));
    QCOMPARE(session.source.takeCalls(),
             (Lines{"BackupSet.getDataType()", "BackupSet.getDataType()"}));
    QVERIFY(driver.isEnabled("editComputerName"));
}

void SourceOfSetTest::offersTheComputerOfASetForARestore() {
    Session session;
    const auto set = session.source.set([](simulator::CredentialsState&) {});
    PageDriver driver;
    session.source.takeCalls();
    QVERIFY(driver.page().initForRestore(set));
    QCOMPARE(session.source.takeCalls(), Lines{"BackupSet.getComputerName()"});
    QVERIFY(driver.isEnabled("editComputerName"));

    session.source.agent.inject("getComputerName", simulator::Fault{"Gone."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Init Error"), QStringLiteral("Gone."));
    QVERIFY(driver.page().initForRestore(set));
    QVERIFY(modals.done());
}

void SourceOfSetTest::givesTheCredentialsToTheSet() {
    Session session;
    auto set = session.source.set([](simulator::CredentialsState&) {});
    PageDriver driver;
    session.source.takeCalls();
    driver.page().applyCredentials(set);
    QCOMPARE(session.source.takeCalls(),
             (Lines{"DataSourceBrowser.getCurrentCredentials()",
                    "BackupSet.setCredentials(BackupSetCredentials(demo))"}));
    set.reset();
    driver.close();
    session.source.verifyAllReleased();
}

void SourceOfSetTest::givesNoCredentialsThatAreNone() {
    Session session;
    auto set = session.source.set([](simulator::CredentialsState&) {});
    PageDriver driver;
    session.source.takeCalls();
    session.source.agent.inject("getCurrentCredentials", simulator::NullResult{});
    QVERIFY_EXCEPTION_THROWN(driver.page().applyCredentials(set), std::runtime_error);
    QCOMPARE(session.source.takeCalls(), Lines{"DataSourceBrowser.getCurrentCredentials()"});
}

QTEST_MAIN(SourceOfSetTest)
#include "source_of_set_test.moc"
