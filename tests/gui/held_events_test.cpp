// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// What has to wait while the agent doesn't answer: all that could lead to another call.
#include <algorithm>
#include <functional>
#include <utility>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QWindow>
#include <QWizard>

#include "app/about_dlg.h"
#include "app/backup_set_view_item.h"
#include "app/event_log_viewer.h"
#include "app/open_backup_set.h"
#include "insight/backup_health_window.h"
#include "insight/slices.h"
#include "session/connection.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_wait.h"
#include "tests/support/gui_waiting_fixture.h"
#include "ui/later.h"
#include "wizards/delete_select_page.h"
#include "wizards/select_data_source_page.h"

using namespace std::chrono_literals;
using support::Calls;
using support::child;
using support::clickDisconnect;
using support::InTheWait;
using support::isDialog;
using support::methodsOf;
using support::ModalDriver;
using support::waitingPanel;

namespace {

/// Clicks as the desktop would report it.
void clickOnWindow(QWidget& window, QWidget& target) {
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      target.mapTo(&window, target.rect().center()));
}

/// Of a reply that leaves time to act before it.
constexpr std::chrono::milliseconds longDelay(600);

/// Selects a row as a screen reader does, without any input.
void selectByReader(QTableView& table, int row) {
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&table);
    QVERIFY(reader && reader->tableInterface());
    QVERIFY(reader->tableInterface()->selectRow(row));
}

} // namespace

class HeldEventsTest : public support::WaitingFixture {
    Q_OBJECT
private slots:
    void inputDoesNothing();
    void whatWasPressedBeforeIsReleasedAfterwards();
    void keysDoNothing();
    void theWindowCantBeClosed();
    void heartbeatsAreMadeUpForOnce();
    void postedWorkWaits();
    void timersWait();
    void slicesWaitWithoutALoad();
    void deletionsWait();
    void menusTriggerNothingButQuit();
    void commandsTriggeredWithoutInputDoNothing();
    void aCheckableCommandStaysAsItWas();
    void theTypedNameIsSentAfterTheCall();
    void aFieldThatLosesTheFocusWaits();
    void aComputerNameThatLosesTheFocusWaits();
    void anArrowThatIsHeldStepsNoFurther();
    void aScreenReaderSelectsASet();
    void aScreenReaderSelectsARowOfTheHealthWindow();
    void aScreenReaderSelectsAComputer();
    void aScreenReaderLooksIntoTheNetwork();
    void aScreenReaderFiltersTheEventLog();
    void anAnimatedClickWaits();

private:
    /// Runs `act` once in a slow heartbeat, and checks that it leads to no call there.
    void duringACall(const std::function<void()>& act) {
        endChain();
        agent_->clearCallLog();
        agent_->inject("getTarnClientInfo", simulator::Delay{longDelay});
        int rounds = 0;
        QElapsedTimer time;
        const InTheWait user([&] {
            // The heartbeat's next calls are waited for, too.
            if (time.hasExpired(longDelay.count()))
                return;
            if (++rounds == 1)
                act();
            QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
        });
        time.start();
        driver_->beat();
        QVERIFY(rounds > 1);
    }
    /// Calls of one method.
    int count(const char* method) {
        const auto calls = methodsOf(*agent_);
        return static_cast<int>(std::count(calls.begin(), calls.end(), method));
    }
    /// A slow heartbeat, in which the user turns to another program.
    void loseFocusDuringACall() {
        agent_->inject("getTarnClientInfo", simulator::Delay{300ms});
        bool away = false;
        const InTheWait user([&] {
            if (std::exchange(away, true))
                return;
            QVERIFY(QApplication::focusWidget());
            QApplication::setActiveWindow(nullptr);
            QVERIFY(!QApplication::focusWidget());
        });
        driver_->beat();
        QVERIFY(away);
    }
};

