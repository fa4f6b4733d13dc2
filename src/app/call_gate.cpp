// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/call_gate.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QApplication>
#include <QEventLoop>
#include <QMenu>
#include <QPointer>
#include <QTimerEvent>

#include "app/waiting_panel.h"
#include "session/text.h"
#include "ui/later.h"

namespace app {

namespace {

using namespace std::chrono_literals;
using std::chrono::duration_cast;
using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// Exit codes of our own loops. The end of the program ends all loops with other codes.
constexpr int wokenCode = 0x57414b45;
constexpr int timeOutCode = 0x54494d45;

const auto wakeType = static_cast<QEvent::Type>(QEvent::registerEventType());
/// Delivered once the thread is back in its event loop.
const auto chainEndType = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Qt collects requests to paint for 5 ms.
constexpr auto timeToPaint = 15ms;
/// Between looks at a button that is held down.
constexpr auto timeToLook = 20ms;

/// Disables updates of widgets that are in the middle of painting themselves.
class PaintingWidgets {
public:
    PaintingWidgets() {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (!widget->testAttribute(Qt::WA_WState_InPaintEvent) || !widget->updatesEnabled())
                continue;
            widget->setUpdatesEnabled(false);
            widgets_.emplace_back(widget);
        }
    }
    ~PaintingWidgets() {
        for (const auto& widget : widgets_)
            if (widget)
                widget->setUpdatesEnabled(true);
    }
    PaintingWidgets(const PaintingWidgets&) = delete;
    PaintingWidgets& operator=(const PaintingWidgets&) = delete;

private:
    std::vector<QPointer<QWidget>> widgets_;
};

bool isShownWindow(const QWidget* widget) {
    return widget && widget->isVisible() && !widget->isMinimized() &&
           (widget->windowType() == Qt::Window || widget->windowType() == Qt::Dialog);
}

/// The frontmost window; null if all are hidden.
QWidget* windowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget(); modal && modal->isVisible())
        return modal;
    if (QWidget* active = QApplication::activeWindow(); isShownWindow(active))
        return active;
    const auto all = QApplication::topLevelWidgets();
    const auto found = std::find_if(all.begin(), all.end(), isShownWindow);
    return found == all.end() ? nullptr : *found;
}

/// From any thread.
void wake(QObject& gate) {
    QCoreApplication::postEvent(&gate, new QEvent(wakeType));
}

/// A list that has dropped down would keep all clicks from the panel. Menus let them through.
void closeDroppedList() {
    QWidget* popup = QApplication::activePopupWidget();
    if (popup && !qobject_cast<QMenu*>(popup))
        popup->hide();
}

} // namespace

CallGate::CallGate()
    : CallGate(Times()) {}

CallGate::CallGate(const Times& times)
    : times_(times)
    , rules_{{ui::laterEventType(), chainEndType}, {}}
    , panel_(std::make_unique<WaitingPanel>())
    , installation_(*this) {
    connect(panel_.get(), &WaitingPanel::disconnectClicked, this, &CallGate::leave);
}

CallGate::~CallGate() = default;

void CallGate::holdBack(int eventType) {
    rules_.heldTypes.insert(static_cast<QEvent::Type>(eventType));
}

void CallGate::admit(QAction& action) {
    rules_.admittedActions.emplace_back(&action);
}

void CallGate::leaveSilentAgents() {
    leaving_ = true;
    if (call_)
        return;
    chain_.reset();
    nextFailure_.reset();
}

milliseconds CallGate::begin(hessiancln::AwaitedCall& call) {
    if (nextFailure_) {
        call.giveUp(*nextFailure_);
        // The agent is still to be left after a question to the system.
        if (call.awaited() == hessiancln::Awaited::agent)
            nextFailure_.reset();
        chain_.reset();
        return 0ms;
    }
    callBegin_ = Clock::now();
    if (!chain_) {
        chain_ = Chain{callBegin_, callBegin_};
        QCoreApplication::postEvent(this, new QEvent(chainEndType));
    }
    const auto unpainted = duration_cast<milliseconds>(callBegin_ - chain_->painted);
    return std::max(times_.untilPainting - unpainted, 0ms);
}

