// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QWidget>

/// The wait cursor, restored on every exit from a block.
namespace ui {

/// Shows the wait cursor over a widget for the lifetime of this object, then the arrow. The widget
/// may be destroyed first.
class WaitCursor {
public:
    explicit WaitCursor(QWidget& widget);
    ~WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    QPointer<QWidget> widget_;
};

/// Shows the wait cursor over the whole program for the lifetime of this object. Can be nested.
class OverrideCursor {
public:
    OverrideCursor();
    ~OverrideCursor();
    OverrideCursor(const OverrideCursor&) = delete;
    OverrideCursor& operator=(const OverrideCursor&) = delete;
};

} // namespace ui