void HeldEventsTest::inputDoesNothing() {
    beSilent();
    auto& window = driver_->window();
    driver_->sets().selectRow(0);
    agent_->clearCallLog();
    int rounds = 0;
    const InTheWait user([&] {
        if (!waitingPanel())
            return;
        for (QWidget* tool : window.findChildren<QToolButton*>())
            if (tool->isVisible() && tool->isEnabled())
                clickOnWindow(window, *tool);
        clickOnWindow(window, *driver_->sets().viewport());
        QTest::mouseClick(
            driver_->sets().viewport(), Qt::LeftButton, {},
            driver_->sets().visualRect(driver_->sets().model()->index(1, 0)).center());
        QCOMPARE(driver_->selectedRow(), 0);
        if (++rounds == 3)
            clickDisconnect();
    });
    driver_->beat();
    QCOMPARE(rounds, 3);
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
    QVERIFY(!QApplication::activeModalWidget());
}

void HeldEventsTest::whatWasPressedBeforeIsReleasedAfterwards() {
    agent_->inject("getTarnClientInfo", simulator::Delay{300ms});
    auto& window = driver_->window();
    QPushButton button(QStringLiteral("Held"), &window);
    button.setGeometry(20, 200, 100, 40);
    button.show();
    int clicks = 0;
    connect(&button, &QPushButton::clicked, &button, [&] { ++clicks; });
    const QPoint place = button.mapTo(&window, button.rect().center());
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, place);
    QVERIFY(button.isDown());
    bool released = false;
    const InTheWait user([&] {
        if (!waitingPanel() || released)
            return;
        released = true;
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(clicks, 0);
    });
    driver_->beat();
    QVERIFY(released);
    QTRY_COMPARE(clicks, 1);
    QVERIFY(!button.isDown());
}

void HeldEventsTest::keysDoNothing() {
    agent_->inject("getTarnClientInfo", simulator::Delay{300ms});
    auto& window = driver_->window();
    QLineEdit field(&window);
    field.show();
    field.setFocus();
    QTRY_VERIFY(field.hasFocus());
    const InTheWait user([&] {
        if (waitingPanel())
            QTest::keyClick(window.windowHandle(), Qt::Key_X);
    });
    driver_->beat();
    QCOMPARE(field.text(), QString());
    QTest::keyClick(window.windowHandle(), Qt::Key_Y, {});
    QCOMPARE(field.text(), QStringLiteral("y"));
}

void HeldEventsTest::theWindowCantBeClosed() {
    agent_->inject("getTarnClientInfo", simulator::Delay{300ms});
    bool closed = false;
    const InTheWait user([&] {
        if (!waitingPanel())
            return;
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close);
        QCoreApplication::instance()->notify(driver_->window().windowHandle(), &close);
        closed = true;
        QVERIFY(!close.isAccepted());
    });
    driver_->beat();
    QVERIFY(closed);
    QVERIFY(driver_->window().isVisible());
}

void HeldEventsTest::heartbeatsAreMadeUpForOnce() {
    agent_->inject("getTarnClientInfo", simulator::Delay{longDelay});
    int posted = 0;
    QElapsedTimer time;
    const InTheWait user([&] {
        if (time.hasExpired(longDelay.count()))
            return;
        if (++posted <= 5)
            driver_->postBeat();
        QVERIFY(methodsOf(*agent_).size() <= 1);
    });
    time.start();
    driver_->beat();
    QVERIFY(posted >= 2);
    agent_->clearCallLog();
    QVERIFY(QTest::qWaitFor([&] { return !methodsOf(*agent_).empty(); }));
    QCoreApplication::processEvents();
    const auto calls = methodsOf(*agent_);
    QCOMPARE(std::count(calls.begin(), calls.end(), "getTarnClientInfo"), std::ptrdiff_t(1));
}

