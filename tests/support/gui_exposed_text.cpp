// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/gui_exposed_text.h"

#include <QAccessible>
#include <QLineEdit>

namespace support {

bool gives(const QWidget& window, const QString& secret) {
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        QStringList texts{widget->toolTip(), widget->statusTip(), widget->whatsThis(),
                          widget->accessibleName(), widget->accessibleDescription()};
        if (QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget)) {
            for (const auto role : {QAccessible::Name, QAccessible::Description, QAccessible::Value,
                                    QAccessible::Help})
                texts << face->text(role);
            if (auto* text = face->textInterface())
                texts << text->text(0, text->characterCount());
        }
        if (auto* edit = qobject_cast<QLineEdit*>(widget))
            texts << edit->displayText();
        if (!texts.filter(secret).isEmpty())
            return true;
    }
    return false;
}

} // namespace support
