// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/call_gate.h"

#include <algorithm>
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
    , rules_{{ui::laterEventType()}, {}}
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

void CallGate::wait(hessiancln::AwaitedCall& call) noexcept {
    begin_ = Clock::now() - times_.untilPainting;
    call_ = &call;
    {
        const PaintingWidgets asTheyAre;
        const HeldEvents held(rules_, *panel_, [this] {
            if (panel_->isVisible())
                leave();
        });
        call.onFinish([this] { wake(*this); });
        keepPainting(call);
        offerToLeave(call);
        call.onFinish({});
        QCoreApplication::removePostedEvents(this, wakeType);
        panel_->showOver(nullptr, call.awaited(), 0s);
    }
    call_ = nullptr;
}

/// Input stays in the queue, as during a short call.
void CallGate::keepPainting(hessiancln::AwaitedCall& call) {
    const auto due = begin_ + times_.untilPanel;
    while (!call.finished() && Clock::now() < due) {
        const auto rest = std::chrono::ceil<milliseconds>(due - Clock::now());
        if (run(QEventLoop::ExcludeUserInputEvents, rest) == Outcome::programEnds)
            leave();
    }
}

void CallGate::offerToLeave(hessiancln::AwaitedCall& call) {
    if (!call.finished())
        closeDroppedList();
    while (!call.finished()) {
        panel_->showOver(windowInFront(), call.awaited(), elapsed());
        const auto untilNextSecond =
            std::chrono::ceil<milliseconds>(begin_ + elapsed() + 1s - Clock::now());
        if (leaving_ || run(QEventLoop::AllEvents, untilNextSecond) == Outcome::programEnds)
            leave();
    }
}

CallGate::Outcome CallGate::run(int flags, milliseconds limit) {
    QEventLoop loop;
    loop_ = &loop;
    timer_.start(static_cast<int>(limit.count()), Qt::PreciseTimer, this);
    const int code = loop.exec(static_cast<QEventLoop::ProcessEventsFlag>(flags));
    timer_.stop();
    loop_ = nullptr;
    if (code == wokenCode)
        return Outcome::woken;
    if (code == timeOutCode)
        return Outcome::timeOut;
    quitRequested_ = true;
    return Outcome::programEnds;
}

void CallGate::leave() {
    if (!call_)
        return;
    const QString text = call_->awaited() == hessiancln::Awaited::agent
                             ? tr("Disconnected, as the agent hadn't answered for %1 s.")
                             : tr("Disconnected, as the logon service hadn't answered for %1 s.");
    call_->giveUp(session::toWire(text.arg(elapsed().count())));
}

std::chrono::seconds CallGate::elapsed() const {
    return duration_cast<std::chrono::seconds>(Clock::now() - begin_);
}

void CallGate::timerEvent(QTimerEvent* event) {
    if (event->timerId() == timer_.timerId() && loop_)
        loop_->exit(timeOutCode);
}

void CallGate::customEvent(QEvent* event) {
    if (event->type() == wakeType && loop_)
        loop_->exit(wokenCode);
}

} // namespace app
