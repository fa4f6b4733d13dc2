// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The window while the agent doesn't answer.
#include <algorithm>
#include <memory>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QWindow>
#include <QWizard>

#include "api/client_connection.h"
#include "app/backup_set_view_item.h"
#include "app/login_check.h"
#include "app/start_up.h"
#include "insight/backup_health_window.h"
#include "session/connection.h"
#include "simulator/world/world.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_port_redirect.h"
#include "tests/support/gui_translation.h"
#include "tests/support/gui_wait.h"
#include "tests/support/gui_waiting_fixture.h"
#include "tests/support/held_names.h"
#include "tests/support/system/process.h"

using namespace std::chrono_literals;
using support::Calls;
using support::child;
using support::clickDisconnect;
using support::InTheWait;
using support::isDialog;
using support::leftAgent;
using support::MainWindowDriver;
using support::methodsOf;
using support::ModalDriver;
using support::PaintCount;
using support::waitingPanel;
using support::waitingText;

namespace {

const QString firstText = QStringLiteral("The agent hasn't answered for N s.");

/// The resident memory of this process, in bytes; 0 under a sanitizer, whose shadow memory would
/// distort it.
std::size_t residentMemory() {
#ifdef TARN_SANITIZED
    return 0;
#else
    const std::size_t size = support::process::residentSize();
    if (size == 0)
        qFatal("The system doesn't report the resident memory");
    return size;
#endif
}

/// Quits at the first heartbeat of the window that comes while no dialog is open.
class QuitAtBeat : public QObject {
public:
    explicit QuitAtBeat(SimpleGUIMainWindow& window)
        : window_(window) {
        window.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != window_.heartbeatEventType() || quit)
            return false;
        if (QApplication::activeModalWidget()) {
            QCoreApplication::postEvent(&window_, new QEvent(event->type()));
        } else {
            quit = true;
            QCoreApplication::quit();
        }
        return true;
    }

    bool quit = false;

private:
    SimpleGUIMainWindow& window_;
};

} // namespace

class WaitingTest : public support::WaitingFixture {
    Q_OBJECT
private slots:
    void aSilentAgentIsLeftByTheButton();
    void aSilentAgentIsLeftByEscape();
    void thePanelGoesWhenTheAnswerComes();
    void aShorterWaitPaintsAndShowsNoPanel();
    void anEmptyLogIsPaintedDuringALogin();
    void thePanelCountsTheSeconds();
    void thePanelStaysInTheMiddle();
    void thePanelSpeaksGerman();
    void quitWorks_data();
    void quitWorks();
    void quitOfTheTrayMenuWorks();
    void aHiddenWindowShowsThePanelOnceItIsShown();
    void thePanelLiesOverTheDialogInFront();
    void thePanelLiesOverAWindowBesideTheHiddenOne();
    void aQuitDuringTheFirstLoginAsksForNoOther();
    void theProgramRunsOnAfterACancelledLogin();
    void aNameThatIsntResolvedIsLeft();
    void anAccountThatIsntFoundIsLeft();
    void nobodyIsAskedOnceTheProgramEnds();
    void anAgentThatIsSuspendedAnswersOnceItGoesOn();
    void aReplyThatDripsIsLeft();
    void aReplyThatIsOnlyAnnouncedTakesNoMemory();
    void aChainOfCallsIsLeft_data();
    void aChainOfCallsIsLeft();
    void aChainEndsWithTheTurnOfTheLoop();

private:
    /// Ends each wait as soon as the panel appears.
    std::unique_ptr<InTheWait> leaveAtOnce() {
        return std::make_unique<InTheWait>([] {
            if (waitingPanel())
                clickDisconnect();
        });
    }

    /// Beats, disconnects through the panel's button, and returns the panel's text.
    QString beatAndLeave() {
        QString text;
        const InTheWait user([&] {
            if (!waitingPanel())
                return;
            text = waitingText();
            const auto& picture = support::child<QLabel>(*waitingPanel(), "labelPicture");
            QVERIFY(!picture.pixmap(Qt::ReturnByValue).isNull());
            clickDisconnect();
        });
        driver_->beat();
        return text;
    }
    /// Beats until the panel is visible and the window has repainted under it, disconnects, and
    /// logs in again.
    void leaveAnAgentUnderPaints();
};

