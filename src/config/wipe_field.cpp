// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/wipe_field.h"

#include <QLineEdit>

#include "config/wipe.h"

namespace config {

void wipe(QLineEdit& field) {
    QString text = field.text();
    // The field lets go of what it held, which is then ours alone. Clearing it would note each
    // character for an undo.
    field.setText(QString());
    wipe(text);
}

} // namespace config
