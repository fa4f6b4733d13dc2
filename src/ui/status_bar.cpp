// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/status_bar.h"

#include <algorithm>

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include "ui/plain_tool_tip.h"

namespace ui {

namespace {

constexpr int margin = 6;   ///< before the message
constexpr int distance = 2; ///< between the message and a widget

} // namespace

QRect StatusBar::messagePlace() const {
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    int left = margin;
    int right = width() - margin;
    // While there is a message, only the permanent widgets are visible.
    for (const QWidget* widget : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!widget->isVisible() || widget->isWindow())
            continue;
        if (mirrored)
            left = std::max(left, widget->geometry().right() + distance);
        else
            right = std::min(right, widget->x() - distance);
    }
    return {left, 0, std::max(right - left, 0), height()};
}

bool StatusBar::isCut() const {
    return fontMetrics().horizontalAdvance(currentMessage()) > messagePlace().width();
}

bool StatusBar::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && isCut()) {
        const QRect place = messagePlace();
        auto& help = *static_cast<QHelpEvent*>(event);
        if (place.contains(help.pos())) {
            showWholeText(help, currentMessage(), *this, place);
            return true;
        }
    }
    return QStatusBar::event(event);
}

void StatusBar::paintEvent(QPaintEvent* event) {
    if (!isCut()) {
        QStatusBar::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOption panel;
    panel.initFrom(this);
    style()->drawPrimitive(QStyle::PE_PanelStatusBar, &panel, &painter, this);
    const QRect place = messagePlace();
    style()->drawItemText(&painter, place,
                          static_cast<int>(QStyle::visualAlignment(
                              layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)),
                          palette(), isEnabled(),
                          fontMetrics().elidedText(currentMessage(), Qt::ElideRight, place.width()),
                          QPalette::WindowText);
}

} // namespace ui
