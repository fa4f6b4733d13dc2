// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QWidget>

/// The wait cursor, put back whichever way a block is left.
namespace ui {

/// Over a widget for as long as this object lives, and the arrow from then on. The widget may go
/// first.
class WaitCursor {
public:
    explicit WaitCursor(QWidget& widget);
    ~WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    QPointer<QWidget> widget_;
};

/// Over the whole program for as long as this object lives. Such objects may nest.
class OverrideCursor {
public:
    OverrideCursor();
    ~OverrideCursor();
    OverrideCursor(const OverrideCursor&) = delete;
    OverrideCursor& operator=(const OverrideCursor&) = delete;
};

} // namespace ui
