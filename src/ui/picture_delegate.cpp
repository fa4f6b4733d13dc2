// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/picture_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QWindow>

#include "ui/readable_colour.h"

namespace ui {
namespace {

// The share of the text colour; less than 1, to preserve the picture's shades.
constexpr double textShare = 0.75;
// With less, the colour isn't meant for that background, whatever the theme.
constexpr double visibleContrast = 2;

bool isSelected(const QStyleOptionViewItem& row) {
    return row.state.testFlag(QStyle::State_Selected);
}

QPixmap blended(const QPixmap& picture, const QColor& colour) {
    QPixmap result = picture;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setOpacity(textShare);
    painter.fillRect(result.rect(), colour);
    return result;
}

QColor colourOf(const QStyleOptionViewItem& row, QPalette::ColorRole role) {
    return row.palette.color(
        row.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive, role);
}

/// As the style paints it behind a selected row.
QColor selectionColour(const QStyleOptionViewItem& row) {
    constexpr int size = 8;
    QImage sample(size, size, QImage::Format_RGB32);
    sample.fill(colourOf(row, QPalette::Base));
    QStyleOptionViewItem panel(row);
    panel.rect = sample.rect();
    panel.showDecorationSelected = true;
    panel.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    QPainter painter(&sample);
    const QStyle& style = row.widget ? *row.widget->style() : *QApplication::style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, &painter, row.widget);
    return sample.pixelColor(size / 2, size / 2);
}

/// The style of Windows paints the selection in a light colour of its own, and its text as in other
/// rows.
QColor textColour(const QStyleOptionViewItem& row) {
    const QColor selected = colourOf(row, QPalette::HighlightedText);
    return contrast(selected, selectionColour(row)) >= visibleContrast
               ? selected
               : colourOf(row, QPalette::Text);
}

} // namespace

QPixmap pictureInRow(const QPixmap& picture, const QStyleOptionViewItem& row) {
    return picture.isNull() || !isSelected(row)
               ? picture
               : blended(picture, colourOf(row, QPalette::HighlightedText));
}

void PictureDelegate::initStyleOption(QStyleOptionViewItem* option,
                                      const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    QIcon& icon = option->icon;
    const bool hasOwnPicture = !icon.availableSizes(QIcon::Selected).isEmpty();
    if (icon.isNull() || hasOwnPicture || !isSelected(*option))
        return;
    QWindow* window = option->widget ? option->widget->window()->windowHandle() : nullptr;
    icon.addPixmap(blended(icon.pixmap(window, option->decorationSize), textColour(*option)),
                   QIcon::Selected);
}

} // namespace ui
