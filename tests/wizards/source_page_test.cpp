// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <QWizard>

#include "api/client_connection.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "simulator/world/sources.h"
#include "simulator/world/world.h"
#include "tests/support/cursor_watch.h"
#include "tests/wizards/source_page_driver.h"

using simulator::LoginKind;
using support::child;
using support::ModalDriver;
using wizards_test::join;
using wizards_test::Lines;
using wizards_test::PageDriver;
using wizards_test::Source;

namespace {

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

/// An agent set up for tests of this page, with a session.
struct Session {
    explicit Session(LoginKind kind = LoginKind::Windows, simulator::Options options = {})
        : source(kind, std::move(options)) {}
    ~Session() { support::resetSession(); }

    Source source;
};

} // namespace

class SourcePageTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { support::resetSession(); }

    void saysWhatItIsFor();
    void startsWithTheAgentsOwnComputer();
    void showsTheRowsThatTheSourceNeeds_data();
    void showsTheRowsThatTheSourceNeeds();
    void offersTheAgentsAccountToAdministratorsOnly();
    void neverOffersTheAgentsAccountOnANotebook();
    void knowsTheLocalComputerByItsExactName_data();
    void knowsTheLocalComputerByItsExactName();
    void usesTheAgentsAccount();
    void takesTheAgentsAccountBackIfTheAgentRefuses();

    void looksIntoTheNetworkOnlyIfShown();
    void aContainerBlocksNext();
    void aTypedNameIsExpanded();
    void aNameIsExpandedBeforeNextByItsKey();
    void aNameThatCantBeExpandedStays();
    void theBoxOfAFailureEndsNoFurtherEditing();
    void aFieldThatIsPassedThroughIsNotEdited();

    void theCredentialsAreCheckedOnNext();
    void aFailedCheckStaysOnThePage();
    void theUserSeesThatTheCheckTakesItsTime();

    void failsWithoutABrowserOrAName();
    void showsWhatFailsAtConstruction();
    void anAgentWithoutCredentialsIsNoEndOfTheWizard();
};

void SourcePageTest::saysWhatItIsFor() {
    Session session;
    PageDriver driver;
    driver.show();
    SelectDataSourcePage& page = driver.page();
    QCOMPARE(page.title(), QStringLiteral("Data Source and Login Information"));
    QCOMPARE(page.subTitle(), QStringLiteral("Specify the computer to be backed up and the login "
                                             "credentials used to perform the backup"));
    QCOMPARE(child<QGroupBox>(page, "groupDataSource").title(), QStringLiteral("Data Source"));
    QCOMPARE(child<QGroupBox>(page, "groupBox_2").title(), QStringLiteral("Login Credentials"));
    const std::pair<const char*, QString> labels[] = {
        {"labelItemsFrom", QStringLiteral("The backup set will backup items &from:")},
        {"labelConnectAs", QStringLiteral("Connect &As:")},
        {"labelSudo", QStringLiteral("SUDO &to:")},
        {"labelSSHAccess", QStringLiteral("&SSH Access:")}};
    for (const auto& [name, text] : labels) {
        QCOMPARE(child<QLabel>(page, name).text(), text);
        QVERIFY(child<QLabel>(page, name).buddy());
    }
    for (const char* name : {"btnConnectAs", "btnSudo", "btnSSHAccess"})
        QCOMPARE(child<QPushButton>(page, name).text(), QStringLiteral("..."));
    for (const char* name : {"editConnectAs", "editSudo", "editSSHAccess"})
        QVERIFY(child<QLineEdit>(page, name).isReadOnly());
    const auto& button = child<QPushButton>(page, "btnShowNetDiscovery");
    QCOMPARE(button.text(), QStringLiteral(">"));
    QVERIFY(button.isCheckable() && !button.isChecked());
    QCOMPARE(child<QCheckBox>(page, "chkUseTarnClientAccount").text(),
             QStringLiteral("Use &Tarn-Client Account"));
    QVERIFY(child<QTreeView>(page, "treeNetworkDiscovery").uniformRowHeights());
    driver.verifyNames();
}

