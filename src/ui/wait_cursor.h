// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QWidget>

namespace ui {

/// Shows the wait cursor over a widget for as long as this object lives, and the arrow from then
/// on, whichever way the block was left. The widget may go first.
class WaitCursor {
public:
    explicit WaitCursor(QWidget& widget);
    ~WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    QPointer<QWidget> widget_;
};

} // namespace ui
