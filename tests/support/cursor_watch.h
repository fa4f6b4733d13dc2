// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QEvent>
#include <QObject>
#include <QVector>
#include <QWidget>

namespace support {

/// The cursors that the widgets get for which this is an event filter, in order.
class CursorWatch : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::CursorChange)
            note(static_cast<QWidget*>(watched)->cursor().shape());
        return false;
    }

    QVector<Qt::CursorShape> shown;

private:
    void note(Qt::CursorShape shape) {
        // A window hears of its cursor a second time by way of the system.
        if (shown.isEmpty() || shown.last() != shape)
            shown << shape;
    }
};

/// What it sees of an action that the user has to wait for.
inline const QVector<Qt::CursorShape> waited{Qt::WaitCursor, Qt::ArrowCursor};

} // namespace support
