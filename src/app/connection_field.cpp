// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/connection_field.h"

#include <QKeyEvent>

#include "ui/plain_tool_tip.h"

namespace app {

namespace {

constexpr int widest = 320; ///< width of the text; the status text needs room beside it

using Kind = ConnectionState::Kind;

QIcon pictureOf(Kind kind) {
    switch (kind) {
    case Kind::connected:
        return QIcon(QStringLiteral(":/icons/connect.png"));
    case Kind::lost:
        return QIcon(QStringLiteral(":/icons/event_warning.png"));
    case Kind::notConnected:
        break;
    }
    return QIcon(QStringLiteral(":/icons/disconnect.png"));
}

} // namespace

ConnectionField::ConnectionField(QWidget* parent)
    : ElidedToolButton(parent) {
    setObjectName(QStringLiteral("connectionField"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAutoRaise(true);
    setTexts();
    connect(this, &QToolButton::clicked, this, [this] {
        if (state_.kind != Kind::connected)
            emit connectWanted();
    });
}

void ConnectionField::show(const ConnectionState& state) {
    state_ = state;
    setTexts();
}

void ConnectionField::setTexts() {
    const bool connected = state_.kind == Kind::connected;
    setIcon(pictureOf(state_.kind));
    setPlainText(fontMetrics().elidedText(shortText(state_), Qt::ElideRight, widest));
    QString whole = wholeText(state_);
    setAccessibleName(whole);
    if (!connected)
        whole += QLatin1Char('\n') + tr("Click to connect.");
    setToolTip(ui::plainToolTip(whole));
    setFocusPolicy(connected ? Qt::NoFocus : Qt::StrongFocus);
}

void ConnectionField::changeEvent(QEvent* event) {
    ElidedToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange)
        setTexts();
}

void ConnectionField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        ElidedToolButton::keyPressEvent(event);
}

} // namespace app