void WaitingTest::aSilentAgentIsLeftByTheButton() {
    beSilent();
    QCOMPARE(beatAndLeave(), firstText);
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(driver_->status(), QStringLiteral("No API connection exists"));
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
    endChain();
    driver_->logIn(*agent_);
    QVERIFY(session::connectedToAgent());
}

void WaitingTest::aSilentAgentIsLeftByEscape() {
    beSilent();
    const InTheWait user([&] {
        // Ignored until the user can see its effect.
        QTest::keyClick(driver_->window().windowHandle(), Qt::Key_Escape);
        if (!waitingPanel())
            QVERIFY(session::g_connection);
    });
    driver_->beat();
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
}

void WaitingTest::thePanelGoesWhenTheAnswerComes() {
    agent_->inject("getTarnClientInfo", simulator::Delay{300ms});
    bool shown = false;
    const InTheWait user([&] { shown = shown || waitingPanel(); });
    driver_->beat();
    QVERIFY(shown);
    QVERIFY(!waitingPanel());
    QVERIFY(session::connectedToAgent());
    QVERIFY(driver_->rows("tableActivityLog") > 0);
}

void WaitingTest::aShorterWaitPaintsAndShowsNoPanel() {
    startWith({20ms, 20s});
    agent_->inject("getTarnClientInfo", simulator::Delay{200ms});
    PaintCount paints(driver_->window());
    bool shown = false;
    const InTheWait user([&] {
        shown = shown || waitingPanel();
        driver_->window().update();
    });
    driver_->beat();
    QVERIFY(!shown);
    QVERIFY2(paints.count >= 2, qPrintable(QString::number(paints.count)));
    QVERIFY(session::connectedToAgent());
}

void WaitingTest::anEmptyLogIsPaintedDuringALogin() {
    SimpleGUIMainWindow& window = driver_->window();
    window.OnDisconnect();
    child<QTabWidget>(window, "tabWidget").setCurrentIndex(1);
    QWidget& log = *child<QTableView>(window, "tableActivityLog").viewport();
    agent_->inject("login", simulator::Delay{200ms});
    PaintCount paints(log);
    bool painted = false;
    const InTheWait user([&] {
        painted = painted || paints.count > 0;
        log.update();
    });
    QVERIFY(window.doLogin(true));
    QVERIFY(painted);
}

void WaitingTest::thePanelCountsTheSeconds() {
    beSilent();
    QStringList texts;
    const InTheWait user([&] {
        QWidget* panel = waitingPanel();
        if (!panel)
            return;
        const QString text = child<QLabel>(*panel, "labelWaiting").text();
        if (texts.isEmpty() || texts.last() != text)
            texts << text;
        if (texts.size() == 3)
            clickDisconnect();
    });
    driver_->beat();
    QCOMPARE(texts, (QStringList{QStringLiteral("The agent hasn't answered for 0 s."),
                                 QStringLiteral("The agent hasn't answered for 1 s."),
                                 QStringLiteral("The agent hasn't answered for 2 s.")}));
}

void WaitingTest::thePanelStaysInTheMiddle() {
    beSilent();
    bool grown = false;
    const InTheWait user([&] {
        QWidget* panel = waitingPanel();
        if (!panel)
            return;
        QWidget& window = driver_->window();
        if (!grown) {
            grown = true;
            window.resize(window.size() + QSize(100, 60));
            return;
        }
        const QPoint off = panel->geometry().center() - window.rect().center();
        QVERIFY2(off.manhattanLength() <= 2, qPrintable(QString::number(off.manhattanLength())));
        clickDisconnect();
    });
    driver_->beat();
    QVERIFY(grown);
}

void WaitingTest::thePanelSpeaksGerman() {
    const support::Translation german(QStringLiteral("de"));
    beSilent();
    QCOMPARE(beatAndLeave(), QStringLiteral("Der Agent antwortet seit N s nicht."));
}

void WaitingTest::quitWorks_data() {
    QTest::addColumn<bool>("withPanel");
    QTest::newRow("before the panel") << false;
    QTest::newRow("under the panel") << true;
}

void WaitingTest::quitWorks() {
    QFETCH(bool, withPanel);
    if (!withPanel)
        startWith({20ms, 20s}); // even on a busy machine
    beSilent();
    bool quit = false;
    const InTheWait user([&] {
        if (quit || methodsOf(*agent_).empty() || withPanel != (waitingPanel() != nullptr))
            return;
        quit = true;
        driver_->trigger("actionQuit");
    });
    driver_->postBeat();
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(quit);
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
}

