// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/contrast_defects.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include "ui/readable_colour.h"

namespace tour {

namespace {

QColor colourOf(const QWidget& widget, QPalette::ColorRole role) {
    return widget.palette().color(QPalette::Active, role);
}

/// The colour of a label's text, which may set it by markup.
QColor colourOf(const QLabel& label) {
    static const QRegularExpression inText(QStringLiteral("color=(#\\w+)"));
    const auto named = inText.match(label.text());
    return named.hasMatch() ? QColor(named.captured(1)) : colourOf(label, label.foregroundRole());
}

/// The colour behind a widget without a background of its own.
QColor behind(const QWidget& widget) {
    const QWidget* at = &widget;
    while (!at->isWindow() && !at->autoFillBackground() && at->parentWidget())
        at = at->parentWidget();
    return colourOf(*at, at->backgroundRole());
}

/// Errors and warnings have fixed colours on a light palette, and the desktop gives both colours of
/// a selection.
bool isGiven(const QColor& fore, const QColor& back) {
    const QPalette palette = QGuiApplication::palette();
    return (!ui::isDark(palette) && (fore == QColor(Qt::red) || fore == QColor(Qt::darkYellow))) ||
           (fore == palette.color(QPalette::HighlightedText) &&
            back == palette.color(QPalette::Highlight));
}

QString defect(const QWidget& widget, const QString& text, const QColor& fore, const QColor& back) {
    if (text.isEmpty() || isGiven(fore, back) || ui::contrast(fore, back) >= ui::readableContrast)
        return {};
    return QStringLiteral("%1 \"%2\" is %3 on %4")
        .arg(widget.objectName(), text, fore.name(), back.name());
}

/// The visible rows, as if none were selected.
QStringList defectsOfRows(const QAbstractItemView& view) {
    QStringList found;
    const QModelIndex first = view.indexAt({0, 0});
    for (QModelIndex index = first; index.isValid() && view.visualRect(index).isValid() &&
                                    view.visualRect(index).top() < view.viewport()->height();
         index = index.sibling(index.row() + 1, 0))
        for (int column = 0; column < index.model()->columnCount(index.parent()); ++column) {
            const QModelIndex cell = index.sibling(index.row(), column);
            const auto brush = cell.data(Qt::ForegroundRole);
            const QColor fore =
                brush.isValid() ? brush.value<QBrush>().color() : colourOf(view, QPalette::Text);
            const QString text = cell.data().toString();
            found << defect(view, text, fore, colourOf(view, QPalette::Base))
                  << defect(view, text, fore, colourOf(view, QPalette::AlternateBase));
        }
    return found;
}

QString defectOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return defect(widget, label->text(), colourOf(*label), behind(widget));
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return defect(widget, group->title(), colourOf(widget, QPalette::WindowText),
                      behind(widget));
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return defect(widget, edit->text(), colourOf(widget, QPalette::Text),
                      colourOf(widget, QPalette::Base));
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return defect(widget, box->currentText(), colourOf(widget, QPalette::ButtonText),
                      colourOf(widget, QPalette::Button));
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (!button)
        return {};
    // Check boxes, radio buttons and tool buttons are painted on the background of their parent.
    const bool isPush = qobject_cast<const QPushButton*>(button);
    return defect(widget, button->text(),
                  colourOf(widget, isPush ? QPalette::ButtonText : widget.foregroundRole()),
                  isPush ? colourOf(widget, QPalette::Button) : behind(widget));
}

} // namespace

QStringList contrastDefectsOf(const QWidget& shown) {
    QStringList found;
    for (const auto* widget : shown.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled())
            continue;
        found << defectOf(*widget);
        if (const auto* view = qobject_cast<const QAbstractItemView*>(widget);
            view && view->model())
            found << defectsOfRows(*view);
    }
    found.removeAll(QString());
    found.removeDuplicates();
    return found;
}

} // namespace tour
