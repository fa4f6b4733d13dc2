// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/error_box.h"

#include <memory>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>

#include "session/text.h"
#include "ui/standard_buttons.h"

namespace ui {

namespace {

constexpr int mostCharacters = 2000;
constexpr int mostLines = 20;
constexpr QSize textSize(480, 240);

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ErrorBox)
};

bool isLong(const QString& text) {
    return text.size() > mostCharacters || text.count(QLatin1Char('\n')) >= mostLines;
}

/// A box grows with its text, which would push the button below a long one off the screen.
void letTextScroll(QMessageBox& box) {
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!label || !box.layout())
        return;
    auto* area = new QScrollArea(&box);
    const std::unique_ptr<QLayoutItem> item(box.layout()->replaceWidget(label, area));
    area->setWidget(label);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setAccessibleName(box.windowTitle());
    area->setMinimumSize(textSize);
}

} // namespace

QString errorText(const std::exception& error) {
    const QString text = session::fromWire(error.what());
    return text.trimmed().isEmpty() ? Texts::tr("The agent gave no reason.") : text;
}

void showError(QWidget* parent, const QString& title, const QString& text) {
    // Text from an agent is shown verbatim, so it must not be interpreted as HTML.
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    setStandardButtonPictures(box);
    if (isLong(text))
        letTextScroll(box);
    box.exec();
}

} // namespace ui
