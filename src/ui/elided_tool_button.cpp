// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/elided_tool_button.h"

#include <algorithm>

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace ui {

namespace {

constexpr int fewestLetters = 8;

} // namespace

ElidedToolButton::ElidedToolButton(QWidget* parent)
    : QToolButton(parent) {
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void ElidedToolButton::setPlainText(const QString& text) {
    setText(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
}

int ElidedToolButton::textWidth(const QString& text) const {
    return fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

QSize ElidedToolButton::minimumSizeHint() const {
    QSize size = sizeHint();
    const int least = textWidth(text().left(fewestLetters) + QChar(0x2026));
    size.rwidth() -= std::max(0, textWidth(text()) - least);
    return size;
}

void ElidedToolButton::paintEvent(QPaintEvent*) {
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const int room = width() - (sizeHint().width() - textWidth(text()));
    if (room < textWidth(text()))
        option.text = fontMetrics().elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
    QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
}

} // namespace ui
