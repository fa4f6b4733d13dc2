// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/reader_defects.h"

#include <algorithm>
#include <vector>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTabBar>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>

#include "ui/alert_label.h"

namespace tour {

namespace {

using Roles = std::vector<QAccessible::Role>;

/// The roles that a widget may have for a screen reader; empty if any role is right.
Roles fittingRoles(const QWidget& widget) {
    if (qobject_cast<const ui::AlertLabel*>(&widget))
        return {QAccessible::AlertMessage};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().isEmpty() ? Roles{QAccessible::Graphic, QAccessible::StaticText}
                                       : Roles{QAccessible::StaticText};
    if (qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QTextEdit*>(&widget))
        return {QAccessible::EditableText};
    if (qobject_cast<const QCheckBox*>(&widget))
        return {QAccessible::CheckBox};
    if (qobject_cast<const QRadioButton*>(&widget))
        return {QAccessible::RadioButton};
    if (qobject_cast<const QPushButton*>(&widget) || qobject_cast<const QToolButton*>(&widget))
        return {QAccessible::Button, QAccessible::CheckBox, QAccessible::ButtonMenu,
                QAccessible::ButtonDropDown};
    if (qobject_cast<const QComboBox*>(&widget))
        return {QAccessible::ComboBox};
    if (qobject_cast<const QAbstractSpinBox*>(&widget))
        return {QAccessible::SpinBox};
    if (qobject_cast<const QGroupBox*>(&widget))
        return {QAccessible::Grouping, QAccessible::CheckBox};
    if (qobject_cast<const QTabBar*>(&widget))
        return {QAccessible::PageTabList};
    if (qobject_cast<const QTreeView*>(&widget))
        return {QAccessible::Tree};
    if (qobject_cast<const QTableView*>(&widget))
        return {QAccessible::Table};
    if (qobject_cast<const QListView*>(&widget))
        return {QAccessible::List};
    if (qobject_cast<const QProgressBar*>(&widget))
        return {QAccessible::ProgressBar};
    return {};
}

bool fits(QAccessible::Role role, const Roles& roles) {
    return roles.empty() || std::find(roles.begin(), roles.end(), role) != roles.end();
}

bool isTabStop(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy();
}

/// Whether a label may name the widget.
bool isField(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget);
}

/// Screen readers see only the spin box, which exposes its field's text.
bool isPartOfASpinBox(const QWidget& widget) {
    return qobject_cast<const QAbstractSpinBox*>(widget.parentWidget());
}

QWidget* widgetAt(QLayoutItem* item) {
    return item ? item->widget() : nullptr;
}

/// The field that follows a label in the same row of a layout.
const QWidget* fieldBehind(const QLabel& label) {
    for (const auto* layout : label.parentWidget()->findChildren<QLayout*>()) {
        const int index = layout->indexOf(const_cast<QLabel*>(&label));
        if (index < 0)
            continue;
        if (const auto* form = qobject_cast<const QFormLayout*>(layout)) {
            int row = 0;
            QFormLayout::ItemRole role{};
            form->getItemPosition(index, &row, &role);
            return widgetAt(form->itemAt(row, QFormLayout::FieldRole));
        }
        if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
            int row = 0, column = 0, rows = 0, columns = 0;
            grid->getItemPosition(index, &row, &column, &rows, &columns);
            return widgetAt(grid->itemAtPosition(row, column + columns));
        }
        return widgetAt(layout->itemAt(index + 1));
    }
    return nullptr;
}

/// Whether a screen reader announces the label when the field gets the focus.
bool belongsTo(const QLabel& label, QWidget& field) {
    const auto* face = QAccessible::queryAccessibleInterface(&field);
    const auto relations =
        face ? face->relations(QAccessible::Label) : decltype(face->relations()){};
    for (const auto& relation : relations)
        if (relation.first->object() == &label)
            return true;
    return false;
}

QString nameOf(const QWidget& widget) {
    return QStringLiteral("%1 (%2)").arg(widget.objectName(),
                                         QLatin1String(widget.metaObject()->className()));
}

/// Without the markers of mnemonics.
QString plain(QString title) {
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return title.replace(mark, QStringLiteral("\\1"));
}

QStringList defectsOfLabel(const QLabel& label) {
    QStringList defects;
    if (label.buddy() && label.buddy()->isVisible() && !belongsTo(label, *label.buddy()))
        defects << nameOf(label) + QStringLiteral(" isn't announced with its field");
    const QWidget* field = fieldBehind(label);
    // The mnemonic of a label may be for the button of a read-only field, which then has a name.
    const bool isNamed = label.buddy() == field || !field || !field->accessibleName().isEmpty();
    if (isField(field) && field->isVisible() && !isNamed)
        defects << nameOf(label) + QStringLiteral(" doesn't belong to ") + nameOf(*field);
    return defects;
}

QStringList defectsOfWidget(QWidget& widget) {
    auto* face = QAccessible::queryAccessibleInterface(&widget);
    if (!face)
        return {nameOf(widget) + QStringLiteral(" isn't accessible")};
    QStringList defects;
    if (!fits(face->role(), fittingRoles(widget)))
        defects << QStringLiteral("%1 has the role %2")
                       .arg(nameOf(widget), QString::number(face->role(), 16));
    // Readers also read out what is disabled.
    if (isTabStop(widget) && face->text(QAccessible::Name).isEmpty())
        defects << nameOf(widget) + QStringLiteral(" has no name");
    // Qt gives a scroll area that role; its name must describe the content.
    if (isTabStop(widget) && fittingRoles(widget).empty() &&
        !qobject_cast<const QScrollArea*>(&widget) &&
        (face->role() == QAccessible::Client || face->role() == QAccessible::NoRole))
        defects << nameOf(widget) + QStringLiteral(" has no specific role");
    if (qobject_cast<const QLineEdit*>(&widget) && !face->textInterface())
        defects << nameOf(widget) + QStringLiteral(" has no text");
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        defects << defectsOfLabel(*label);
    const auto* group = qobject_cast<const QGroupBox*>(&widget);
    if (group && face->text(QAccessible::Name) != plain(group->title()))
        defects << nameOf(widget) + QStringLiteral(" has the name ") +
                       face->text(QAccessible::Name);
    return defects;
}

} // namespace

QStringList readerDefectsOf(const QWidget& shown) {
    QStringList defects;
    for (auto* widget : shown.findChildren<QWidget*>())
        if (widget->isVisible() && !isPartOfASpinBox(*widget))
            for (const QString& defect : defectsOfWidget(*widget))
                defects << QStringLiteral("to a screen reader ") + defect;
    return defects;
}

} // namespace tour
