// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

namespace ui {

/// A tool tip that shows external text verbatim, even if it looks like HTML.
QString plainToolTip(const QString& text);

/// Shows the tool tip for text that is cut off in `part` of the widget: the full text, verbatim,
/// wrapped to fit the screen.
void showWholeText(const QHelpEvent& rest, const QString& text, QWidget& widget, QRect part);

} // namespace ui
