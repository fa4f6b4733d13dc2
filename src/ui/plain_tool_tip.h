// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

namespace ui {

/// A tool tip that shows a text of somebody else's as it is, also where it looks like HTML.
QString plainToolTip(const QString& text);

/// The tool tip of a text that is cut in that part of the widget: the whole text, as it is, in
/// lines that fit the screen.
void showWholeText(const QHelpEvent& rest, const QString& text, QWidget& widget, QRect part);

} // namespace ui
