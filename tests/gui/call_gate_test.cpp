// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// How a wait ends when the program quits, or when the user disconnects just as the answer arrives.
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QWizard>

#include "api/client_connection.h"
#include "app/start_up.h"
#include "session/connection.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_wait.h"
#include "tests/support/gui_waiting_fixture.h"
#include "transport/invoke_exception.h"
#include "transport/pending_reply.h"

using namespace std::chrono_literals;
using hessiancln::Awaited;
using hessiancln::CallPassage;
using hessiancln::PendingReply;
using support::Calls;
using support::child;
using support::InTheWait;
using support::isDialog;
using support::methodsOf;
using support::ModalDriver;
using support::waitingPanel;

namespace {

/// A call that finishes just as the user gives it up.
class CallThatEndsAtLast final : public hessiancln::AwaitedCall {
public:
    Awaited awaited() const override { return Awaited::agent; }
    bool finished() const override { return finished_; }
    bool waitFor(std::chrono::milliseconds) override { return finished_; }
    void onFinish(std::function<void()>) override {}
    bool giveUp(const std::string&) override {
        finished_ = true;
        return false;
    }

private:
    bool finished_ = false;
};

/// A call that this test answers itself; it ends no connection.
std::unique_ptr<PendingReply> newCall(Awaited awaited = Awaited::agent) {
    return std::make_unique<PendingReply>([](const std::string&) {}, awaited);
}

void answer(PendingReply& call) {
    std::string reply;
    call.succeed(reply);
}

/// The failure of a call that is never sent; empty if it would be sent.
std::string failureBeforehand() {
    const CallPassage passage;
    const auto call = newCall();
    if (!call->finished())
        return {};
    try {
        call->wait();
    } catch (const hessiancln::invoke_exception& failure) {
        return failure.what();
    }
    return {};
}

/// Presses the panel's button in a wait, runs `whileDown` with the button held down, and releases
/// it.
class Press {
public:
    explicit Press(std::function<void()> whileDown)
        : whileDown_(std::move(whileDown)) {}

    int looks = 0;

private:
    void look() {
        if (!waitingPanel())
            return;
        auto& button = child<QPushButton>(*waitingPanel(), "buttonDisconnect");
        ++looks;
        if (looks == 1)
            QTest::mousePress(&button, Qt::LeftButton);
        else if (looks == 2)
            whileDown_();
        else if (looks == 3)
            QTest::mouseRelease(&button, Qt::LeftButton);
    }

    std::function<void()> whileDown_;
    InTheWait user_{[this] { look(); }};
};

} // namespace

class CallGateTest : public support::WaitingFixture {
    Q_OBJECT
private slots:
    void aQuitLetsQuickCallsEnd_data();
    void aQuitLetsQuickCallsEnd();
    void theLogoutHasItsOwnTime();
    void aQuitIsFollowedWhileTheButtonIsDown();
    void aClickAfterTheReplyFailsTheNextCall_data();
    void aClickAfterTheReplyFailsTheNextCall();
    void aClickWithTheReplyFailsTheNextCall();
    void aQuestionToTheSystemKeepsTheAgentToBeLeft();
    void theClickEndsWithItsChain();

private:
    /// Disconnects by the panel's button while the reply to this call arrives.
    void disconnectAsItIsAnswered(Awaited awaited);
};

void CallGateTest::aQuitLetsQuickCallsEnd_data() {
    QTest::addColumn<bool>("inWizard");
    QTest::newRow("in a wizard") << true;
    QTest::newRow("in a heartbeat") << false;
}

