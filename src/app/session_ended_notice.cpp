// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/session_ended_notice.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace app {

namespace {

constexpr int usualWidth = 420;
constexpr int gap = 16; ///< to the sides of a narrow list

} // namespace

SessionEndedNotice::SessionEndedNotice(QAbstractItemView& list)
    : QWidget(&list)
    , list_(list)
    , label_(*new QLabel(this))
    , button_(*new QPushButton(this)) {
    setObjectName(QStringLiteral("sessionEndedNotice"));
    label_.setObjectName(QStringLiteral("labelSessionEnded"));
    label_.setTextFormat(Qt::PlainText);
    label_.setAlignment(Qt::AlignCenter);
    label_.setWordWrap(true);
    button_.setObjectName(QStringLiteral("buttonConnect"));
    button_.setIcon(QIcon(QStringLiteral(":/icons/connect.png")));
    connect(&button_, &QPushButton::clicked, this, &SessionEndedNotice::connectWanted);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(&label_);
    layout->addWidget(&button_, 0, Qt::AlignHCenter);
    setTabOrder(&list, &button_);
    list.installEventFilter(this);
    setTexts();
    hide();
}

void SessionEndedNotice::showEnd(const ConnectionState& state) {
    state_ = state;
    setTexts();
    setVisible(state.kind != ConnectionState::Kind::connected);
    place();
}

void SessionEndedNotice::setTexts() {
    label_.setText(endText(state_));
    button_.setText(tr("Connect"));
}

void SessionEndedNotice::place() {
    const QRect area = list_.rect();
    const int wide = std::min(usualWidth, area.width() - 2 * gap);
    const int high = heightForWidth(wide);
    const QRect place(QPoint(), QSize(wide, high));
    setGeometry(place.translated(area.center() - place.center()));
}

bool SessionEndedNotice::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &list_ && event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}

void SessionEndedNotice::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        place();
    }
}

} // namespace app
