// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace ui {

/// The wait cursor over the whole program for as long as this object lives. Such objects may nest.
class OverrideCursor {
public:
    OverrideCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~OverrideCursor() { QGuiApplication::restoreOverrideCursor(); }
    OverrideCursor(const OverrideCursor&) = delete;
    OverrideCursor& operator=(const OverrideCursor&) = delete;
};

} // namespace ui