void SourcePageTest::startsWithTheAgentsOwnComputer() {
    Session session;
    PageDriver driver;
    QCOMPARE(session.source.takeCalls(),
             join({{"ClientConnection.createBrowser(0)",
                    R"(DataSourceBrowser.expandToFullPath("My Computer"))",
                    R"(DataSourceBrowser.neededCredentials("My Computer"))",
                    "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(demo))"},
                   wizards_test::refreshOf(LoginKind::Windows, "demo")}));
    driver.show();
    QCOMPARE(driver.text("editComputerName"), QStringLiteral("My Computer"));
    QCOMPARE(driver.page().computerName(), QStringLiteral("My Computer"));
    QCOMPARE(driver.page().connectUser(), QStringLiteral("demo"));
    QVERIFY(driver.page().browser());
    QVERIFY(driver.page().isComplete());
    QVERIFY(!driver.isShown("treeNetworkDiscovery"));
    QVERIFY(!child<QLineEdit>(driver.page(), "editComputerName").isReadOnly());
    QVERIFY(driver.isShown("chkUseTarnClientAccount"));
    QVERIFY(driver.isEnabled("chkUseTarnClientAccount"));
    QVERIFY(!driver.isChecked("chkUseTarnClientAccount"));
    QVERIFY(driver.isEnabled("btnConnectAs"));
    driver.close();
    session.source.verifyAllReleased();
}

void SourcePageTest::showsTheRowsThatTheSourceNeeds_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("ssh");
    QTest::newRow("Windows") << static_cast<int>(LoginKind::Windows) << false;
    QTest::newRow("Unix") << static_cast<int>(LoginKind::Unix) << false;
    QTest::newRow("SSH") << static_cast<int>(LoginKind::Ssh) << true;
}

void SourcePageTest::showsTheRowsThatTheSourceNeeds() {
    QFETCH(int, kind);
    QFETCH(bool, ssh);
    Session session(static_cast<LoginKind>(kind));
    PageDriver driver;
    driver.show();
    for (const char* name : {"labelConnectAs", "editConnectAs", "btnConnectAs"})
        QVERIFY2(driver.isShown(name), name);
    for (const char* name :
         {"labelSudo", "editSudo", "btnSudo", "labelSSHAccess", "editSSHAccess", "btnSSHAccess"})
        QVERIFY2(driver.isShown(name) == ssh, name);
    const Lines refresh = wizards_test::refreshOf(static_cast<LoginKind>(kind), "demo");
    const Lines calls = session.source.takeCalls();
    QCOMPARE(Lines(calls.begin() + 4, calls.end()), refresh);
    QCOMPARE(driver.text("editConnectAs"), QStringLiteral("demo"));
    driver.close();
    session.source.verifyAllReleased();
}

void SourcePageTest::offersTheAgentsAccountToAdministratorsOnly() {
    Session session;
    std::vector<std::string> asked;
    PageDriver driver([&asked](const std::string& user) {
        asked.push_back(user);
        return false;
    });
    driver.show();
    QCOMPARE(asked, Lines{"demo"});
    QVERIFY(!driver.isShown("chkUseTarnClientAccount"));
}

void SourcePageTest::neverOffersTheAgentsAccountOnANotebook() {
    Session session(LoginKind::Windows, {.scenario = simulator::Scenario::Notebook});
    QCOMPARE(session::clientType(), 14);
    PageDriver driver;
    driver.show();
    QVERIFY(!driver.isShown("chkUseTarnClientAccount"));
}

void SourcePageTest::knowsTheLocalComputerByItsExactName_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("local");
    QTest::newRow("as the agent calls it") << QStringLiteral(" My Computer ") << true;
    QTest::newRow("with a path") << QStringLiteral("My Computer\\C:\\Users") << true;
    QTest::newRow("its other name") << QStringLiteral("Tarn-Client Computer") << true;
    QTest::newRow("in other case") << QStringLiteral("my computer") << false;
    QTest::newRow("another one") << QStringLiteral("FILESRV") << false;
    QTest::newRow("nothing") << QString() << false;
}