void WaitingTest::quitOfTheTrayMenuWorks() {
    beSilent();
    auto& menu = child<QMenu>(driver_->window(), "menuTray");
    int step = 0;
    const InTheWait user([&] {
        if (!waitingPanel())
            return;
        ++step;
        if (step == 1)
            menu.popup(driver_->window().mapToGlobal(QPoint()));
        else if (step == 2) {
            QVERIFY(menu.isVisible());
            const QRect quit =
                menu.actionGeometry(&child<QAction>(driver_->window(), "actionQuit"));
            QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, quit.center());
        }
    });
    driver_->postBeat();
    QCOMPARE(QCoreApplication::exec(), 0);
    QCOMPARE(step, 2);
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
}

void WaitingTest::aHiddenWindowShowsThePanelOnceItIsShown() {
    beSilent();
    driver_->window().hideMainWindow();
    int rounds = 0;
    const InTheWait user([&] {
        if (waitingPanel()) {
            clickDisconnect();
        } else if (++rounds == 20) {
            emit driver_->tray().activated(QSystemTrayIcon::Trigger);
            QVERIFY(driver_->window().isVisible());
        } else {
            driver_->postBeat(); // keeps the loop going
        }
    });
    driver_->beat();
    QVERIFY(rounds >= 20);
    QVERIFY(!session::connectedToAgent());
}

void WaitingTest::thePanelLiesOverTheDialogInFront() {
    driver_->window().OnDisconnect();
    endChain();
    agent_->inject("getTarnClientType", simulator::Silence{});
    QWidget* host = nullptr;
    ModalDriver modals;
    modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [&](QWidget& dialog) {
        child<QLineEdit>(dialog, "lineEditUserName").setText(QStringLiteral("demo"));
        child<QLineEdit>(dialog, "lineEditPassword").setText(QStringLiteral("demo"));
        QTest::mouseClick(&child<QPushButton>(dialog, "buttonLogin"), Qt::LeftButton);
        QVERIFY(dialog.isVisible());
        QTest::mouseClick(&child<QPushButton>(dialog, "buttonQuit"), Qt::LeftButton);
    });
    QString said;
    modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& box) {
        said = static_cast<QMessageBox&>(box).text();
        QTest::mouseClick(static_cast<QMessageBox&>(box).button(QMessageBox::Ok), Qt::LeftButton);
    });
    const InTheWait user([&] {
        if (QWidget* panel = waitingPanel()) {
            host = panel->parentWidget();
            QVERIFY(host->rect().contains(panel->geometry()));
            QCOMPARE(host->metaObject()->className(), "LoginCheck");
            clickDisconnect();
        }
    });
    driver_->window().OnConnect();
    QVERIFY(modals.done());
    QVERIFY(host);
    QVERIFY2(said.startsWith(leftAgent), qPrintable(said));
}

void WaitingTest::thePanelLiesOverAWindowBesideTheHiddenOne() {
    driver_->trigger("actionBackup_Health");
    auto& health = child<BackupHealthWindow>(driver_->window(), "BackupHealthWindow");
    QVERIFY(health.isVisible());
    driver_->window().hideMainWindow();
    agent_->inject("getTarnClientInfo", simulator::Delay{2s});
    QPointer<QWidget> host;
    const InTheWait user([&] {
        if (!waitingPanel())
            return;
        host = waitingPanel()->parentWidget();
        QTest::keyClick(health.windowHandle(), Qt::Key_Escape);
    });
    driver_->beat();
    QCOMPARE(host.data(), &health);
    QVERIFY(!session::connectedToAgent());
}

void WaitingTest::aQuitDuringTheFirstLoginAsksForNoOther() {
    driver_->window().OnDisconnect();
    endChain();
    agent_->clearCallLog();
    beSilent("getTarnClientType");
    bool quit = false;
    const InTheWait user([&] {
        // On a busy machine, the call comes to the agent later.
        if (!methodsOf(*agent_).empty() && !std::exchange(quit, true))
            driver_->trigger("actionQuit");
    });
    QCOMPARE(app::runLoggedIn(driver_->window(), *gate_), 0);
    QVERIFY(quit);
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientType"});
}

