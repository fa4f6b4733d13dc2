// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <memory>

#include <QBasicTimer>
#include <QObject>

#include "app/held_events.h"
#include "transport/call_passage.h"

class QEventLoop;
class WaitingPanel;

namespace app {

/// Keeps the windows alive while the thread that makes this object waits for the agent. A call that
/// takes long lets them paint, but take no input; one that takes longer shows a panel over the
/// window in front, with which the user can leave the agent. The end of the program leaves it too.
///
/// Without this object the thread just sleeps until each reply comes.
class CallGate : public QObject, private hessiancln::WaitHook {
    Q_OBJECT
public:
    /// Counted from the begin of a call.
    struct Times {
        std::chrono::milliseconds untilPainting{200};
        std::chrono::milliseconds untilPanel{3000};
    };

    CallGate();
    explicit CallGate(const Times& times);
    ~CallGate() override;

    /// Events of this type lead to calls, so they have to wait for the end of one, and one of them
    /// then does for all.
    void holdBack(int eventType);

    /// Has menus trigger this action also during a wait. It must not make a call.
    void admit(QAction& action);

    /// From now on an agent that would have to be asked about is left: nobody is there any more.
    void leaveSilentAgents() { leaving_ = true; }

protected:
    void timerEvent(QTimerEvent* event) override;
    void customEvent(QEvent* event) override;

private:
    enum class Outcome { woken, timeOut, programEnds };

    std::chrono::milliseconds patience() const override { return times_.untilPainting; }
    void wait(hessiancln::AwaitedCall& call) noexcept override;

    void keepPainting(hessiancln::AwaitedCall& call);
    void offerToLeave(hessiancln::AwaitedCall& call);
    Outcome run(int flags, std::chrono::milliseconds limit);
    void leave();
    std::chrono::seconds elapsed() const;

    Times times_;
    bool leaving_ = false;
    WaitRules rules_;
    std::unique_ptr<WaitingPanel> panel_;
    hessiancln::WaitHookInstallation installation_;

    // During a wait
    hessiancln::AwaitedCall* call_ = nullptr;
    QEventLoop* loop_ = nullptr;
    QBasicTimer timer_;
    std::chrono::steady_clock::time_point begin_;
};

} // namespace app
