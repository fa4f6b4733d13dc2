// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/error_box.h"

#include <QMessageBox>

#include "session/text.h"

namespace ui {

QString errorText(const std::exception& error) {
    return session::fromWire(error.what());
}

void showError(QWidget* parent, const QString& title, const QString& text) {
    // A text from an agent is shown as it came, so it must not be taken for HTML.
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace ui
