// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>

class QApplication;
class QLayout;
class QRect;
class QWidget;
class QWizard;

/// Windows on small screens: they get no larger than the screen, and what has no room scrolls.
namespace ui {

/// The largest size that a window may have on a screen with that much room, so that its frame has
/// room too.
QSize largestWindow(const QRect& available);

/// Makes a window, before it is shown, no larger than its screen.
void keepOnScreen(QWidget& window);

/// From here on each dialog of the program opens no larger than its screen.
void keepDialogsOnScreen(QApplication& application);

/// Lets the content of a page or a dialog scroll where it has too little room. A dialog opens large
/// enough for its content if the screen is. If it ends with a row of buttons, those stay where they
/// are.
void letContentScroll(QWidget& page, QLayout* buttons = nullptr);
void letContentScroll(QWidget& page, QWidget& buttons);

/// A page that shows more later than it does at first.
class GrowingPage {
public:
    virtual ~GrowingPage() = default;

    /// What it wants when it shows all that it may.
    virtual QSize largestSize() const = 0;
};

/// Lets the pages of a wizard scroll, and gives it one size, in which all of them have room if the
/// screen has it.
void giveOneSize(QWizard& wizard);

} // namespace ui
