// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>

class QApplication;
class QLayout;
class QRect;
class QWidget;
class QWizard;

/// Keeps windows within small screens: content that doesn't fit scrolls.
namespace ui {

/// The maximum size of a window on a screen with this available size, leaving room for a frame of
/// the usual size.
QSize largestWindow(const QRect& available);

/// Makes a visible window up to `height` higher, as far as its screen has room, and moves it if it
/// would extend beyond the screen. Returns by how much it has grown.
int growOnScreen(QWidget& window, int height);

/// After this call, no window or dialog of the program opens larger than its screen.
void keepWindowsOnScreen(QApplication& application);

/// Makes the content of a page or dialog scroll if it doesn't fit, by itself to a field that gets
/// the focus. A dialog opens large enough for its content if the screen permits. `buttons`, the row
/// at its end, doesn't scroll.
void letContentScroll(QWidget& page, QLayout* buttons = nullptr);
void letContentScroll(QWidget& page, QWidget& buttons);

/// A page that may grow after it is first shown.
class GrowingPage {
public:
    virtual ~GrowingPage() = default;

    /// Its size hint at its largest, with all widgets visible.
    virtual QSize largestSize() const = 0;
};

/// Makes the pages of a wizard scroll, and gives it one size, in which all of them fit if the
/// screen permits.
void giveOneSize(QWizard& wizard);

} // namespace ui
