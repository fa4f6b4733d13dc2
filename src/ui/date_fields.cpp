// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/date_fields.h"

#include <QDateTimeEdit>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace ui {

namespace {

/// The margins in a line edit, and the cursor.
constexpr int spaceAroundText = 5;

int textWidth(const QDateTimeEdit& field) {
    return field.fontMetrics().horizontalAdvance(
        field.locale().toString(field.maximumDateTime(), field.displayFormat()));
}

/// As the field places its text.
int textSpace(const QDateTimeEdit& field, const QSize& size) {
    QStyleOptionComboBox box;
    box.initFrom(&field);
    box.rect = QRect(QPoint(), size);
    box.editable = true;
    box.subControls = QStyle::SC_ComboBoxEditField;
    return field.style()
        ->subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxEditField, &field)
        .width();
}

} // namespace

void fitDateFields(const QWidget& form) {
    for (auto* field : form.findChildren<QDateTimeEdit*>()) {
        if (!field->calendarPopup())
            continue;
        field->ensurePolished();
        const QSize hint = field->sizeHint();
        const int missing = textWidth(*field) + spaceAroundText - textSpace(*field, hint);
        if (missing > 0)
            field->setMinimumWidth(hint.width() + missing);
    }
}

} // namespace ui
