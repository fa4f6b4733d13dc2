// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/status_link.h"

#include <utility>

#include <QIcon>
#include <QMouseEvent>
#include <QStatusBar>
#include <QToolButton>

namespace app {

StatusLink::StatusLink(QStatusBar& bar)
    : QObject(&bar)
    , bar_(bar)
    , button_(*new QToolButton(&bar)) {
    button_.setObjectName(QStringLiteral("buttonStatusEvents"));
    button_.setIcon(QIcon(QStringLiteral(":/button/event_log.png")));
    button_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button_.setAutoRaise(true);
    button_.setFocusPolicy(Qt::TabFocus);
    setTexts();
    bar.addPermanentWidget(&button_);
    bar.installEventFilter(this);
    connect(&bar, &QStatusBar::messageChanged, this, &StatusLink::showOrHide);
    connect(&button_, &QToolButton::clicked, this, &StatusLink::follow);
    showOrHide();
}

void StatusLink::offer(const QString& text, std::function<void()> follow) {
    text_ = text;
    follow_ = std::move(follow);
    showOrHide();
}

bool StatusLink::isShown() const {
    return !text_.isEmpty() && bar_.currentMessage() == text_;
}

void StatusLink::showOrHide() {
    button_.setVisible(isShown());
    if (isShown())
        bar_.setCursor(Qt::PointingHandCursor);
    else
        bar_.unsetCursor();
}

void StatusLink::setTexts() {
    button_.setText(tr("Events"));
    button_.setToolTip(tr("Shows the events of this activity"));
    button_.setAccessibleName(tr("Events of this activity"));
}

void StatusLink::follow() {
    // A copy, because the action may offer another link.
    if (const auto follow = follow_)
        follow();
}

bool StatusLink::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    if (event->type() != QEvent::MouseButtonRelease || !isShown())
        return QObject::eventFilter(watched, event);
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    if (mouse.button() != Qt::LeftButton || !bar_.rect().contains(mouse.pos()))
        return QObject::eventFilter(watched, event);
    follow();
    return true;
}

} // namespace app
