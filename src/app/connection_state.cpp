// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/connection_state.h"

#include <QCoreApplication>
#include <QLocale>

namespace app {

namespace {

struct ConnectionTexts {
    Q_DECLARE_TR_FUNCTIONS(ConnectionTexts)
};

QString onOneLine(const QString& text) {
    return text.simplified();
}

} // namespace

QString shortText(const ConnectionState& state) {
    switch (state.kind) {
    case ConnectionState::Kind::connected:
        return ConnectionTexts::tr("Connected to %1").arg(onOneLine(state.server));
    case ConnectionState::Kind::lost:
        return ConnectionTexts::tr("Lost at %1: %2")
            .arg(QLocale().toString(state.lostAt.time(), QLocale::ShortFormat),
                 onOneLine(state.cause));
    case ConnectionState::Kind::notConnected:
        break;
    }
    return ConnectionTexts::tr("Not connected");
}

QString wholeText(const ConnectionState& state) {
    switch (state.kind) {
    case ConnectionState::Kind::connected:
        return ConnectionTexts::tr("Connected to %1 as %2").arg(state.server, state.user);
    case ConnectionState::Kind::lost:
        return ConnectionTexts::tr("The connection to %1 was lost at %2:")
                   .arg(state.server, QLocale().toString(state.lostAt, QLocale::ShortFormat)) +
               QLatin1Char('\n') + state.cause;
    case ConnectionState::Kind::notConnected:
        break;
    }
    return ConnectionTexts::tr("Not connected to an agent");
}

QString endText(const ConnectionState& state) {
    switch (state.kind) {
    case ConnectionState::Kind::connected:
        return {};
    case ConnectionState::Kind::lost:
        return ConnectionTexts::tr("The session has ended: %1").arg(state.cause);
    case ConnectionState::Kind::notConnected:
        break;
    }
    return ConnectionTexts::tr("The session has ended.");
}

} // namespace app
