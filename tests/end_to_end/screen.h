// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QWidget>

#include "tests/end_to_end/player.h"

/// What a user sees, and can press.
namespace end_to_end {

inline QString q(const char* text) {
    return QString::fromLatin1(text);
}

/// The window of that kind that is shown; null if there is none.
template <class Widget>
Widget* topLevel() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Widget*>(widget); found && found->isVisible())
            return found;
    return nullptr;
}

/// The dialog in front, if it is of that kind.
template <class Widget>
Widget* modal() {
    return qobject_cast<Widget*>(QApplication::activeModalWidget());
}

/// Of a table in the main window.
int rows(const char* table);

/// Triggers an action of the main window from the event loop, as what it leads to may be modal.
/// False while it can't be reached.
bool trigger(const char* action);

/// Likewise.
bool click(QAbstractButton* button);

/// True when it has been asked so often, so that what appeared has been painted.
Player::Step looks(int count);

} // namespace end_to_end