void SourcePageTest::knowsTheLocalComputerByItsExactName() {
    QFETCH(QString, name);
    QFETCH(bool, local);
    Session session;
    PageDriver driver;
    driver.show();
    driver.click("chkUseTarnClientAccount");
    child<QLineEdit>(driver.page(), "editComputerName").setText(QStringLiteral("HP-8200"));
    QVERIFY(!driver.isEnabled("chkUseTarnClientAccount"));
    child<QLineEdit>(driver.page(), "editComputerName").setText(name);
    QCOMPARE(driver.isEnabled("chkUseTarnClientAccount"), local);
    QCOMPARE(driver.isChecked("chkUseTarnClientAccount"), local);
    QCOMPARE(driver.isEnabled("btnConnectAs"), !local);
    QCOMPARE(driver.isEnabled("editConnectAs"), !local);
}

void SourcePageTest::usesTheAgentsAccount() {
    Session session;
    PageDriver driver;
    driver.show();
    session.source.takeCalls();
    driver.click("chkUseTarnClientAccount");
    QCOMPARE(session.source.takeCalls(),
             (Lines{"DataSourceBrowser.getCurrentCredentials()",
                    "BackupSetCredentials.setUsingClientCredentials(true)"}));
    QVERIFY(!driver.isEnabled("btnConnectAs"));
    driver.click("chkUseTarnClientAccount");
    QCOMPARE(session.source.takeCalls(),
             (Lines{"DataSourceBrowser.getCurrentCredentials()",
                    "BackupSetCredentials.setUsingClientCredentials(false)"}));
    QVERIFY(driver.isEnabled("btnConnectAs"));
    driver.close();
    session.source.verifyAllReleased();
}

void SourcePageTest::takesTheAgentsAccountBackIfTheAgentRefuses() {
    Session session;
    PageDriver driver;
    driver.show();
    session.source.agent.inject("setUsingClientCredentials", simulator::Fault{"Not allowed."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("Not allowed."));
    driver.click("chkUseTarnClientAccount");
    QVERIFY(modals.done());
    QVERIFY(!driver.isChecked("chkUseTarnClientAccount"));
    QVERIFY(driver.isEnabled("btnConnectAs"));
}

void SourcePageTest::looksIntoTheNetworkOnlyIfShown() {
    Session session(LoginKind::Ssh);
    PageDriver driver;
    driver.show();
    session.source.takeCalls();
    QCoreApplication::processEvents();
    QCOMPARE(session.source.takeCalls(), Lines{});
    driver.click("btnShowNetDiscovery");
    QVERIFY(driver.isShown("treeNetworkDiscovery"));
    QVERIFY(child<QLineEdit>(driver.page(), "editComputerName").isReadOnly());
    QCOMPARE(child<QGroupBox>(driver.page(), "groupDataSource").sizePolicy().verticalStretch(), 1);
    QTRY_COMPARE(session.source.calls(), Lines{R"(DataSourceBrowser.networkDiscovery(""))"});
    const QStringList roots{QStringLiteral("My Computer"),
                            QStringLiteral("Microsoft Windows Network"),
                            QStringLiteral("Unix Hosts")};
    QCOMPARE(driver.networkRows({}), roots);
    const auto& tree = child<QTreeView>(driver.page(), "treeNetworkDiscovery");
    QTRY_COMPARE(tree.visibleRegion().boundingRect().size(), tree.size());
    driver.click("btnShowNetDiscovery");
    QVERIFY(!driver.isShown("treeNetworkDiscovery"));
    QVERIFY(!child<QLineEdit>(driver.page(), "editComputerName").isReadOnly());
    QCOMPARE(child<QGroupBox>(driver.page(), "groupDataSource").sizePolicy().verticalStretch(), 0);
    driver.close();
    session.source.verifyAllReleased();
}

void SourcePageTest::aContainerBlocksNext() {
    Session session;
    PageDriver driver;
    driver.show();
    driver.click("btnShowNetDiscovery");
    driver.select({"Unix Hosts"});
    QCOMPARE(driver.text("editComputerName"), QStringLiteral("Unix Hosts"));
    QVERIFY(!driver.canGoNext());
    session.source.takeCalls();
    driver.select({"Unix Hosts", "nas01"});
    QCOMPARE(session.source.takeCalls(),
             join({{R"(DataSourceBrowser.networkDiscovery("Unix Hosts"))"},
                   wizards_test::refreshOf(LoginKind::Windows, "demo")}));
    QCOMPARE(driver.text("editComputerName"), fromUtf8(simulator::sources::storage));
    QVERIFY(driver.canGoNext());
    driver.select({"Unix Hosts"});
    QVERIFY(!driver.canGoNext());

    driver.click("btnShowNetDiscovery");
    driver.typeComputer(QStringLiteral("filesrv"));
    QVERIFY(driver.canGoNext());
    QVERIFY(
        !child<QTreeView>(driver.page(), "treeNetworkDiscovery").selectionModel()->hasSelection());
    driver.close();
    session.source.verifyAllReleased();
}

void SourcePageTest::aTypedNameIsExpanded() {
    Session session;
    PageDriver driver;
    driver.show();
    session.source.takeCalls();
    driver.typeComputer(QStringLiteral("  filesrv "));
    QCOMPARE(session.source.takeCalls(),
             join({{R"(DataSourceBrowser.expandToFullPath("filesrv"))"},
                   wizards_test::refreshOf(LoginKind::Windows, "demo")}));
    QCOMPARE(driver.text("editComputerName"), fromUtf8(simulator::sources::fileServer));
    QCOMPARE(driver.page().computerName(), fromUtf8(simulator::sources::fileServer));
    QVERIFY(!driver.isEnabled("chkUseTarnClientAccount"));
}

void SourcePageTest::aNameIsExpandedBeforeNextByItsKey() {
    Session session;
    PageDriver driver;
    driver.show();
    driver.typeComputer(QStringLiteral("other"));
    auto& edit = child<QLineEdit>(driver.page(), "editComputerName");
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, QStringLiteral("filesrv"));
    session.source.takeCalls();
    session.source.agent.inject("check", simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Credential check failed"),
                          QStringLiteral("Out of order."));
    driver.wizard().button(QWizard::NextButton)->click();
    QVERIFY(modals.done());
    const Lines calls = session.source.takeCalls();
    QCOMPARE(calls.front(), std::string(R"(DataSourceBrowser.expandToFullPath("filesrv"))"));
    QCOMPARE(
        calls.at(7),
        std::string(R"(BackupSetCredentials.check("Microsoft Windows Network\\OFFICE\\FILESRV"))"));
}

