// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

namespace app {

/// The connection as shown to the user. Whether there is one is up to the session.
struct ConnectionState {
    enum class Kind { notConnected, connected, lost };

    Kind kind = Kind::notConnected;
    QString server;   ///< server of the last session
    QString user;     ///< likewise
    QString cause;    ///< cause of a loss
    QDateTime lostAt; ///< likewise
};

/// Abbreviated, though a cause may be long.
QString shortText(const ConnectionState& state);

/// All known details.
QString wholeText(const ConnectionState& state);

/// How and why the session ended; empty during a session.
QString endText(const ConnectionState& state);

} // namespace app
