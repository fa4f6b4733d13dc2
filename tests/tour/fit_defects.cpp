// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/fit_defects.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

namespace tour {

namespace {

constexpr int timeToMove = 2000; ///< milliseconds
constexpr int leastScrolled = 40;

QString textOf(const QRect& area) {
    return QStringLiteral("%1x%2+%3+%4")
        .arg(area.width())
        .arg(area.height())
        .arg(area.x())
        .arg(area.y());
}

/// The area that scrolls the widget; null if its parent is something else.
const QScrollArea* scrollerOf(const QWidget& widget) {
    const QWidget* viewport = widget.parentWidget();
    const auto* area =
        viewport ? qobject_cast<const QScrollArea*>(viewport->parentWidget()) : nullptr;
    return area && area->widget() == &widget ? area : nullptr;
}

/// Whether the area's bars scroll to each place of its content.
bool scrollsWhole(const QScrollArea& area) {
    const QSize lacking = area.widget()->size() - area.viewport()->size();
    const bool hasBars = area.horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff &&
                         area.verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
    return (lacking.width() <= 0 && lacking.height() <= 0) ||
           (hasBars && area.viewport()->height() >= leastScrolled);
}

/// Whether each ancestor shows that part of the widget, or scrolls to it.
bool isReachable(const QWidget& widget) {
    QRect part = widget.rect();
    for (const QWidget* at = &widget; !at->isWindow(); at = at->parentWidget()) {
        if (const QScrollArea* area = scrollerOf(*at)) {
            if (!scrollsWhole(*area))
                return false;
            part = area->viewport()->rect();
            at = area->viewport();
        }
        part.translate(at->pos());
        if (!at->parentWidget()->rect().contains(part))
            return false;
    }
    return true;
}

bool isButtonOrTabStop(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) || qobject_cast<const QAbstractButton*>(&widget);
}

/// An editor or a card scrolls with its row; Qt's own bars and file dialogs are its own affair.
bool isOfAView(const QWidget& widget) {
    for (const QWidget* at = widget.parentWidget(); at && !at->isWindow(); at = at->parentWidget())
        if (at->inherits("QAbstractItemView") || at->inherits("QTabBar") ||
            at->inherits("QToolBar"))
            return true;
    return false;
}

QStringList defectsNow(const QWidget& window) {
    QStringList defects;
    const QRect frame = window.frameGeometry();
    const QRect screen = window.screen()->availableGeometry();
    if (!screen.contains(frame))
        defects
            << QStringLiteral("opens at %1 on a screen of %2").arg(textOf(frame), textOf(screen));
    for (const auto* widget : window.findChildren<QWidget*>())
        if (widget->isVisibleTo(&window) && widget->window() == &window &&
            isButtonOrTabStop(*widget) && !isOfAView(*widget) && !isReachable(*widget))
            defects << QStringLiteral("out of reach is ") + widget->objectName();
    return defects;
}

} // namespace

QStringList fitDefectsOf(const QWidget& shown) {
    const QWidget& window = *shown.window();
    (void)QTest::qWaitFor([&] { return defectsNow(window).isEmpty(); }, timeToMove);
    return defectsNow(window);
}

} // namespace tour
