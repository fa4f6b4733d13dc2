// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/wait_cursor.h"

#include <QGuiApplication>

namespace ui {

WaitCursor::WaitCursor(QWidget& widget)
    : widget_(&widget) {
    widget_->setCursor(Qt::WaitCursor);
}

WaitCursor::~WaitCursor() {
    if (widget_)
        widget_->setCursor(Qt::ArrowCursor);
}

OverrideCursor::OverrideCursor() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

OverrideCursor::~OverrideCursor() {
    QGuiApplication::restoreOverrideCursor();
}

} // namespace ui
