// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/secret_field.h"

#include <algorithm>

#include <QAccessible>
#include <QSignalBlocker>

#include "session/secret_text.h"
#include "session/text.h"

namespace ui {

namespace {

/// Suppresses accessibility announcements during its lifetime.
class Silence {
public:
    Silence()
        : previous_(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() { QAccessible::installUpdateHandler(previous_); }

private:
    QAccessible::UpdateHandler previous_;
};

} // namespace

SecretField::SecretField(QWidget* parent)
    : QLineEdit(parent) {
    replace(QString());
}

SecretField::~SecretField() {
    blockSignals(true); // listeners may be half destroyed
    wipe();
}

base::Secret SecretField::secret() const {
    return session::secretToWire(text());
}

void SecretField::setSecret(const std::string& utf8) {
    replace(session::fromWire(utf8));
}

void SecretField::wipe() {
    replace(QString());
}

void SecretField::replace(const QString& fresh) {
    QString held = text();
    QString shown = displayText(); // another copy, unless the content is hidden
    const bool changes = held != fresh;
    {
        const Silence silence;
        const QSignalBlocker quiet(this);
        // Clearing a field drops its edit history but keeps the memory, so that the next edits
        // overwrite it.
        setText(QString());
        insert(QString(std::min(roomForEdits, maxLength()), QLatin1Char(' ')));
        setText(fresh);
    }
    // The field has released them, so nothing else shares them.
    session::wipe(held);
    session::wipe(shown);
    if (changes)
        emit textChanged(text());
}

} // namespace ui
