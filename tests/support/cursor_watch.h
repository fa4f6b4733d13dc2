// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QEvent>
#include <QObject>
#include <QVector>
#include <QWidget>

namespace support {

/// Records, in order, the cursors set on the widgets it is installed on as an event filter.
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
        // The system notifies a window of its cursor a second time.
        if (shown.isEmpty() || shown.last() != shape)
            shown << shape;
    }
};

/// What it records for an action that makes the user wait.
inline const QVector<Qt::CursorShape> waited{Qt::WaitCursor, Qt::ArrowCursor};

} // namespace support
