// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/message_box.h"

#include <QMessageBox>

#include "ui/standard_buttons.h"

namespace ui {

void showInformation(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    setStandardButtonPictures(box);
    box.exec();
}

bool confirms(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    setStandardButtonPictures(box);
    return box.exec() == QMessageBox::Yes;
}

} // namespace ui