void HeldEventsTest::postedWorkWaits() {
    agent_->inject("getTarnClientInfo", simulator::Delay{200ms});
    bool inWait = true;
    int runs = 0;
    QObject context;
    const auto work = [&] {
        ++runs;
        inWait = hessiancln::CallPassage::underWay();
    };
    ui::later(context, work);
    driver_->beat();
    QCOMPARE(runs, 0);
    QTRY_COMPARE(runs, 1);
    QVERIFY(!inWait);
}

void HeldEventsTest::timersWait() {
    agent_->inject("getTarnClientInfo", simulator::Delay{200ms});
    int fired = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] { ++fired; });
    timer.start(10);
    QTimer::singleShot(30, &timer, [&] { ++fired; });
    driver_->beat();
    QCOMPARE(fired, 0);
    QTRY_VERIFY(fired > 1);
}

void HeldEventsTest::deletionsWait() {
    agent_->inject("getTarnClientInfo", simulator::Delay{200ms});
    QPointer<QObject> doomed = new QObject;
    bool asked = false;
    const InTheWait user([&] {
        if (std::exchange(asked, true))
            return;
        doomed->deleteLater();
        QCoreApplication::sendPostedEvents(doomed, QEvent::DeferredDelete);
        QVERIFY(doomed);
    });
    driver_->beat();
    QVERIFY(asked);
    QVERIFY(doomed);
    QTRY_VERIFY(!doomed);
}

void HeldEventsTest::menusTriggerNothingButQuit() {
    beSilent();
    auto& window = driver_->window();
    auto& menu = child<QMenu>(window, "menu_Application");
    const auto click = [&](const char* action) {
        const QRect row = menu.actionGeometry(&child<QAction>(window, action));
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, row.center());
    };
    int step = 0;
    const InTheWait user([&] {
        if (!waitingPanel())
            return;
        if (step == 0) {
            const QMenuBar& bar = *window.menuBar();
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                              bar.actionGeometry(menu.menuAction()).center() + bar.pos());
        } else if (step == 1) {
            QVERIFY(menu.isVisible());
            click("actionLogout");
            QVERIFY(session::g_connection);
        } else if (step == 2) {
            QTest::keyClick(menu.windowHandle(), Qt::Key_D);
            QVERIFY(session::g_connection);
            if (!menu.isVisible())
                menu.popup(window.mapToGlobal(QPoint()));
            click("actionQuit");
        }
        ++step;
    });
    driver_->postBeat();
    QCOMPARE(QCoreApplication::exec(), 0);
    QCOMPARE(step, 3);
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
}

void HeldEventsTest::theTypedNameIsSentAfterTheCall() {
    auto& card = driver_->card(0);
    card.startEditingSetName();
    child<QLineEdit>(card, "nameEditor").setText(QStringLiteral("Renamed"));
    loseFocusDuringACall();
    QCOMPARE(count("setName"), 0);
    QTRY_COMPARE(count("setName"), 1);
    QVERIFY(driver_->cards().first().startsWith(QStringLiteral("Renamed\n")));
}

void HeldEventsTest::aFieldThatLosesTheFocusWaits() {
    DeleteSelectPage page(app::openBackupSet(driver_->card(0).record().id));
    page.show();
    child<QGroupBox>(page, "groupFilter").setChecked(true);
    child<QCheckBox>(page, "checkKeep").setChecked(true);
    auto& keep = child<QSpinBox>(page, "spinKeep");
    page.activateWindow();
    keep.setFocus();
    QTRY_VERIFY(keep.hasFocus());
    keep.selectAll();
    QTest::keyClicks(&keep, QStringLiteral("7"));
    agent_->clearCallLog();
    loseFocusDuringACall();
    QCOMPARE(count("prepare_delete"), 0);
    QTRY_COMPARE(count("prepare_delete"), 1);
    QCOMPARE(keep.value(), 7);
}

