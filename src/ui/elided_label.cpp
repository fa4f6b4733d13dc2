// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>

#include "ui/plain_tool_tip.h"

namespace ui {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(QChar(0x2026)), QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::isCut() const {
    return sizeHint().width() > width();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isCut()) {
        showWholeText(*static_cast<QHelpEvent*>(event), text(), *this, rect());
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    if (!isCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QRect place = contentsRect();
    style()->drawItemText(
        &painter, place, static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
        palette(), isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, place.width()),
        foregroundRole());
}

} // namespace ui
