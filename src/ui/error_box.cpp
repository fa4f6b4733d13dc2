// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/error_box.h"

#include <algorithm>
#include <memory>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>

#include "session/text.h"
#include "ui/screen_fit.h"
#include "ui/standard_buttons.h"

namespace ui {

namespace {

constexpr QSize textSize(480, 240);
constexpr int widestBox = 500;  ///< of a text that wraps, in Qt
constexpr int besideText = 100; ///< in a box: picture and margins
constexpr int tallestText = 320;
constexpr int mostCharacters = 4000; ///< which needn't be measured

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ErrorBox)
};

/// Whether a text is taller than a box should be, or than half of its screen.
bool isLong(const QMessageBox& box) {
    if (box.text().size() > mostCharacters)
        return true;
    const QWidget* place = box.parentWidget() ? box.parentWidget() : &box;
    const QSize room = largestWindow(place->screen()->availableGeometry());
    const int width = std::min(room.width() / 2, widestBox) - besideText;
    const QRect lines = box.fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX),
                                                       Qt::TextWrapAnywhere, box.text());
    return lines.height() > std::min(room.height() / 2, tallestText);
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
    if (isLong(box))
        letTextScroll(box);
    box.exec();
}

} // namespace ui
