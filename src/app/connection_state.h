// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

namespace app {

/// What the user sees of the connection. Whether there is one, the session knows.
struct ConnectionState {
    enum class Kind { notConnected, connected, lost };

    Kind kind = Kind::notConnected;
    QString server;   ///< of the last session
    QString user;     ///< likewise
    QString cause;    ///< of a loss
    QDateTime lostAt; ///< likewise
};

/// In a few words, though a cause may be long.
QString shortText(const ConnectionState& state);

/// All that is known.
QString wholeText(const ConnectionState& state);

/// What has become of the session, and why; empty while it lasts.
QString endText(const ConnectionState& state);

} // namespace app