void WaitingTest::theProgramRunsOnAfterACancelledLogin() {
    driver_->window().OnDisconnect();
    agent_->inject("login", simulator::Fault{"Not you."});
    ModalDriver modals;
    modals.expect(QStringLiteral("login"), isDialog<LoginCheck>, [this](QWidget& dialog) {
        QTest::mouseClick(&child<QPushButton>(dialog, "buttonQuit"), Qt::LeftButton);
        driver_->postBeat();
    });
    QuitAtBeat user(driver_->window());
    QCOMPARE(app::runLoggedIn(driver_->window(), *gate_), 0);
    QVERIFY(modals.done());
    QVERIFY(user.quit);
    QVERIFY(driver_->window().isVisible());
    QVERIFY(!session::connectedToAgent());
}

void WaitingTest::aNameThatIsntResolvedIsLeft() {
    driver_->window().OnDisconnect();
    support::HeldNames names;
    const auto user = leaveAtOnce();
    QVERIFY_EXCEPTION_THROWN(session::connectToAgent("agent.held", "demo", "demo", 1),
                             std::exception);
    QVERIFY(!session::connectedToAgent());
}

/// The wizard asks whether the user is an administrator, which a directory service may have to say.
void WaitingTest::anAccountThatIsntFoundIsLeft() {
    driver_->window().OnDisconnect();
    agent_.reset();
    agent_ = std::make_unique<support::GuiAgent>(simulator::Options{.user = "ada.held"});
    session::connectToAgent(agent_->address(), "ada.held", "demo", 1);
    endChain();
    support::HeldNames accounts;
    int left = 0;
    const InTheWait user([&] {
        if (waitingText() != QStringLiteral("The logon service hasn't answered for N s."))
            return;
        ++left;
        clickDisconnect();
    });
    ModalDriver modals;
    modals.expect(QStringLiteral("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        QVERIFY(child<QCheckBox>(wizard, "chkUseTarnClientAccount").isHidden());
        static_cast<QWizard&>(wizard).reject();
    });
    driver_->window().OnNewBackupSet();
    QVERIFY(modals.done());
    QCOMPARE(left, 1);
    driver_->window().OnDisconnect();
}

void WaitingTest::nobodyIsAskedOnceTheProgramEnds() {
    gate_->leaveSilentAgents();
    beSilent("logout");
    const InTheWait user(
        [] { QVERIFY2(!waitingPanel(), "the panel is visible though the program ends"); });
    session::disconnectFromAgent();
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(methodsOf(*agent_).back(), std::string("logout"));
}

