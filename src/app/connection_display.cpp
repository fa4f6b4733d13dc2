// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/connection_display.h"

#include <QAbstractItemView>
#include <QStatusBar>

#include "app/connection_field.h"
#include "app/session_ended_line.h"
#include "app/session_ended_notice.h"

namespace app {

using Kind = ConnectionState::Kind;

ConnectionDisplay::ConnectionDisplay(QStatusBar& bar, QAbstractItemView& list)
    : QObject(&bar)
    , field_(*new ConnectionField(&bar))
    , notice_(*new SessionEndedNotice(list)) {
    bar.addPermanentWidget(&field_);
    connect(&field_, &ConnectionField::connectWanted, this, &ConnectionDisplay::connectWanted);
    connect(&notice_, &SessionEndedNotice::connectWanted, this, &ConnectionDisplay::connectWanted);
}

void ConnectionDisplay::begin(const QString& server, const QString& user) {
    state_ = {Kind::connected, server, user, {}, {}};
    anyListed_ = false;
    field_.show(state_);
    notice_.showEnd(state_);
    SessionEndedLine::removeFromOpenWindows();
}

void ConnectionDisplay::listed(int sets) {
    anyListed_ = anyListed_ || sets > 0;
}

void ConnectionDisplay::end(const QString& cause) {
    if (state_.kind != Kind::connected)
        return;
    state_.kind = cause.isEmpty() ? Kind::notConnected : Kind::lost;
    state_.cause = cause;
    state_.lostAt = QDateTime::currentDateTime();
    field_.show(state_);
    if (anyListed_)
        notice_.showEnd(state_);
    SessionEndedLine::showInOpenDialogs(endText(state_));
}

} // namespace app
