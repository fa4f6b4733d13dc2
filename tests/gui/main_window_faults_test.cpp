// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "resources/pictures.h"
#include "session/connection.h"
#include "session/text.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_main_window.h"
#include "tests/support/gui_modal_driver.h"

using simulator::Injection;
using support::cardsOf;
using support::child;
using support::GuiAgent;
using support::isDialog;
using support::MainWindowDriver;
using support::methodsOf;
using support::ModalDriver;
using Calls = std::vector<std::string>;
using Start = void (SimpleGUIMainWindow::*)();

Q_DECLARE_METATYPE(simulator::Injection)
Q_DECLARE_METATYPE(Start)

namespace {

const QString faultText = QStringLiteral("Out of order.");
const QString unknownKey = QStringLiteral("Unknown map field type");

/// The three ways in which each of these calls fails. A result without records is garbage where the
/// others have an unknown member.
void addFaults(std::initializer_list<const char*> methods,
               std::initializer_list<const char*> withoutRecords) {
    QTest::addColumn<QString>("method");
    QTest::addColumn<Injection>("injection");
    const auto add = [](const char* method, const Injection& malformed) {
        const QString name = QString::fromLatin1(method);
        QTest::addRow("%s, stream cut", method) << name << Injection(simulator::CutBefore{});
        QTest::addRow("%s, fault", method) << name << Injection(simulator::Fault{"Out of order."});
        QTest::addRow("%s, malformed", method) << name << malformed;
    };
    for (const char* method : methods)
        add(method, simulator::UnknownKey{});
    for (const char* method : withoutRecords)
        add(method, simulator::RawReply{"r\x01garbage"});
}

bool isCut(const Injection& injection) {
    return std::holds_alternative<simulator::CutBefore>(injection);
}

/// The text shown to the user; empty if only the transport knows it.
QString textOf(const Injection& injection) {
    if (std::holds_alternative<simulator::Fault>(injection))
        return faultText;
    return std::holds_alternative<simulator::UnknownKey>(injection) ? unknownKey : QString();
}

} // namespace

/// The effect of a refresh that fails at one of its calls.
class MainWindowFaultsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        agent_ = std::make_unique<GuiAgent>();
        driver_ = std::make_unique<MainWindowDriver>();
        driver_->logIn(*agent_);
        driver_->sets().selectRow(0);
        agent_->clearCallLog();
    }
    void cleanup() {
        driver_.reset();
        agent_.reset();
    }

    void aHeartbeatAsksInOrder();
    void theAgentAndItsActivitiesEndTheSession_data();
    void theAgentAndItsActivitiesEndTheSession();
    void noActivityIsAnnouncedAtTheEndOfTheSession_data();
    void noActivityIsAnnouncedAtTheEndOfTheSession();
    void theListAloneIsForgiven_data();
    void theListAloneIsForgiven();
    void theDetailsShowABox_data();
    void theDetailsShowABox();
    void aLastingFailureOfTheDetailsHasOneBoxAtATime();
    void theSessionMayEndUnderTheBoxOfTheDetails_data();
    void theSessionMayEndUnderTheBoxOfTheDetails();
    void aSetThatIsNoneIsReportedToo();
    void anAgentWithoutTwoFactorManagerEndsTheSession();
    void aFailureAtLoginLeavesADisconnectedWindow();
    void aDeadAgentIsLeftAtOnce();
    void theConfigurationThatCantBeReadEndsTheSession_data();
    void theConfigurationThatCantBeReadEndsTheSession();
    void twoHundredHeartbeatsLeaveNoObjectBehind();

private:
    void inject(const QString& method, const Injection& injection) {
        agent_->inject(session::toWire(method), injection);
    }
    void checkSessionHasEnded();

    std::unique_ptr<GuiAgent> agent_;
    std::unique_ptr<MainWindowDriver> driver_;
};

void MainWindowFaultsTest::checkSessionHasEnded() {
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(driver_->window().windowTitle(), QStringLiteral("Ostrand Backup"));
    QCOMPARE(driver_->cards(), QStringList());
    QCOMPARE(driver_->rows("tableActivityLog"), 0);
    QCOMPARE(driver_->rows("tableCurrentActivities"), 0);
    QCOMPARE(driver_->details().join(QString()), QString());
    QVERIFY(driver_->isEnabled("actionLogin"));
    for (const char* name : {"actionLogout", "actionNew_Backup_Set", "actionBackup_Now",
                             "actionRestore", "actionSynchronize"})
        QVERIFY2(!driver_->isEnabled(name), name);
    QVERIFY(!child<QWidget>(driver_->window(), "buttonStop").isEnabled());
    QVERIFY(!child<QWidget>(driver_->window(), "pageProperties").isEnabled());
}

void MainWindowFaultsTest::aHeartbeatAsksInOrder() {
    driver_->beat();
    QCOMPARE(methodsOf(*agent_), (Calls{"getTarnClientInfo", "getTFAManager", "is2FAEnabled",
                                        "activity_log", "running_activities", "backup_sets_info",
                                        "backup_set", "getLastActivityOfType", "getOverview"}));
    driver_->sets().clearSelection();
    agent_->clearCallLog();
    driver_->beat();
    QCOMPARE(methodsOf(*agent_), (Calls{"getTarnClientInfo", "getTFAManager", "is2FAEnabled",
                                        "activity_log", "running_activities", "backup_sets_info"}));
}