void SourcePageTest::aNameThatCantBeExpandedStays() {
    Session session;
    PageDriver driver;
    driver.show();
    session.source.takeCalls();
    session.source.agent.inject("expandToFullPath", simulator::Fault{"The network is down."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("The network is down."));
    driver.typeComputer(QStringLiteral("filesrv"));
    QVERIFY(modals.done());
    QCOMPARE(session.source.takeCalls(), Lines{R"(DataSourceBrowser.expandToFullPath("filesrv"))"});
    QCOMPARE(driver.text("editComputerName"), QStringLiteral("filesrv"));
}

void SourcePageTest::theBoxOfAFailureEndsNoFurtherEditing() {
    Session session;
    PageDriver driver;
    driver.show();
    auto& edit = child<QLineEdit>(driver.page(), "editComputerName");
    edit.setFocus();
    QVERIFY(edit.hasFocus());
    session.source.takeCalls();
    session.source.agent.inject("expandToFullPath", simulator::Fault{"The network is down."},
                                simulator::Times::UntilCleared);
    ModalDriver modals;
    modals.expect(QStringLiteral("error box"), support::isDialog<QMessageBox>, [&](QWidget& box) {
        // For Qt a window is active as soon as its parent is.
        QTRY_COMPARE(QApplication::activeWindow(), &box);
        QVERIFY(!edit.hasFocus());
        static_cast<QMessageBox&>(box).button(QMessageBox::Ok)->click();
    });
    // Like the Return key, which would also go to the next page.
    emit edit.editingFinished();
    QVERIFY(modals.done());
    QCOMPARE(session.source.takeCalls(),
             Lines{R"(DataSourceBrowser.expandToFullPath("My Computer"))"});
}

void SourcePageTest::aFieldThatIsPassedThroughIsNotEdited() {
    Session session;
    PageDriver driver;
    driver.show();
    driver.click("btnShowNetDiscovery");
    driver.select({"Unix Hosts"});
    session.source.takeCalls();
    driver.leaveComputer();
    QCOMPARE(session.source.takeCalls(), Lines{});
    QVERIFY(!driver.canGoNext());
}

void SourcePageTest::theCredentialsAreCheckedOnNext() {
    Session session;
    PageDriver driver;
    driver.show();
    session.source.takeCalls();
    driver.pressNext();
    QCOMPARE(session.source.takeCalls(), (Lines{"DataSourceBrowser.getCurrentCredentials()",
                                                R"(BackupSetCredentials.check("My Computer"))"}));
    QVERIFY(driver.wizard().currentPage() != &driver.page());
    driver.close();
    session.source.verifyAllReleased();
}

void SourcePageTest::aFailedCheckStaysOnThePage() {
    Session session;
    PageDriver driver;
    driver.show();
    child<QLineEdit>(driver.page(), "editComputerName").setText(QStringLiteral(" nas01 "));
    session.source.takeCalls();
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Credential check failed"),
                          QStringLiteral("The computer 'Unix Hosts\\nas01' needs another kind of "
                                         "login."));
    driver.pressNext();
    QVERIFY(modals.done());
    QCOMPARE(session.source.takeCalls(), (Lines{"DataSourceBrowser.getCurrentCredentials()",
                                                R"(BackupSetCredentials.check("nas01"))"}));
    QCOMPARE(driver.wizard().currentPage(), &driver.page());
}

