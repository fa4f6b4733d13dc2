// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/defects.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QToolButton>
#include <QtMath>

#include "ui/table_columns.h"

namespace tour {

namespace {

QString reported(const QWidget& widget, const QString& text) {
    return QStringLiteral("%1 \"%2\"").arg(widget.objectName(), text);
}

bool isCut(const QLabel& label) {
    if (label.text().isEmpty())
        return false;
    // At 150 %, a window of whole pixels may be a fraction narrower than its size in Qt.
    const qreal scale = label.devicePixelRatioF();
    const QSize size = label.size() + (scale > qFloor(scale) ? QSize(1, 1) : QSize(0, 0));
    if (label.wordWrap())
        return label.heightForWidth(size.width()) > size.height();
    return label.sizeHint().width() > size.width() || label.sizeHint().height() > size.height();
}

bool isCut(const QComboBox& combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.currentText = combo.currentText();
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    return combo.fontMetrics().horizontalAdvance(combo.currentText()) > field.width();
}

bool isCut(const QGroupBox& group) {
    const QSize size = group.fontMetrics().size(Qt::TextShowMnemonic, group.title());
    return size.width() > group.width();
}

bool isCut(const QAbstractButton& button) {
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width();
    const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    return text.width() + icon > button.width();
}

/// Whether there are more tabs than fit.
bool isCut(const QTabBar& tabs) {
    return tabs.count() > 0 && !tabs.rect().contains(tabs.tabRect(tabs.count() - 1));
}

/// The title of the first column that is too narrow for it; empty if every title fits. English
/// titles have preset widths.
QString cutTitle(const QHeaderView& header) {
    for (int section = 0; section < header.count(); ++section) {
        const QString title = header.model()->headerData(section, header.orientation()).toString();
        const int margins =
            2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
        const QVariant english =
            header.model()->headerData(section, header.orientation(), ui::columnEnglishTitleRole);
        if (title != english.toString() && !header.isSectionHidden(section) &&
            header.fontMetrics().horizontalAdvance(title) + margins > header.sectionSize(section))
            return title;
    }
    return {};
}

/// The text of a widget that is too small for it; empty if all of it is visible.
QString cutText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return isCut(*label) ? label->text() : QString();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return isCut(*combo) ? combo->currentText() : QString();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return isCut(*group) ? group->title() : QString();
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        return isCut(*tabs) ? tabs->tabText(tabs->count() - 1) : QString();
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        return header->model() ? cutTitle(*header) : QString();
    // Tool bar buttons switch between text and icon by themselves.
    if (qobject_cast<const QToolButton*>(&widget))
        return {};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return isCut(*button) ? button->text() : QString();
    return {};
}

/// The text of a row, and the folder shown by Qt's file dialog, are user texts of any length.
bool isTextOfAUser(const QWidget& widget) {
    if (qobject_cast<const QFileDialog*>(widget.parentWidget()) &&
        widget.objectName() == QLatin1String("lookInCombo"))
        return true;
    // Qt's file dialog sets its own column widths.
    if (qobject_cast<const QHeaderView*>(&widget))
        return widget.window()->inherits("QFileDialog");
    for (const QWidget* at = widget.parentWidget(); at; at = at->parentWidget())
        if (qobject_cast<const QAbstractItemView*>(at))
            return true;
    return false;
}

/// The content of a view may be larger than the view.
bool mayStickOut(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    return widget.isWindow() || !parent || qobject_cast<const QAbstractScrollArea*>(parent) ||
           qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()) || !parent->layout();
}

bool sticksOut(const QWidget& widget) {
    return !mayStickOut(widget) && !widget.parentWidget()->rect().contains(widget.geometry());
}

/// The smallest screen: 1366 x 768 pixels at 150 %, with a task bar, and the frame of a window.
constexpr QSize smallestScreen(1366 * 2 / 3, 768 * 2 / 3);
constexpr QSize taskBarAndFrame(8, 30 + 42);

QSize leastSize(const QWidget& window) {
    return window.minimumSizeHint()
        .boundedTo(window.maximumSize())
        .expandedTo(window.minimumSize());
}

bool fits(const QSize& size) {
    const QSize room = smallestScreen - taskBarAndFrame;
    return size.width() <= room.width() && size.height() <= room.height();
}

QString textWithKey(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? label->text() : QString();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return group->title();
    if (qobject_cast<const QToolButton*>(&widget))
        return {};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    return {};
}

} // namespace

QStringList defectsOf(const QWidget& shown) {
    QStringList defects;
    const QSize least = leastSize(shown);
    if (shown.isWindow() && !fits(least))
        defects << QStringLiteral("needs %1 x %2").arg(least.width()).arg(least.height());
    QMap<QString, QStringList> keys;
    for (const auto* widget : shown.findChildren<QWidget*>()) {
        if (!widget->isVisible() || isTextOfAUser(*widget))
            continue;
        const QString cut = cutText(*widget);
        if (!cut.isEmpty())
            defects << QStringLiteral("cut is ") + reported(*widget, cut);
        if (sticksOut(*widget))
            defects << widget->objectName() + QStringLiteral(" sticks out");
        // A mnemonic only reaches enabled widgets.
        if (!widget->isEnabled())
            continue;
        const QString key = QKeySequence::mnemonic(textWithKey(*widget)).toString();
        if (!key.isEmpty())
            keys[key] << reported(*widget, textWithKey(*widget));
    }
    for (auto key = keys.cbegin(); key != keys.cend(); ++key)
        if (key->size() > 1)
            defects << key.key() + QStringLiteral(" stands for ") +
                           key->join(QStringLiteral(" and "));
    return defects;
}

} // namespace tour