/// Each call is quick, but together they take longer than the windows go without painting.
void CallGateTest::aQuitLetsQuickCallsEnd() {
    QFETCH(bool, inWizard);
    startWith({200ms, 3s});
    app::logOutAtQuit(*QCoreApplication::instance(), *gate_);
    constexpr auto delay = simulator::Delay{80ms};
    ModalDriver modals;
    bool quit = false;
    const InTheWait user([&] {
        if (!inWizard && !std::exchange(quit, true))
            QCoreApplication::quit();
    });
    if (inWizard) {
        driver_->sets().selectRow(0);
        modals.expect(QStringLiteral("wizard"), isDialog<QWizard>, [&](QWidget&) {
            agent_->inject("*", delay, simulator::Times::UntilCleared);
            agent_->clearCallLog();
            QCoreApplication::quit();
            quit = true;
        });
        QTimer::singleShot(0, &driver_->window(), [this] { driver_->window().OnRestore(); });
    } else {
        agent_->inject("*", delay, simulator::Times::UntilCleared);
        driver_->postBeat();
    }
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(quit);
    QVERIFY(agent_->callLog().size() >= 5);
    QCOMPARE(methodsOf(*agent_).back(), std::string("logout"));
    QVERIFY(!session::connectedToAgent());
    agent_->clearInjections();
}

void CallGateTest::theLogoutHasItsOwnTime() {
    startWith({20ms, 200ms});
    agent_->inject("*", simulator::Delay{100ms}, simulator::Times::UntilCleared);
    for (int i = 0; i < 3; ++i)
        session::getConnection()->getTarnClientInfo();
    QElapsedTimer time;
    time.start();
    app::logOut(*gate_);
    QVERIFY2(time.elapsed() >= 100, "the reply wasn't waited for");
    QCOMPARE(methodsOf(*agent_).back(), std::string("logout"));
    agent_->clearInjections();
}

void CallGateTest::aQuitIsFollowedWhileTheButtonIsDown() {
    beSilent();
    const Press press([] { QCoreApplication::quit(); });
    driver_->postBeat();
    QCOMPARE(QCoreApplication::exec(), 0);
    QCOMPARE(press.looks, 2);
    QCOMPARE(methodsOf(*agent_), Calls{"getTarnClientInfo"});
}

void CallGateTest::disconnectAsItIsAnswered(Awaited awaited) {
    const CallPassage passage;
    const auto call = newCall(awaited);
    const Press press([&] { answer(*call); });
    call->wait();
    QVERIFY(press.looks >= 3);
}

void CallGateTest::aClickAfterTheReplyFailsTheNextCall_data() {
    QTest::addColumn<bool>("isAgent");
    QTest::addColumn<QString>("text");
    QTest::newRow("of the agent") << true
                                  << QStringLiteral(
                                         "Disconnected, as the agent hadn't answered for 0 s.");
    QTest::newRow("of the logon service")
        << false << QStringLiteral("Disconnected, as the logon service hadn't answered for 0 s.");
}

void CallGateTest::aClickAfterTheReplyFailsTheNextCall() {
    QFETCH(bool, isAgent);
    QFETCH(QString, text);
    disconnectAsItIsAnswered(isAgent ? Awaited::agent : Awaited::logonService);
    QCOMPARE(failureBeforehand(), text.toStdString());
    QCOMPARE(failureBeforehand(), std::string());
}

void CallGateTest::aClickWithTheReplyFailsTheNextCall() {
    CallThatEndsAtLast call;
    {
        const CallPassage passage;
        bool clicked = false;
        const InTheWait user([&] {
            if (waitingPanel() && !std::exchange(clicked, true))
                support::clickDisconnect();
        });
        CallPassage::hook()->begin(call);
        CallPassage::hook()->wait(call);
    }
    QVERIFY(call.finished());
    QVERIFY(!failureBeforehand().empty());
    QCOMPARE(failureBeforehand(), std::string());
}

/// A question whose failure is ignored must not take the agent's place.
void CallGateTest::aQuestionToTheSystemKeepsTheAgentToBeLeft() {
    disconnectAsItIsAnswered(Awaited::agent);
    {
        const CallPassage passage;
        QVERIFY(newCall(Awaited::logonService)->finished());
    }
    QVERIFY(!failureBeforehand().empty());
}

void CallGateTest::theClickEndsWithItsChain() {
    disconnectAsItIsAnswered(Awaited::agent);
    endChain();
    QCOMPARE(failureBeforehand(), std::string());
}

QTEST_MAIN(CallGateTest)
#include "call_gate_test.moc"
