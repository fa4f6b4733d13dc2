// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/message_box.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include "ui/standard_buttons.h"

namespace ui {

namespace {

/// A question that the Escape key and the title bar's close button leave unanswered. Qt treats
/// either as a click on No.
class Question : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel))
            reject();
        else
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        QDialog::closeEvent(event); // NOLINT(bugprone-parent-virtual-call): see above
    }
};

} // namespace

void showInformation(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    setStandardButtonPictures(box);
    box.exec();
}

std::optional<bool> asks(QWidget* parent, const QString& title, const QString& text) {
    Question box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    setStandardButtonPictures(box);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return true;
    case QMessageBox::No:
        return false;
    default:
        return std::nullopt;
    }
}

bool confirms(QWidget* parent, const QString& title, const QString& text) {
    return asks(parent, title, text).value_or(false);
}

} // namespace ui
