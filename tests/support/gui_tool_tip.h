// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace support {

/// The visible text of the tool tip shown on hovering over that point of the widget; empty without
/// a tool tip.
inline QString tipOf(QWidget& widget, QPoint at) {
    QHelpEvent rest(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &rest);
    if (!rest.isAccepted())
        return {};
    QTextDocument shown;
    shown.setHtml(QToolTip::text());
    return shown.toPlainText();
}

} // namespace support