void HeldEventsTest::anArrowThatIsHeldStepsNoFurther() {
    auto& window = driver_->window();
    QSpinBox spin(&window);
    spin.setMaximum(1'000'000);
    spin.setGeometry(20, 200, 120, 40);
    spin.show();
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.subControls = QStyle::SC_All;
    const QRect arrow =
        spin.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &spin);
    QTest::mousePress(&spin, Qt::LeftButton, {}, arrow.center());
    QTRY_VERIFY(spin.value() > 2);
    agent_->inject("getTarnClientInfo", simulator::Delay{600ms});
    const int before = spin.value();
    driver_->beat();
    QCOMPARE(spin.value(), before);
    QTRY_VERIFY(spin.value() > before);
    QTest::mouseRelease(&spin, Qt::LeftButton, {}, arrow.center());
}

void HeldEventsTest::aComputerNameThatLosesTheFocusWaits() {
    QWizard wizard;
    wizard.addPage(new SelectDataSourcePage([](const std::string&) { return true; }));
    wizard.show();
    wizard.activateWindow();
    auto& name = child<QLineEdit>(wizard, "editComputerName");
    name.setFocus();
    QTRY_VERIFY(name.hasFocus());
    name.selectAll();
    QTest::keyClicks(&name, QStringLiteral("localhost"));
    agent_->clearCallLog();
    loseFocusDuringACall();
    QCOMPARE(count("expandToFullPath"), 0);
    QTRY_COMPARE(count("expandToFullPath"), 1);
}

void HeldEventsTest::aScreenReaderSelectsASet() {
    driver_->sets().selectRow(0);
    const QStringList before = driver_->details();
    duringACall([&] {
        selectByReader(driver_->sets(), 1);
        QCOMPARE(driver_->details(), before);
    });
    QCOMPARE(driver_->selectedRow(), 1);
    agent_->clearCallLog();
    // What the selection had to leave out.
    QTRY_VERIFY(count("getOverview") > 0);
    QVERIFY(driver_->details() != before);
}

void HeldEventsTest::aScreenReaderSelectsARowOfTheHealthWindow() {
    driver_->trigger("actionBackup_Health");
    auto& health = child<BackupHealthWindow>(driver_->window(), "BackupHealthWindow");
    auto& sets = child<QTableView>(health, "tableSets");
    auto& help = child<QLabel>(health, "labelHelp");
    QTRY_VERIFY(!child<QWidget>(health, "progressReading").isVisible());
    sets.selectRow(0);
    const QString before = help.text();
    const int last = sets.model()->rowCount() - 1;
    duringACall([&] {
        selectByReader(sets, last);
        QCOMPARE(help.text(), before);
    });
    QTRY_VERIFY(help.text() != before);
}

void HeldEventsTest::aScreenReaderSelectsAComputer() {
    QWizard wizard;
    wizard.addPage(new SelectDataSourcePage([](const std::string&) { return true; }));
    wizard.show();
    child<QPushButton>(wizard, "btnShowNetDiscovery").click();
    auto& tree = child<QTreeView>(wizard, "treeNetworkDiscovery");
    const auto& name = child<QLineEdit>(wizard, "editComputerName");
    const QString before = name.text();
    QTRY_COMPARE(tree.model()->rowCount(), 3);
    const QModelIndex hosts = tree.model()->index(2, 0);
    duringACall([&] {
        tree.selectionModel()->select(hosts, QItemSelectionModel::ClearAndSelect);
        QCOMPARE(name.text(), before);
    });
    agent_->clearCallLog();
    QTRY_VERIFY(count("getCurrentCredentials") > 0);
    QCOMPARE(name.text(), QStringLiteral("Unix Hosts"));
}

