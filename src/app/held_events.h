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

/// What may go on while a call is waited for.
struct WaitRules {
    /// Posted events that lead to calls. They are made up for once afterwards.
    std::set<QEvent::Type> heldTypes;
    /// What menus may still trigger.
    std::vector<QPointer<QAction>> admittedActions;
};

/// For as long as it lives, keeps from the program all events that could lead to a call, and lets
/// pass those that it needs to paint, to move and to end. For a nested event loop.
///
/// Input is refused, except that for `panel`, for the tray and, through menus, for the admitted
/// actions. What is held instead is delivered later, once this object has gone: the rules' own
/// posted events, deletions, and the release of what was pressed before.
class HeldEvents : public QObject {
    Q_OBJECT
public:
    /// `escape` is run for the Esc key. The rules and the panel have to outlive this object.
    HeldEvents(const WaitRules& rules, const QWidget& panel, std::function<void()> escape);
    ~HeldEvents() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Held {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    bool holdsInput(QObject& receiver, QWidget* target, QEvent& event);
    bool isAdmitted(QWidget& target, const QEvent& event) const;
    bool isAdmitted(const QAction* action) const;
    void holdOnce(QObject& receiver, QEvent::Type type);
    void holdRelease(QObject& receiver, const QEvent& event);

    const WaitRules& rules_;
    const QWidget& panel_;
    std::function<void()> escape_;
    std::vector<Held> held_;
    std::set<std::pair<QObject*, QEvent::Type>> heldOnce_;
    std::vector<QPointer<QObject>> doomed_;
    std::set<int> pressedKeys_; ///< since this object lives
};

} // namespace app
