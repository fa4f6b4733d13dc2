// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "ui/picture_delegate.h"

#include <QPainter>
#include <QWindow>

namespace ui {
namespace {

// The share of the text colour; less than 1, to preserve the picture's shades.
constexpr double lightShare = 0.75;

bool isSelected(const QStyleOptionViewItem& row) {
    return row.state.testFlag(QStyle::State_Selected);
}

} // namespace

QPixmap pictureInRow(const QPixmap& picture, const QStyleOptionViewItem& row) {
    if (picture.isNull() || !isSelected(row))
        return picture;
    const bool active = row.state.testFlag(QStyle::State_Active);
    QPixmap light = picture;
    QPainter painter(&light);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setOpacity(lightShare);
    painter.fillRect(light.rect(), row.palette.color(active ? QPalette::Active : QPalette::Inactive,
                                                     QPalette::HighlightedText));
    return light;
}

void PictureDelegate::initStyleOption(QStyleOptionViewItem* option,
                                      const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    QIcon& icon = option->icon;
    const bool hasOwnPicture = !icon.availableSizes(QIcon::Selected).isEmpty();
    if (icon.isNull() || hasOwnPicture || !isSelected(*option))
        return;
    QWindow* window = option->widget ? option->widget->window()->windowHandle() : nullptr;
    icon.addPixmap(pictureInRow(icon.pixmap(window, option->decorationSize), *option),
                   QIcon::Selected);
}

} // namespace ui
