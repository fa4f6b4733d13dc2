// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_palettes.h"

#include <QApplication>

#include "ui/dark_palette.h"

namespace support {

QPalette highContrastPalette() {
    QPalette palette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::white,
                     Qt::black, Qt::black);
    palette.setColor(QPalette::AlternateBase, "#101010");
    palette.setColor(QPalette::ToolTipBase, Qt::black);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, Qt::cyan);
    palette.setColor(QPalette::LinkVisited, Qt::cyan);
    palette.setColor(QPalette::PlaceholderText, "#a0a0a0");
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, "#a0a0a0");
    return palette;
}

void applyLook() {
    const QByteArray look = qgetenv("TARN_LOOK");
    if (look == "dark")
        QApplication::setPalette(ui::darkPalette());
    else if (look == "contrast")
        QApplication::setPalette(highContrastPalette());
    else if (!look.isEmpty())
        qFatal("There is no look %s", look.constData());
}

} // namespace support
