// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QWidget>

#include "tests/end_to_end/player.h"

/// What a user can see and press.
namespace end_to_end {

inline QString q(const char* text) {
    return QString::fromLatin1(text);
}

/// The visible window of that class; null without one.
template <class Widget>
Widget* topLevel() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Widget*>(widget); found && found->isVisible())
            return found;
    return nullptr;
}

/// The active modal dialog if it is of that class, else null.
template <class Widget>
Widget* modal() {
    return qobject_cast<Widget*>(QApplication::activeModalWidget());
}

/// The row count of a table in the main window.
int rows(const char* table);

/// Triggers an action of the main window from the event loop, because it may open a modal dialog.
/// Returns false while the user can't reach the action.
bool trigger(const char* action);

/// Likewise for a button.
bool click(QAbstractButton* button);

/// True after this many calls, so that new widgets have been painted.
Player::Step looks(int count);

} // namespace end_to_end
