// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_palettes.h"

#include <QApplication>

namespace support {

namespace {

struct Colours {
    QColor window, base, alternateBase, button, text, disabledText, highlight, highlightedText,
        link;
};

QPalette paletteOf(const Colours& colours) {
    QPalette palette(colours.text, colours.button, colours.button.lighter(150),
                     colours.window.darker(200), colours.button.lighter(120), colours.text,
                     Qt::white, colours.base, colours.window);
    palette.setColor(QPalette::AlternateBase, colours.alternateBase);
    palette.setColor(QPalette::ToolTipBase, colours.button);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link);
    palette.setColor(QPalette::PlaceholderText, colours.disabledText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.disabledText);
    return palette;
}

} // namespace

QPalette darkPalette() {
    return paletteOf({"#2a2e32", "#1b1e20", "#232629", "#31363b", "#fcfcfc", "#8c9297", "#1d5f86",
                      "#ffffff", "#5fb8ee"});
}

QPalette highContrastPalette() {
    return paletteOf({"#000000", "#000000", "#101010", "#000000", "#ffffff", "#a0a0a0", "#ffff00",
                      "#000000", "#00ffff"});
}

void applyLook() {
    const QByteArray look = qgetenv("TARN_LOOK");
    if (look == "dark")
        QApplication::setPalette(darkPalette());
    else if (look == "contrast")
        QApplication::setPalette(highContrastPalette());
    else if (!look.isEmpty())
        qFatal("There is no look %s", look.constData());
}

} // namespace support
