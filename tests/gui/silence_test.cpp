// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Silence during logins, during actions on a set, and in the search for files.
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "app/backup_set_view_item.h"
#include "app/start_up.h"
#include "insight/find_file_window.h"
#include "resources/pictures.h"
#include "tests/gui/silence.h"
#include "tests/support/gui_modal_driver.h"

using gui::Flow;
using gui::slot;
using support::child;
using support::MainWindowDriver;

namespace {

Flow login(bool integrated) {
    Flow flow = slot("OnConnect");
    flow.loggedIn = false;
    flow.integratedLogon = integrated;
    return flow;
}

Flow loginAtStart() {
    Flow flow;
    flow.act = [](MainWindowDriver& driver, app::CallGate& gate) {
        app::logInAtStart(driver.window(), &gate);
    };
    flow.loggedIn = false;
    flow.integratedLogon = true;
    return flow;
}

Flow rename() {
    return {[](MainWindowDriver& driver, app::CallGate&) {
        BackupSetViewItem& card = driver.card(0);
        card.startEditingSetName();
        auto& name = child<QLineEdit>(card, "nameEditor");
        name.setText(QStringLiteral("Renamed"));
        QTest::keyClick(&name, Qt::Key_Return);
    }};
}

/// The login to the computer of a new set.
Flow sourceLogin(const QStringList& buttons) {
    Flow flow = slot("OnNewBackupSet");
    flow.pageButtons = buttons;
    return flow;
}

Flow sshLogin(const QStringList& buttons) {
    Flow flow = sourceLogin(buttons);
    flow.scenario = simulator::Scenario::Unix;
    return flow;
}

FindFileWindow& findFiles(MainWindowDriver& driver) {
    driver.trigger("actionFind_File");
    auto& find = *driver.window().findChild<FindFileWindow*>();
    child<QLineEdit>(find, "editName").setText(QStringLiteral("diary"));
    child<QPushButton>(find, "buttonFind").click();
    return find;
}

Flow search() {
    Flow flow;
    flow.scenario = simulator::Scenario::Generations;
    flow.act = [](MainWindowDriver& driver, app::CallGate&) {
        const FindFileWindow& find = findFiles(driver);
        QTRY_VERIFY(!find.isSearching());
    };
    return flow;
}

/// A button below the table of found files.
Flow ofFoundFile(const char* button) {
    Flow flow;
    flow.scenario = simulator::Scenario::Generations;
    flow.prepare = [](MainWindowDriver& driver) {
        FindFileWindow& find = findFiles(driver);
        QTRY_VERIFY(!find.isSearching());
        child<QTableView>(find, "tableFound").selectRow(0);
    };
    flow.act = [button](MainWindowDriver& driver, app::CallGate&) {
        child<QPushButton>(*driver.window().findChild<FindFileWindow*>(), button).click();
    };
    return flow;
}

} // namespace

class SilenceTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void atEachCall_data();
    void atEachCall();
};

void SilenceTest::atEachCall_data() {
    QTest::addColumn<gui::Flow>("flow");
    QTest::newRow("login") << login(false);
    QTest::newRow("integrated login") << login(true);
    QTest::newRow("login at start") << loginAtStart();
    QTest::newRow("rename") << rename();
    QTest::newRow("Connect As") << sourceLogin({QStringLiteral("btnConnectAs")});
    QTest::newRow("SSH, sudo and access")
        << sshLogin({QStringLiteral("btnConnectAs"), QStringLiteral("btnSudo"),
                     QStringLiteral("btnSSHAccess")});
    QTest::newRow("search") << search();
    QTest::newRow("restore of a found file") << ofFoundFile("buttonRestore");
    QTest::newRow("generations of a found file") << ofFoundFile("buttonGenerations");
    QTest::newRow("refreshAll") << Flow{
        [](MainWindowDriver& driver, app::CallGate&) { driver.window().refreshAll(); }};
}

void SilenceTest::atEachCall() {
    QFETCH(gui::Flow, flow);
    gui::disconnectAtEachCall(flow);
}

QTEST_MAIN(SilenceTest)
#include "silence_test.moc"