void CallGate::wait(hessiancln::AwaitedCall& call) noexcept {
    call_ = &call;
    givenUp_ = false;
    // A call in a chain may end before anything is painted.
    leastEnd_ = callBegin_ == chain_->begin ? Moment() : Clock::now() + timeToPaint;
    {
        const PaintingWidgets asTheyAre;
        const HeldEvents held(rules_, *panel_, [this] {
            if (panel_->isVisible())
                leave();
        });
        call.onFinish([this] { wake(*this); });
        keepPainting();
        offerToLeave();
        call.onFinish({});
        QCoreApplication::removePostedEvents(this, wakeType);
        panel_->hideFromHost();
    }
    call_ = nullptr;
    chain_->painted = Clock::now();
    // After a call that was given up, the next one gets the full patience again; so does a call
    // after a wait for the logon service.
    if (givenUp_ || call.awaited() == hessiancln::Awaited::logonService)
        chain_.reset();
}

/// Input stays in the queue, as during a short call.
void CallGate::keepPainting() {
    const auto due = chain_->begin + times_.untilPanel;
    while (goesOn() && Clock::now() < due)
        run(QEventLoop::ExcludeUserInputEvents, due);
}

void CallGate::offerToLeave() {
    if (!leaving_ && goesOn())
        closeDroppedList();
    while (!leaving_ && goesOn()) {
        panel_->showOver(windowInFront(), {call_->awaited(), answersSlowly(), elapsed()});
        if (!std::exchange(chain_->announced, true))
            panel_->announce();
        run(QEventLoop::AllEvents, awaitedSince() + elapsed() + 1s);
    }
    if (leaving_)
        abandon();
}

/// After the reply, the windows need time to paint, and the user may still hold the panel's button
/// down.
bool CallGate::goesOn() const {
    if (!call_->finished())
        return true;
    if (leaving_ || quitRequested_)
        return false;
    return Clock::now() < leastEnd_ || panel_->isButtonDown();
}

void CallGate::run(int flags, Moment until) {
    QEventLoop loop;
    loop_ = &loop;
    const Moment now = Clock::now();
    if (call_->finished())
        until = std::min(until, std::max(leastEnd_, now + timeToLook));
    const auto limit = std::chrono::ceil<milliseconds>(std::max(until, now) - now);
    timer_.start(static_cast<int>(limit.count()), Qt::PreciseTimer, this);
    const int code = loop.exec(static_cast<QEventLoop::ProcessEventsFlag>(flags));
    timer_.stop();
    loop_ = nullptr;
    if (code == wokenCode || code == timeOutCode)
        return;
    quitRequested_ = true;
    abandon();
}

/// Without the user, and with no event loop, a call still gets the time of a quick one.
void CallGate::abandon() {
    const auto left = callBegin_ + times_.untilPainting - Clock::now();
    if (!call_->waitFor(std::max(std::chrono::ceil<milliseconds>(left), 0ms)))
        giveUp();
}

/// The user's choice.
void CallGate::leave() {
    if (!call_)
        return;
    if (!giveUp() && !givenUp_)
        nextFailure_ = leftText();
    leastEnd_ = Moment();
}

/// Returns false if the call has already finished.
bool CallGate::giveUp() {
    if (!call_->giveUp(leftText()))
        return false;
    givenUp_ = true;
    return true;
}

std::string CallGate::leftText() const {
    QString text = tr("Disconnected, as the agent hadn't answered for %1 s.");
    if (call_->awaited() == hessiancln::Awaited::logonService)
        text = tr("Disconnected, as the logon service hadn't answered for %1 s.");
    else if (answersSlowly())
        text = tr("Disconnected, as the agent had answered slowly for %1 s.");
    return session::toWire(text.arg(elapsed().count()));
}

/// Whether the agent has answered calls of this chain, but needs too long for them as a whole.
bool CallGate::answersSlowly() const {
    return call_->awaited() == hessiancln::Awaited::agent && callBegin_ != chain_->begin &&
           Clock::now() < callBegin_ + times_.untilPanel;
}

CallGate::Moment CallGate::awaitedSince() const {
    return answersSlowly() ? chain_->begin : callBegin_;
}

std::chrono::seconds CallGate::elapsed() const {
    return duration_cast<std::chrono::seconds>(Clock::now() - awaitedSince());
}

void CallGate::timerEvent(QTimerEvent* event) {
    if (event->timerId() == timer_.timerId() && loop_)
        loop_->exit(timeOutCode);
}

void CallGate::customEvent(QEvent* event) {
    if (event->type() == wakeType && loop_)
        loop_->exit(wokenCode);
    else if (event->type() == chainEndType) {
        chain_.reset();
        nextFailure_.reset();
    }
}

} // namespace app
