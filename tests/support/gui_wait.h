// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QObject>
#include <QString>
#include <QWidget>

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

/// The panel that lets the user disconnect from the agent; null unless it is visible.
QWidget* waitingPanel();

/// The panel's text without the number of seconds, or an empty string.
QString waitingText();

/// Clicks the panel's button.
void clickDisconnect();

/// The beginning of the error of a call that the user has ended.
inline const QString leftAgent = QStringLiteral("Disconnected, as the agent hadn't answered for ");

} // namespace support
