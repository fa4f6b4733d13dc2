// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/session_ended_line.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QWizard>

#include "ui/plain_tool_tip.h"

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
            line->makeRoom(0);
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
    makeRoom(heightForWidth(dialog_.width()));
}

void SessionEndedLine::makeRoom(int needed) {
    const int more = needed - room_;
    room_ = needed;
    QWidget& content = contentOf(dialog_);
    const QMargins margins = content.contentsMargins();
    const bool fixed = dialog_.minimumHeight() == dialog_.maximumHeight();
    content.setContentsMargins(margins.left(), margins.top() + more, margins.right(),
                               margins.bottom());
    if (fixed)
        dialog_.setFixedHeight(dialog_.height() + more);
    else
        dialog_.resize(dialog_.width(), dialog_.height() + more);
}

void SessionEndedLine::place() {
    setGeometry(0, 0, dialog_.width(), room_);
}

bool SessionEndedLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &dialog_ && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

} // namespace app
