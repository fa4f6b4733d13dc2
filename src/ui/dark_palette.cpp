// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/dark_palette.h"

#include <QApplication>
#include <QStyle>
#include <QToolTip>

namespace ui {

namespace {

void disable(QPalette& palette) {
    const QColor text("#8c9297");
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
          QPalette::Link, QPalette::LinkVisited, QPalette::ToolTipText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, text);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, "#31363b");
}

} // namespace

QPalette darkPalette() {
    const QColor text("#fcfcfc");
    const QColor window("#2a2e32");
    const QColor base("#1b1e20");
    const QColor button("#31363b");
    QPalette palette(text, button, button.lighter(150), window.darker(200), button.lighter(120),
                     text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, "#232629");
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, "#1d5f86");
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, "#5fb8ee");
    palette.setColor(QPalette::LinkVisited, "#c0a0f0");
    palette.setColor(QPalette::PlaceholderText, "#8c9297");
    disable(palette);
    return palette;
}

void useDarkPalette(QApplication& application) {
    if (!application.style()->inherits("QFusionStyle"))
        return;
    const QPalette palette = darkPalette();
    QApplication::setPalette(palette);
    // The system's tool tips have a palette of their own.
    QToolTip::setPalette(palette);
}

} // namespace ui
