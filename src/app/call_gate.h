// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include <QBasicTimer>
#include <QObject>

#include "app/held_events.h"
#include "transport/call_passage.h"

class QEventLoop;
class WaitingPanel;

namespace app {

/// Keeps the windows alive while the thread that creates this object waits for the agent, or for
/// the system's logon service. During a slow call, or a chain of calls that is slow as a whole,
/// they repaint but take no input; after a longer wait, a panel over the frontmost window lets the
/// user disconnect. Quitting the program disconnects too. A chain is all calls that the thread
/// makes before it returns to its event loop.
///
/// The rules:
/// - The thread sleeps until the windows haven't painted for `untilPainting`; then it waits in an
///   event loop of its own. The panel appears once the chain has lasted for `untilPanel`.
/// - The panel's button, like Esc, gives up the call that is waited for, and with it its
///   connection. If that call has just finished, the next one is given up before it is sent. The
///   calls after that are waited for as a chain of their own.
/// - After a quit no event loop runs any more. A call then has `untilPainting` of its own to
///   finish, however old its chain is, and is given up after that.
/// - The logout that follows begins a chain of its own, and is given up when others would show the
///   panel.
///
/// Without this object the thread just sleeps until each reply arrives.
class CallGate : public QObject, private hessiancln::WaitHook {
    Q_OBJECT
public:
    /// Measured from the start of a chain of calls. Within a chain the windows paint again each
    /// time that `untilPainting` has passed.
    struct Times {
        std::chrono::milliseconds untilPainting{200};
        std::chrono::milliseconds untilPanel{3000};
    };

    CallGate();
    explicit CallGate(const Times& times);
    ~CallGate() override;

    /// Defers events of this type, which lead to calls, until the end of a call, and merges them
    /// into one.
    void holdBack(int eventType);

    /// Lets menus trigger this action even during a wait. It must not make a call.
    void admit(QAction& action);

    /// From now on, abandons a silent agent without asking: the user is gone. Between two calls,
    /// this also ends the chain.
    void leaveSilentAgents();

    /// Whether a call waits for its reply. Another one would fail.
    bool waiting() const { return call_ != nullptr; }

    /// Whether the program was asked to quit during a wait.
    bool quitRequested() const { return quitRequested_; }

protected:
    void timerEvent(QTimerEvent* event) override;
    void customEvent(QEvent* event) override;

private:
    using Moment = std::chrono::steady_clock::time_point;

    struct Chain {
        Moment begin;
        Moment painted;         ///< when the windows last could paint
        bool announced = false; ///< the panel
    };

    std::chrono::milliseconds begin(hessiancln::AwaitedCall& call) override;
    void wait(hessiancln::AwaitedCall& call) noexcept override;

    void keepPainting();
    void offerToLeave();
    bool goesOn() const;
    void run(int flags, Moment until);
    void abandon();
    void leave();
    bool giveUp();
    std::string leftText() const;
    bool answersSlowly() const;
    Moment awaitedSince() const;
    std::chrono::seconds elapsed() const;

    Times times_;
    bool leaving_ = false;
    bool quitRequested_ = false;
    WaitRules rules_;
    std::unique_ptr<WaitingPanel> panel_;
    hessiancln::WaitHookInstallation installation_;

    std::optional<Chain> chain_; ///< no value while the thread is in its event loop
    Moment callBegin_;           ///< of the latest call
    /// The failure of the next call: the user left when the latest one had just finished.
    std::optional<std::string> nextFailure_;

    // Used during a wait
    hessiancln::AwaitedCall* call_ = nullptr;
    bool givenUp_ = false;
    Moment leastEnd_;
    QEventLoop* loop_ = nullptr;
    QBasicTimer timer_;
};

} // namespace app
