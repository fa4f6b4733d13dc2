// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/plain_tool_tip.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace ui {

QString plainToolTip(const QString& text) {
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

void showWholeText(const QHelpEvent& rest, const QString& text, QWidget& widget, QRect part) {
    QToolTip::showText(rest.globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal),
                       &widget, part);
}

} // namespace ui
