// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/wipe_field.h"

#include <QAccessible>
#include <QLineEdit>

#include "config/wipe.h"

namespace config {

namespace {

/// Keeps all announcements back while it lives.
class Silence {
public:
    Silence()
        : previous_(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}
    ~Silence() { QAccessible::installUpdateHandler(previous_); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    QAccessible::UpdateHandler previous_;
};

} // namespace

void fill(QLineEdit& field, const QString& secret) {
    QString held = field.text();
    {
        const Silence silence;
        field.setText(secret);
    }
    // The field has let go of it, so that it is ours alone.
    wipe(held);
}

void wipe(QLineEdit& field) {
    // Clearing it would note each character for an undo.
    fill(field, QString());
}

} // namespace config
