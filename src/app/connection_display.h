// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include "app/connection_state.h"

class QAbstractItemView;
class QStatusBar;

namespace app {

class ConnectionField;
class SessionEndedNotice;

/// What the main window says of its connection beside the status text: a field of the status bar,
/// a notice in the list that has lost its sets, and a line in dialogs that have lost their agent.
class ConnectionDisplay : public QObject {
    Q_OBJECT
public:
    /// Adds the field to `bar`, at its end, and the notice to `list`.
    ConnectionDisplay(QStatusBar& bar, QAbstractItemView& list);

    /// A login has succeeded.
    void begin(const QString& server, const QString& user);

    /// The list shows so many sets.
    void listed(int sets);

    /// The session is over: by the user's will, or with an error for a `cause`. The first cause
    /// after a login is the one that stays.
    void end(const QString& cause = {});

    const ConnectionState& state() const { return state_; }

signals:
    void connectWanted();

private:
    ConnectionField& field_;
    SessionEndedNotice& notice_;
    ConnectionState state_;
    bool anyListed_ = false;
};

} // namespace app