void MainWindowFaultsTest::theAgentAndItsActivitiesEndTheSession_data() {
    addFaults({"getTarnClientInfo", "activity_log", "running_activities"},
              {"getTFAManager", "is2FAEnabled"});
}

void MainWindowFaultsTest::theAgentAndItsActivitiesEndTheSession() {
    QFETCH(QString, method);
    QFETCH(Injection, injection);
    ModalDriver modals;
    inject(method, injection);
    driver_->beat();
    QVERIFY(modals.done());
    QCOMPARE(agent_->waitingInjections(), std::size_t(0));
    QCOMPARE(driver_->status(), QStringLiteral("No API connection exists"));
    checkSessionHasEnded();
    if (!isCut(injection))
        QCOMPARE(agent_->liveObjects(), Calls{});
    // The program continues to work.
    driver_->beat();
    driver_->logIn(*agent_);
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
    QVERIFY(driver_->rows("tableActivityLog") > 0);
}

void MainWindowFaultsTest::noActivityIsAnnouncedAtTheEndOfTheSession_data() {
    QTest::addColumn<Start>("start");
    QTest::newRow("backup") << &SimpleGUIMainWindow::OnBackupNow;
    QTest::newRow("synchronization") << &SimpleGUIMainWindow::OnSync;
    QTest::newRow("daily admin") << &SimpleGUIMainWindow::startDailyAdmin;
}

void MainWindowFaultsTest::noActivityIsAnnouncedAtTheEndOfTheSession() {
    QFETCH(Start, start);
    inject(QStringLiteral("activity_log"), simulator::Fault{"Out of order."});
    (driver_->window().*start)();
    QCOMPARE(agent_->waitingInjections(), std::size_t(0));
    QCOMPARE(driver_->status(), QStringLiteral("Current connection terminated"));
    checkSessionHasEnded();
}

void MainWindowFaultsTest::theListAloneIsForgiven_data() {
    addFaults({"backup_sets_info"}, {});
}

void MainWindowFaultsTest::theListAloneIsForgiven() {
    QFETCH(QString, method);
    QFETCH(Injection, injection);
    const QStringList before = driver_->cards();
    ModalDriver modals;
    inject(method, injection);
    driver_->beat();
    QVERIFY(modals.done());
    QVERIFY(session::connectedToAgent());
    if (isCut(injection))
        QVERIFY(!driver_->status().isEmpty() &&
                !driver_->status().startsWith(QLatin1String("Log")));
    else
        QCOMPARE(driver_->status(), textOf(injection));
    QCOMPARE(driver_->cards(), before);
    QCOMPARE(driver_->selectedRow(), 0);
    QCOMPARE(driver_->rows("tableActivityLog"), 0);
    QCOMPARE(driver_->rows("tableCurrentActivities"), 0);
    if (isCut(injection))
        return;
    driver_->beat();
    QVERIFY(driver_->rows("tableActivityLog") > 0);
    QCOMPARE(driver_->rows("tableCurrentActivities"), 1);
    // A past error isn't shown.
    QCOMPARE(driver_->status(), QString());
}

void MainWindowFaultsTest::theDetailsShowABox_data() {
    addFaults({"getLastActivityOfType", "getOverview"}, {"backup_set"});
}

void MainWindowFaultsTest::theDetailsShowABox() {
    QFETCH(QString, method);
    QFETCH(Injection, injection);
    const QStringList before = driver_->details();
    QVERIFY(!before.at(0).isEmpty());
    QString text;
    ModalDriver modals;
    modals.expect(QStringLiteral("error box"), isDialog<QMessageBox>, [&](QWidget& widget) {
        auto& box = static_cast<QMessageBox&>(widget);
        QCOMPARE(box.windowTitle(), QStringLiteral("Error checking backup set properties"));
        QCOMPARE(box.icon(), QMessageBox::Critical);
        text = box.text();
        box.button(QMessageBox::Ok)->click();
    });
    inject(method, injection);
    driver_->beat();
    QVERIFY(modals.done());
    QVERIFY(!text.isEmpty());
    if (!textOf(injection).isEmpty())
        QCOMPARE(text, textOf(injection));
    QVERIFY(session::connectedToAgent());
    QCOMPARE(driver_->details(), before);
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
    QCOMPARE(driver_->selectedRow(), 0);
    QVERIFY(driver_->isEnabled("actionBackup_Now"));
}

