// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/session_ended_line.h"

#include <algorithm>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <QWizard>

#include "ui/plain_tool_tip.h"
#include "ui/screen_fit.h"

namespace app {

namespace {

constexpr int pictureSize = 16;

/// The widget with the dialog's layout. A wizard has all of its parts in one widget.
QWidget& contentOf(QDialog& dialog) {
    if (qobject_cast<QWizard*>(&dialog))
        for (QWidget* part : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (part->layout() && !qobject_cast<QFrame*>(part))
                return *part;
    return dialog;
}

bool saysOnlySomething(const QDialog& dialog) {
    return qobject_cast<const QMessageBox*>(&dialog) || qobject_cast<const QFileDialog*>(&dialog);
}

} // namespace

void SessionEndedLine::showInOpenDialogs(const QString& text) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<QDialog*>(window);
        if (!dialog || !dialog->isVisible() || saysOnlySomething(*dialog))
            continue;
        auto* line = dialog->findChild<SessionEndedLine*>(QString(), Qt::FindDirectChildrenOnly);
        if (!line)
            line = new SessionEndedLine(*dialog);
        line->setText(text);
    }
}

void SessionEndedLine::removeFromOpenWindows() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isModal())
            continue;
        auto* line = window->findChild<SessionEndedLine*>(QString(), Qt::FindDirectChildrenOnly);
        if (line)
            line->giveRoomBack();
        delete line;
    }
}

SessionEndedLine::SessionEndedLine(QDialog& dialog)
    : QFrame(&dialog)
    , dialog_(dialog)
    , label_(*new QLabel(this)) {
    setObjectName(QStringLiteral("sessionEndedLine"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    label_.setObjectName(QStringLiteral("labelSessionEnded"));
    label_.setTextFormat(Qt::PlainText);
    label_.setWordWrap(true);
    label_.setForegroundRole(QPalette::ToolTipText);
    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(QStringLiteral(":/icons/event_warning.png")).pixmap(pictureSize));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addWidget(&label_, 1);
    dialog.installEventFilter(this);
}

void SessionEndedLine::setText(const QString& text) {
    label_.setText(text);
    setAccessibleName(text);
    setToolTip(ui::plainToolTip(text));
    // Fonts are known only for visible widgets.
    show();
    makeRoom();
    place();
    raise();
}

/// Done once, for the dialog's current width; a text that needs more lines later is cut off.
void SessionEndedLine::makeRoom() {
    height_ = heightForWidth(dialog_.width());
    const int freed = std::clamp(height_, 0, largestFreed());
    // Before the margin, which would make the dialog grow to its minimum size.
    grown_ += ui::growOnScreen(dialog_, std::max(freed - freed_, 0));
    setFreed(freed);
}

void SessionEndedLine::giveRoomBack() {
    setFreed(0);
    if (dialog_.minimumHeight() == dialog_.maximumHeight())
        dialog_.setFixedHeight(dialog_.height() - grown_);
    else
        dialog_.resize(dialog_.width(), dialog_.height() - grown_);
}

void SessionEndedLine::setFreed(int height) {
    QWidget& content = contentOf(dialog_);
    const QMargins margins = content.contentsMargins();
    content.setContentsMargins(margins.left(), margins.top() + height - freed_, margins.right(),
                               margins.bottom());
    freed_ = height;
}

/// The largest freed height with which the dialog still fits its screen.
int SessionEndedLine::largestFreed() const {
    const QScreen* screen = dialog_.screen();
    if (!screen)
        return height_;
    const QLayout* layout = contentOf(dialog_).layout();
    const int least = layout ? layout->totalMinimumSize().height() - freed_ : 0;
    return std::max(ui::largestWindow(screen->availableGeometry()).height() - least, 0);
}

void SessionEndedLine::place() {
    setGeometry(0, 0, dialog_.width(), height_);
}

bool SessionEndedLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &dialog_ && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

} // namespace app
