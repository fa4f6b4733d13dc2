// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/wizards/credential_dialog_driver.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "tests/support/gui_modal_driver.h"

namespace wizards_test {

using support::child;

QString fieldText(QWidget& dialog, const char* edit) {
    return child<QLineEdit>(dialog, edit).text();
}

bool canBeConfirmed(QWidget& dialog) {
    return child<QPushButton>(dialog, "btnOK").isEnabled();
}

void type(QWidget& dialog, const char* edit, const QString& text) {
    auto& field = child<QLineEdit>(dialog, edit);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Backspace);
    // QTest's key events are limited to ASCII.
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&field, &event);
}

void press(QWidget& dialog, const char* button) {
    auto& pressed = child<QAbstractButton>(dialog, button);
    // On the text, as a radio button may be wider than its text.
    QTest::mouseClick(&pressed, Qt::LeftButton, {}, QPoint(12, pressed.height() / 2));
}

} // namespace wizards_test
