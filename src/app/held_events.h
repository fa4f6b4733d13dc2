// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <utility>
#include <vector>

#include <QAction>
#include <QEvent>
#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;

namespace app {

/// What is allowed during a call.
struct WaitRules {
    /// Posted events that lead to calls. Each type is redelivered once afterwards.
    std::set<QEvent::Type> heldTypes;
    /// Actions that menus may still trigger.
    std::vector<QPointer<QAction>> admittedActions;
};

/// For its lifetime, blocks all events that could lead to a call, and passes those that the program
/// needs to paint, to move windows and to quit. For a nested event loop.
///
/// Input is refused, except for `panel`, for the tray and, through menus, for the admitted actions.
/// Other actions don't emit signals, whatever triggers them, and end up checked as they were.
/// The following are held and delivered after this object is destroyed: the posted events of the
/// rules, deletions, and the release of keys and buttons pressed before.
class HeldEvents : public QObject {
    Q_OBJECT
public:
    /// `escape` runs on the Esc key. The rules and the panel must outlive this object.
    HeldEvents(const WaitRules& rules, const QWidget& panel, std::function<void()> escape);
    ~HeldEvents() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Held {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    struct Silenced {
        QPointer<QAction> action;
        bool checked;
    };

    bool holdsInput(QObject& receiver, QWidget* target, QEvent& event);
    bool isAdmitted(QWidget& target, const QEvent& event) const;
    bool isAdmitted(const QAction* action) const;
    bool isInPanel(const QObject& receiver) const;
    void silenceActions();
    void holdOnce(QObject& receiver, QEvent::Type type);
    void holdRelease(QObject& receiver, const QEvent& event);

    const WaitRules& rules_;
    const QWidget& panel_;
    std::function<void()> escape_;
    std::vector<Held> held_;
    std::set<std::pair<QObject*, QEvent::Type>> heldOnce_;
    std::vector<QPointer<QObject>> doomed_;
    std::vector<Silenced> silenced_;
    std::set<int> pressedKeys_; ///< during the lifetime of this object
};

} // namespace app
