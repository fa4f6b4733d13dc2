// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/fitting_text_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>

#include "ui/plain_tool_tip.h"

namespace ui {

namespace {

/// Percent of the font's width. Below that, text is hard to read.
constexpr int narrower[] = {90, 80};

const QStyle& styleOf(const QStyleOptionViewItem& option) {
    return option.widget ? *option.widget->style() : *QApplication::style();
}

} // namespace

FittingTextDelegate::FittingTextDelegate(QObject* parent, Qt::TextElideMode cut)
    : PictureDelegate(parent)
    , cut_(cut) {}

QStyleOptionViewItem FittingTextDelegate::fitted(const QStyleOptionViewItem& option,
                                                 const QModelIndex& index) const {
    QStyleOptionViewItem fitted = option;
    initStyleOption(&fitted, index);
    fitted.textElideMode = cut_;
    for (const int percent : narrower) {
        if (showsAll(fitted))
            break;
        fitted.font.setStretch(percent);
        fitted.fontMetrics = QFontMetrics(fitted.font);
    }
    return fitted;
}

bool FittingTextDelegate::showsAll(const QStyleOptionViewItem& fitted) {
    const QStyle& style = styleOf(fitted);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &fitted, fitted.widget) + 1;
    const QRect room = style.subElementRect(QStyle::SE_ItemViewItemText, &fitted, fitted.widget);
    return fitted.fontMetrics.horizontalAdvance(fitted.text) <= room.width() - 2 * margin;
}

void FittingTextDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    const QStyleOptionViewItem cell = fitted(option, index);
    styleOf(cell).drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
}

bool FittingTextDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                    const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() == QEvent::ToolTip && index.isValid() &&
        !index.data(Qt::ToolTipRole).isValid()) {
        const QStyleOptionViewItem cell = fitted(option, index);
        if (!showsAll(cell)) {
            showWholeText(*event, cell.text, *view->viewport(), option.rect);
            return true;
        }
    }
    return PictureDelegate::helpEvent(event, view, option, index);
}

} // namespace ui
