// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>

#include <QEvent>
#include <QObject>
#include <QString>
#include <QWidget>

#include "app/call_gate.h"

namespace support {

/// Runs an action during the wait for a call, each time the wait's event loop becomes idle. Unlike
/// a timer, it doesn't depend on the events that the wait lets pass.
class InTheWait : public QObject {
public:
    explicit InTheWait(std::function<void()> act);

private:
    void look();

    std::function<void()> act_;
    bool acting_ = false;
};

/// Counts the paint events of a widget.
class PaintCount : public QObject {
public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

/// The panel that lets the user disconnect from the agent; null unless it is visible.
QWidget* waitingPanel();

/// The panel's text without the number of seconds, or an empty string.
QString waitingText();

/// Clicks the panel's button.
void clickDisconnect();

/// Waits that paint and show the panel sooner than usual.
inline constexpr app::CallGate::Times quickTimes{std::chrono::milliseconds(20),
                                                 std::chrono::milliseconds(60)};

/// The beginning of the error of a call that the user has ended.
inline const QString leftAgent = QStringLiteral("Disconnected, as the agent hadn't answered for ");

} // namespace support
