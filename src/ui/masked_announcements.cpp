// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/masked_announcements.h"

#include <QAccessible>
#include <QStyle>

#include "ui/secret_field.h"

namespace ui {

namespace {

/// The previous handler; null for Qt's default.
QAccessible::UpdateHandler next = nullptr;

int users = 0;

void announceMasked(QAccessibleEvent* event);

void passOn(QAccessibleEvent& event) {
    // Qt's default can only be reached while no handler is installed.
    QAccessible::installUpdateHandler(next);
    QAccessible::updateAccessibility(&event);
    QAccessible::installUpdateHandler(announceMasked);
}

const SecretField* hidingField(const QAccessibleEvent& event) {
    const auto* field = qobject_cast<SecretField*>(event.object());
    return field && field->echoMode() != QLineEdit::Normal ? field : nullptr;
}

/// The text replaced by mask characters; empty if the field shows nothing.
QString mask(const SecretField& field, const QString& text) {
    if (field.echoMode() == QLineEdit::NoEcho)
        return {};
    const int character =
        field.style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, &field);
    return QString(text.size(), QChar(character));
}

void announceMasked(QAccessibleEvent* event) {
    const SecretField* field = hidingField(*event);
    if (!field)
        return passOn(*event);
    QObject* object = event->object();
    switch (event->type()) {
    case QAccessible::TextInserted: {
        const auto& edit = static_cast<const QAccessibleTextInsertEvent&>(*event);
        QAccessibleTextInsertEvent masked(object, edit.changePosition(),
                                          mask(*field, edit.textInserted()));
        masked.setCursorPosition(edit.cursorPosition());
        return passOn(masked);
    }
    case QAccessible::TextRemoved: {
        const auto& edit = static_cast<const QAccessibleTextRemoveEvent&>(*event);
        QAccessibleTextRemoveEvent masked(object, edit.changePosition(),
                                          mask(*field, edit.textRemoved()));
        masked.setCursorPosition(edit.cursorPosition());
        return passOn(masked);
    }
    case QAccessible::TextUpdated: {
        const auto& edit = static_cast<const QAccessibleTextUpdateEvent&>(*event);
        QAccessibleTextUpdateEvent masked(object, edit.changePosition(),
                                          mask(*field, edit.textRemoved()),
                                          mask(*field, edit.textInserted()));
        masked.setCursorPosition(edit.cursorPosition());
        return passOn(masked);
    }
    case QAccessible::ValueChanged: {
        const QVariant value = static_cast<const QAccessibleValueChangeEvent&>(*event).value();
        QAccessibleValueChangeEvent masked(object, mask(*field, value.toString()));
        return passOn(masked);
    }
    default:
        passOn(*event);
    }
}

} // namespace

MaskedAnnouncements::MaskedAnnouncements() {
    ++users;
    const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler(announceMasked);
    if (before != announceMasked)
        next = before;
}

MaskedAnnouncements::~MaskedAnnouncements() {
    if (--users > 0)
        return;
    const QAccessible::UpdateHandler last = QAccessible::installUpdateHandler(next);
    // A later handler stays.
    if (last != announceMasked)
        QAccessible::installUpdateHandler(last);
}

} // namespace ui
