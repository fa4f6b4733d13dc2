// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/end_to_end/screen.h"

#include <QAction>
#include <QMainWindow>
#include <QTableView>
#include <QTimer>

namespace end_to_end {

int rows(const char* table) {
    auto* window = topLevel<QMainWindow>();
    auto* view = window ? window->findChild<QTableView*>(q(table)) : nullptr;
    return view && view->model() ? view->model()->rowCount() : 0;
}

bool trigger(const char* action) {
    auto* window = topLevel<QMainWindow>();
    auto* found = window ? window->findChild<QAction*>(q(action)) : nullptr;
    if (!found || !found->isEnabled() || modal<QWidget>())
        return false;
    QTimer::singleShot(0, found, &QAction::trigger);
    return true;
}

bool click(QAbstractButton* button) {
    if (!button || !button->isVisible() || !button->isEnabled())
        return false;
    QTimer::singleShot(0, button, &QAbstractButton::click);
    return true;
}

Player::Step looks(int count) {
    return [count]() mutable { return --count <= 0; };
}

} // namespace end_to_end
