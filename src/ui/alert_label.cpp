// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/alert_label.h"

#include <QAccessibleWidget>

namespace ui {

namespace {

/// Called by Qt, which owns the result, for each class from that of the object up to QObject.
QAccessibleInterface* alertOf(const QString& className, QObject* object) {
    auto* label = qobject_cast<AlertLabel*>(object);
    if (!label || className != QLatin1String(AlertLabel::staticMetaObject.className()))
        return nullptr;
    return new QAccessibleWidget(label, QAccessible::AlertMessage); // Qt is the owner
}

} // namespace

AlertLabel::AlertLabel(QWidget* parent)
    : QLabel(parent) {
    static const bool isKnown = (QAccessible::installFactory(alertOf), true);
    Q_UNUSED(isKnown)
}

void AlertLabel::announce(const QString& text) {
    setText(text);
    setAccessibleName(text);
    if (!isVisible())
        return; // it is announced as it appears
    QAccessibleEvent appears(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appears);
}

} // namespace ui
