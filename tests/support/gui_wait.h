// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QObject>
#include <QString>
#include <QWidget>

namespace support {

/// Does something while a call is waited for, each time that the wait's event loop has nothing left
/// to do. Unlike with a timer, nothing has to let that pass.
class InTheWait : public QObject {
public:
    explicit InTheWait(std::function<void()> act);

private:
    void look();

    std::function<void()> act_;
    bool acting_ = false;
};

/// The panel with which a user may leave the agent; null unless it is seen.
QWidget* waitingPanel();

/// What the panel says, less the number of seconds, or nothing.
QString waitingText();

/// Clicks the panel's button.
void clickDisconnect();

/// The begin of what a call says that the user has ended.
inline const QString leftAgent = QStringLiteral("Disconnected, as the agent hadn't answered for ");

} // namespace support