void MainWindowFaultsTest::aLastingFailureOfTheDetailsHasOneBoxAtATime() {
    const QString title = QStringLiteral("Error checking backup set properties");
    agent_->inject("getOverview", simulator::Fault{"Out of order."},
                   simulator::Times::UntilCleared);
    ModalDriver modals;
    modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& box) {
        agent_->clearCallLog();
        driver_->beat();
        driver_->beat();
        // The rest of the window is still refreshed.
        QVERIFY(agent_->waitForCall("backup_sets_info", 2));
        QTest::mouseClick(static_cast<QMessageBox&>(box).button(QMessageBox::Ok), Qt::LeftButton);
    });
    driver_->beat();
    QVERIFY(modals.done());
    modals.expectErrorBox(title, faultText);
    driver_->beat();
    QVERIFY(modals.done());
    agent_->clearInjections();
    driver_->beat();
    QVERIFY(modals.done());
}

void MainWindowFaultsTest::theSessionMayEndUnderTheBoxOfTheDetails_data() {
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("opened by a heartbeat") << false;
    QTest::newRow("opened by a press of the mouse") << true;
}

void MainWindowFaultsTest::theSessionMayEndUnderTheBoxOfTheDetails() {
    QFETCH(bool, byMouse);
    inject(QStringLiteral("getOverview"), simulator::Fault{"Out of order."});
    ModalDriver modals;
    modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& box) {
        inject(QStringLiteral("getTarnClientInfo"), simulator::Fault{"Out of order."});
        driver_->beat();
        checkSessionHasEnded();
        QTest::mouseClick(static_cast<QMessageBox&>(box).button(QMessageBox::Ok), Qt::LeftButton);
    });
    if (byMouse) {
        const auto& sets = driver_->sets();
        QTest::mousePress(sets.viewport(), Qt::LeftButton, {},
                          sets.visualRect(sets.model()->index(1, 0)).center());
    } else {
        driver_->beat();
    }
    QVERIFY(modals.done());
    QCOMPARE(driver_->status(), QStringLiteral("No API connection exists"));
    checkSessionHasEnded();
    QTest::mouseRelease(driver_->sets().viewport(), Qt::LeftButton);
    driver_->logIn(*agent_);
    QCOMPARE(driver_->cards(), cardsOf(*agent_));
}

void MainWindowFaultsTest::aSetThatIsNoneIsReportedToo() {
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Error checking backup set properties"),
                          QStringLiteral("The agent doesn't know this backup set."));
    inject(QStringLiteral("backup_set"), simulator::NullResult{});
    driver_->beat();
    QVERIFY(modals.done());
}

void MainWindowFaultsTest::anAgentWithoutTwoFactorManagerEndsTheSession() {
    inject(QStringLiteral("getTFAManager"), simulator::NullResult{});
    driver_->beat();
    QCOMPARE(driver_->status(), QStringLiteral("No API connection exists"));
    checkSessionHasEnded();
}

void MainWindowFaultsTest::aFailureAtLoginLeavesADisconnectedWindow() {
    driver_->window().OnDisconnect();
    inject(QStringLiteral("activity_log"), simulator::Fault{"Out of order."});
    ModalDriver modals;
    QVERIFY(driver_->window().doLogin(true));
    QVERIFY(modals.done());
    QCOMPARE(driver_->status(), QStringLiteral("No API connection exists"));
    checkSessionHasEnded();
}

void MainWindowFaultsTest::aDeadAgentIsLeftAtOnce() {
    agent_->stop();
    driver_->window().OnDisconnect();
    QCOMPARE(driver_->status(), QStringLiteral("Current connection terminated"));
    checkSessionHasEnded();
}

void MainWindowFaultsTest::theConfigurationThatCantBeReadEndsTheSession_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<Injection>("injection");
    QTest::addColumn<QString>("text");
    const Injection fault = simulator::Fault{"Out of order."};
    for (const char* method :
         {"getConfigurationManager", "getUserInfoConfiguration", "getUserInfo"})
        QTest::addRow("%s, fault", method) << QString::fromLatin1(method) << fault << faultText;
    QTest::addRow("malformed record")
        << QStringLiteral("getUserInfo") << Injection(simulator::UnknownKey{}) << unknownKey;
    QTest::addRow("no configuration")
        << QStringLiteral("getConfigurationManager") << Injection(simulator::NullResult{})
        << QStringLiteral("The agent did not return the requested object.");
}

void MainWindowFaultsTest::theConfigurationThatCantBeReadEndsTheSession() {
    QFETCH(QString, method);
    QFETCH(Injection, injection);
    QFETCH(QString, text);
    driver_->window().OnDisconnect();
    inject(method, injection);
    ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Configuration Error"), text);
    driver_->window().doLogin(true);
    QVERIFY(modals.done());
    QCOMPARE(driver_->status(), QStringLiteral("Current connection terminated"));
    checkSessionHasEnded();
    QCOMPARE(agent_->liveObjects(), Calls{});
}

void MainWindowFaultsTest::twoHundredHeartbeatsLeaveNoObjectBehind() {
    for (int i = 0; i < 200; ++i)
        driver_->beat();
    QCOMPARE(agent_->liveObjects().size(), std::size_t(1));
    driver_->window().OnDisconnect();
    QCOMPARE(agent_->liveObjects(), Calls{});
    QCOMPARE(agent_->violations(), Calls{});
}

QTEST_MAIN(MainWindowFaultsTest)
#include "main_window_faults_test.moc"
