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

/// The main window's display of its connection, apart from the status text: a field of the status
/// bar, a notice in a list that has lost its sets, and a line in dialogs that have lost their
/// agent.
class ConnectionDisplay : public QObject {
    Q_OBJECT
public:
    /// Appends the field to `bar`, and adds the notice to `list`.
    ConnectionDisplay(QStatusBar& bar, QAbstractItemView& list);

    /// A login has succeeded.
    void begin(const QString& server, const QString& user);

    /// The list now shows this many sets.
    void listed(int sets);

    /// The session has ended: at the user's request, or with an error as the `cause`. The first
    /// cause after a login is kept.
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
