// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/held_events.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTimer>
#include <QTreeView>
#include <QWidget>
#include <QWindow>

namespace app {

namespace {

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::Gesture:
    case QEvent::GestureOverride:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

/// Events that a window passes on to its widgets even if they are refused: it must know when the
/// mouse buttons are released, and where the mouse is.
bool keepsTrack(QEvent::Type type) {
    return type == QEvent::MouseButtonRelease || type == QEvent::MouseMove;
}

QWidget* topLevelOf(const QObject& window) {
    const auto all = QApplication::topLevelWidgets();
    const auto found = std::find_if(all.begin(), all.end(), [&](const QWidget* widget) {
        return widget->windowHandle() == &window;
    });
    return found == all.end() ? nullptr : *found;
}

/// The widget to which input to a window is addressed.
QWidget* targetIn(QWidget& window, const QEvent& event) {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (const auto* mouse = dynamic_cast<const QMouseEvent*>(&event)) {
        QWidget* child = window.childAt(mouse->pos());
        return child ? child : &window;
    }
    if (const auto* touch = dynamic_cast<const QTouchEvent*>(&event)) {
        if (touch->touchPoints().isEmpty())
            return &window;
        QWidget* child = window.childAt(touch->touchPoints().first().pos().toPoint());
        return child ? child : &window;
    }
    QWidget* focus = window.focusWidget();
    return focus ? focus : &window;
}

/// The action that a key or a click in a menu would trigger, or null.
QAction* triggeredIn(const QMenu& menu, const QEvent& event) {
    if (event.type() == QEvent::MouseButtonRelease)
        return menu.actionAt(static_cast<const QMouseEvent&>(event).pos());
    if (event.type() != QEvent::KeyPress)
        return nullptr;
    const auto& key = static_cast<const QKeyEvent&>(event);
    const auto actions = menu.actions();
    const auto named = std::find_if(actions.begin(), actions.end(), [&](const QAction* action) {
        return QKeySequence::mnemonic(action->text()) ==
               QKeySequence(key.key() + static_cast<int>(Qt::ALT));
    });
    return named != actions.end() ? *named : menu.activeAction();
}

bool isMoveInMenu(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    switch (static_cast<const QKeyEvent&>(event).key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Escape:
        return true;
    default:
        return false;
    }
}

/// Whether its timers run code of the program, or step and click on the user's behalf.
bool actsOnTimers(const QObject& receiver) {
    return qobject_cast<const QTimer*>(&receiver) || receiver.inherits("QSingleShotTimer") ||
           qobject_cast<const QAbstractSpinBox*>(&receiver) ||
           qobject_cast<const QAbstractButton*>(&receiver);
}

/// Makes a tree lay itself out immediately, perhaps during a layout that fetches rows.
bool laysOutTree(const QObject& receiver, QEvent::Type type) {
    return (type == QEvent::StyleChange || type == QEvent::FontChange) &&
           qobject_cast<const QTreeView*>(&receiver);
}

} // namespace

HeldEvents::HeldEvents(const WaitRules& rules, const QWidget& panel, std::function<void()> escape)
    : rules_(rules)
    , panel_(panel)
    , escape_(std::move(escape)) {
    QCoreApplication::instance()->installEventFilter(this);
    silenceActions();
}

HeldEvents::~HeldEvents() {
    for (const auto& [action, checked] : silenced_) {
        if (!action)
            continue;
        action->setChecked(checked);
        action->blockSignals(false);
    }
    QCoreApplication::instance()->removeEventFilter(this);
    for (Held& held : held_)
        if (held.receiver)
            QCoreApplication::postEvent(held.receiver, held.event.release());
    for (const auto& object : doomed_)
        if (object)
            object->deleteLater();
}

bool HeldEvents::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::DeferredDelete) {
        doomed_.emplace_back(watched);
        return true;
    }
    if (rules_.heldTypes.count(type) != 0 || laysOutTree(*watched, type)) {
        holdOnce(*watched, type);
        return true;
    }
    // Timers fire again.
    if (type == QEvent::Timer)
        return actsOnTimers(*watched) && !isInPanel(*watched);
    if (type == QEvent::Close && event->spontaneous()) {
        event->ignore();
        return true;
    }
    if (!isInput(type))
        return false;
    if (auto* widget = qobject_cast<QWidget*>(watched))
        return holdsInput(*watched, widget, *event);
    if (type == QEvent::Shortcut)
        return !isAdmitted(qobject_cast<QAction*>(watched));
    if (!watched->isWindowType() || keepsTrack(type))
        return false;
    QWidget* window = topLevelOf(*watched);
    return holdsInput(*watched, window ? targetIn(*window, *event) : nullptr, *event);
}

bool HeldEvents::holdsInput(QObject& receiver, QWidget* target, QEvent& event) {
    if (target && isAdmitted(*target, event))
        return false;
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent&>(event).key();
        pressedKeys_.insert(key);
        if (key == Qt::Key_Escape)
            escape_();
    }
    holdRelease(receiver, event);
    event.setAccepted(event.type() != QEvent::DragEnter && event.type() != QEvent::DragMove &&
                      event.type() != QEvent::Drop);
    return true;
}

bool HeldEvents::isAdmitted(QWidget& target, const QEvent& event) const {
    if (isInPanel(target)) {
        const auto* key = dynamic_cast<const QKeyEvent*>(&event);
        return !key || key->key() != Qt::Key_Escape;
    }
    // On desktops where the tray icon is a window, this is its class.
    if (target.inherits("QSystemTrayIconSys") || qobject_cast<QMenuBar*>(&target))
        return true;
    const auto* menu = qobject_cast<QMenu*>(&target);
    if (!menu)
        return false;
    const QAction* action = isMoveInMenu(event) ? nullptr : triggeredIn(*menu, event);
    return !action || action->menu() || isAdmitted(action);
}

bool HeldEvents::isAdmitted(const QAction* action) const {
    return std::find(rules_.admittedActions.begin(), rules_.admittedActions.end(), action) !=
           rules_.admittedActions.end();
}

bool HeldEvents::isInPanel(const QObject& receiver) const {
    const auto* widget = qobject_cast<const QWidget*>(&receiver);
    return widget && (widget == &panel_ || panel_.isAncestorOf(widget));
}

/// A screen reader, for example, triggers an action without any input. A checkable one still
/// changes its state.
void HeldEvents::silenceActions() {
    for (const QWidget* widget : QApplication::allWidgets())
        for (QAction* action : widget->actions())
            if (!action->signalsBlocked() && !isAdmitted(action)) {
                action->blockSignals(true);
                silenced_.push_back({action, action->isChecked()});
            }
}

void HeldEvents::holdOnce(QObject& receiver, QEvent::Type type) {
    if (heldOnce_.emplace(&receiver, type).second)
        held_.push_back({&receiver, std::make_unique<QEvent>(type)});
}

void HeldEvents::holdRelease(QObject& receiver, const QEvent& event) {
    if (event.type() == QEvent::MouseButtonRelease) {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        held_.push_back({&receiver, std::make_unique<QMouseEvent>(mouse)});
    } else if (event.type() == QEvent::KeyRelease) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        if (pressedKeys_.erase(key.key()) == 0)
            held_.push_back({&receiver, std::make_unique<QKeyEvent>(key)});
    }
}

} // namespace app