void SourcePageTest::theUserSeesThatTheCheckTakesItsTime() {
    Session session;
    PageDriver driver;
    driver.show();
    support::CursorWatch watch;
    driver.wizard().installEventFilter(&watch);
    driver.pressNext();
    QCOMPARE(watch.shown, support::waited);
    watch.shown.clear();
    driver.wizard().back();
    session.source.agent.inject("check", simulator::Fault{"No."});
    ModalDriver modals;
    modals.expect(QStringLiteral("box"), support::isDialog<QMessageBox>, [&](QWidget& box) {
        QCOMPARE(watch.shown, support::waited);
        static_cast<QMessageBox&>(box).accept();
    });
    driver.pressNext();
    QVERIFY(modals.done());
}

void SourcePageTest::failsWithoutABrowserOrAName() {
    Session session;
    for (const char* method : {"createBrowser", "expandToFullPath"}) {
        session.source.agent.inject(method, simulator::Fault{"Out of order."});
        try {
            PageDriver driver;
            QFAIL("The page was made");
        } catch (const std::exception& error) {
            QCOMPARE(error.what(), "Out of order.");
        }
        session.source.verifyAllReleased();
    }
}

void SourcePageTest::showsWhatFailsAtConstruction() {
    Session session;
    session.source.agent.inject("neededCredentials", simulator::Fault{"No credentials."});
    session.source.agent.inject("getUserName", simulator::Fault{"No user."});
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error R1"), QStringLiteral("No credentials."));
    modals.expectErrorBox(QStringLiteral("Error R2"), QStringLiteral("No user."));
    PageDriver driver;
    QVERIFY(modals.done());
    QCOMPARE(driver.text("editComputerName"), QStringLiteral("My Computer"));
    driver.show();
    QVERIFY(driver.canGoNext());
    driver.close();
    session.source.verifyAllReleased();
}

void SourcePageTest::anAgentWithoutCredentialsIsNoEndOfTheWizard() {
    Session session;
    session.source.agent.inject("neededCredentials", simulator::NullResult{});
    session.source.agent.inject("getCurrentCredentials", simulator::NullResult{});
    const QString text = QStringLiteral("The agent did not return the requested object.");
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error R1"), text);
    modals.expectErrorBox(QStringLiteral("Error R2"), text);
    PageDriver driver;
    QVERIFY(modals.done());
}

QTEST_MAIN(SourcePageTest)
#include "source_page_test.moc"