void WaitingTest::anAgentThatIsSuspendedAnswersOnceItGoesOn() {
    driver_->window().OnDisconnect();
    QProcess agent;
    agent.start(QStringLiteral(TARN_SIMULATOR), QStringList());
    QVERIFY(agent.waitForReadyRead(20'000));
    const QString url = QString::fromLatin1(agent.readLine()).trimmed();
    support::redirectLocalAgent(url.section(QLatin1Char(':'), -1).toUShort());
    QVERIFY(driver_->window().doLogin(true));
    QVERIFY(session::connectedToAgent());
    const auto id = static_cast<long>(agent.processId());
    QVERIFY(support::process::suspend(id));
    PaintCount paints(driver_->window());
    int rounds = 0;
    bool continued = false;
    const InTheWait user([&] {
        if (!waitingPanel() || continued)
            return;
        if (++rounds == 1)
            paints.count = 0;
        driver_->window().update();
        continued = paints.count >= 3;
        if (continued)
            QVERIFY(support::process::resume(id));
    });
    driver_->beat();
    QVERIFY(continued);
    QVERIFY(session::connectedToAgent());
    driver_->window().OnDisconnect();
    agent.kill();
    QVERIFY(agent.waitForFinished());
}

void WaitingTest::leaveAnAgentUnderPaints() {
    PaintCount paints(driver_->window());
    int underPanel = 0;
    {
        const InTheWait user([&] {
            if (!waitingPanel())
                return;
            if (++underPanel == 1)
                paints.count = 0;
            driver_->window().update();
            if (paints.count >= 3)
                clickDisconnect();
        });
        driver_->beat();
    }
    QVERIFY(underPanel > 0);
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
    endChain();
    driver_->logIn(*agent_);
    QVERIFY(session::connectedToAgent());
}

void WaitingTest::aReplyThatDripsIsLeft() {
    agent_->inject("getTarnClientInfo", simulator::Drip{1s});
    leaveAnAgentUnderPaints();
}

void WaitingTest::aReplyThatIsOnlyAnnouncedTakesNoMemory() {
    constexpr std::uint64_t announced = 0xfffffffe; // the longest message
    agent_->inject("getTarnClientInfo", simulator::Announcement{announced});
    const std::size_t before = residentMemory();
    std::size_t most = 0;
    const InTheWait watch([&] { most = std::max(most, residentMemory()); });
    leaveAnAgentUnderPaints();
    QVERIFY2(most < before + 64'000'000, qPrintable(QString::number(most - before)));
}

void WaitingTest::aChainOfCallsIsLeft_data() {
    QTest::addColumn<bool>("byButton");
    QTest::newRow("button, pressed and released in different calls") << true;
    QTest::newRow("Escape") << false;
}

/// Each call is quick, but there are hundreds of them.
void WaitingTest::aChainOfCallsIsLeft() {
    QFETCH(bool, byButton);
    startWith({300ms, 900ms});
    constexpr int items = 100;
    agent_->withWorld([this](simulator::World& world) {
        auto& set = *world.set(driver_->card(0).record().id);
        const simulator::ItemState item = set.items.front();
        set.items.assign(items, item);
    });
    driver_->sets().selectRow(0);
    for (const char* method : {"getFolder", "getType"})
        agent_->inject(method, simulator::Delay{40ms}, simulator::Times::UntilCleared);
    agent_->clearCallLog();

    PaintCount paints(driver_->window());
    int paintsBeforePanel = 0;
    QString text;
    int looks = 0;
    std::size_t callsAtPress = 0;
    const InTheWait user([&] {
        QWidget* panel = waitingPanel();
        if (!panel) {
            paintsBeforePanel = paints.count;
            driver_->window().update();
            return;
        }
        text = waitingText();
        auto& button = child<QPushButton>(*panel, "buttonDisconnect");
        if (!byButton)
            QTest::keyClick(panel->window()->windowHandle(), Qt::Key_Escape);
        else if (++looks == 1)
            QTest::mousePress(&button, Qt::LeftButton);
        else if (looks == 2)
            callsAtPress = agent_->callLog().size();
        else if (looks == 6)
            QTest::mouseRelease(&button, Qt::LeftButton);
    });
    ModalDriver modals;
    modals.expect(QStringLiteral("wizard"), isDialog<QWizard>,
                  [](QWidget& wizard) { static_cast<QWizard&>(wizard).next(); });
    QString said;
    modals.expect(QStringLiteral("box"), isDialog<QMessageBox>, [&](QWidget& box) {
        said = static_cast<QMessageBox&>(box).text();
        QTest::mouseClick(static_cast<QMessageBox&>(box).button(QMessageBox::Ok), Qt::LeftButton);
    });
    driver_->window().on_btnItems_clicked();
    agent_->clearInjections();

    QVERIFY(modals.done());
    QVERIFY2(paintsBeforePanel >= 2, qPrintable(QString::number(paintsBeforePanel)));
    QCOMPARE(text, QStringLiteral("The agent has answered slowly for N s."));
    QVERIFY2(said.startsWith(QStringLiteral("Disconnected, as the agent had answered slowly for ")),
             qPrintable(said));
    const std::size_t calls = agent_->callLog().size();
    QVERIFY2(calls < 2 * items, qPrintable(QString::number(calls)));
    if (byButton)
        QCOMPARE(calls, callsAtPress);
    driver_->beat();
    QVERIFY(!session::connectedToAgent());
    QCOMPARE(agent_->callLog().size(), calls);
}

/// The time since the last turn counts, not that since the program was started.
void WaitingTest::aChainEndsWithTheTurnOfTheLoop() {
    startWith({300ms, 1200ms});
    agent_->inject("*", simulator::Delay{20ms}, simulator::Times::UntilCleared);
    const InTheWait user([] { QVERIFY2(!waitingPanel(), "no chain lasts so long"); });
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < 2500) {
        session::getConnection()->getTarnClientInfo();
        QCoreApplication::processEvents();
    }
    agent_->clearInjections();
}

QTEST_MAIN(WaitingTest)
#include "waiting_test.moc"
