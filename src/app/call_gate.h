// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <memory>
#include <optional>

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

    /// From now on, abandons a silent agent without asking: the user is gone.
    void leaveSilentAgents() { leaving_ = true; }

    /// Whether a call waits for its reply. Another one would fail.
    bool waiting() const { return call_ != nullptr; }

    /// Whether the program was asked to quit during a wait.
    bool quitRequested() const { return quitRequested_; }

protected:
    void timerEvent(QTimerEvent* event) override;
    void customEvent(QEvent* event) override;

private:
    enum class Outcome { woken, timeOut, programEnds };

    using Moment = std::chrono::steady_clock::time_point;

    std::chrono::milliseconds patience() override;
    void wait(hessiancln::AwaitedCall& call) noexcept override;

    void keepPainting();
    void offerToLeave();
    bool goesOn() const;
    Outcome run(int flags, Moment until);
    void leave();
    bool answersSlowly() const;
    Moment awaitedSince() const;
    std::chrono::seconds elapsed() const;

    Times times_;
    bool leaving_ = false;
    bool quitRequested_ = false;
    WaitRules rules_;
    std::unique_ptr<WaitingPanel> panel_;
    hessiancln::WaitHookInstallation installation_;

    std::optional<Moment> chainBegin_; ///< no value while the thread is in its event loop
    Moment callBegin_;                 ///< of the latest call
    Moment painted_;                   ///< when the windows last could paint
    bool announced_ = false;           ///< the panel, in this chain
    bool leavesNext_ = false; ///< the user left when a call had just finished: the next one fails

    // Used during a wait
    hessiancln::AwaitedCall* call_ = nullptr;
    bool left_ = false;
    Moment leastEnd_;
    QEventLoop* loop_ = nullptr;
    QBasicTimer timer_;
};

} // namespace app