void HeldEventsTest::aScreenReaderLooksIntoTheNetwork() {
    QWizard wizard;
    wizard.addPage(new SelectDataSourcePage([](const std::string&) { return true; }));
    wizard.show();
    child<QPushButton>(wizard, "btnShowNetDiscovery").click();
    QAbstractItemModel& network = *child<QTreeView>(wizard, "treeNetworkDiscovery").model();
    QTRY_COMPARE(network.rowCount(), 3);
    const QModelIndex hosts = network.index(2, 0);
    duringACall([&] {
        QVERIFY(!network.index(0, 0, hosts).isValid());
        network.fetchMore(hosts);
    });
    QVERIFY(network.canFetchMore(hosts));
    network.fetchMore(hosts);
    QVERIFY(network.index(0, 0, hosts).isValid());
}

void HeldEventsTest::aScreenReaderFiltersTheEventLog() {
    EventLogViewer viewer;
    viewer.show();
    child<QCheckBox>(viewer, "checkActivityID").click();
    QAccessibleInterface* number =
        QAccessible::queryAccessibleInterface(&child<QSpinBox>(viewer, "spinActivityID"));
    QVERIFY(number && number->valueInterface());
    duringACall([&] { number->valueInterface()->setCurrentValue(7); });
    QCOMPARE(count("event_log"), 0);
    QTRY_COMPARE(count("event_log"), 1);
}

void HeldEventsTest::anAnimatedClickWaits() {
    QPushButton button(QStringLiteral("Pressed"), &driver_->window());
    button.show();
    int clicks = 0;
    bool inWait = true;
    connect(&button, &QPushButton::clicked, &button, [&] {
        ++clicks;
        inWait = hessiancln::CallPassage::underWay();
    });
    duringACall([&] { button.animateClick(1); });
    QTRY_COMPARE(clicks, 1);
    QVERIFY(!inWait);
}

void HeldEventsTest::commandsTriggeredWithoutInputDoNothing() {
    driver_->window().OnDisconnect();
    agent_->inject("getTarnClientType", simulator::Delay{300ms});
    agent_->clearCallLog();
    QVERIFY(driver_->isEnabled("actionLogin"));
    int rounds = 0;
    const InTheWait user([&] {
        if (++rounds > 3)
            return;
        for (const char* action : {"actionLogin", "action_About", "actionBackup_Now"})
            driver_->trigger(action);
        QVERIFY(!QApplication::activeModalWidget());
    });
    session::connectToAgent("127.0.0.1", "demo", "demo", 1);
    QVERIFY(rounds > 0);
    QCOMPARE(methodsOf(*agent_), (Calls{"getTarnClientType", "login"}));
    // They do again once the call is over.
    ModalDriver modals;
    modals.expect(QStringLiteral("about"), isDialog<AboutDlg>,
                  [](QWidget& dialog) { static_cast<QDialog&>(dialog).accept(); });
    driver_->trigger("action_About");
    QVERIFY(modals.done());
}

void HeldEventsTest::aCheckableCommandStaysAsItWas() {
    QAction action(&driver_->window());
    action.setCheckable(true);
    driver_->window().addAction(&action);
    bool state = false; // of the program
    connect(&action, &QAction::toggled, &action, [&state](bool checked) { state = checked; });
    duringACall([&] { action.trigger(); });
    QVERIFY(!state);
    QVERIFY(!action.isChecked());
    action.trigger();
    QVERIFY(state);
    duringACall([&] { action.setChecked(false); });
    QVERIFY(state);
    QVERIFY(action.isChecked());
}

void HeldEventsTest::slicesWaitWithoutALoad() {
    int steps = 0;
    insight::Slices slices([&] { return ++steps < 5; });
    slices.start();
    agent_->inject("getTarnClientInfo", simulator::Delay{500ms});
    int rounds = 0;
    const InTheWait loop([&] { ++rounds; });
    driver_->beat();
    QCOMPARE(steps, 0);
    QVERIFY2(rounds < 200, qPrintable(QString::number(rounds)));
    QTRY_VERIFY(!slices.isRunning());
    QCOMPARE(steps, 5);
}

QTEST_MAIN(HeldEventsTest)
#include "held_events_test.moc"
