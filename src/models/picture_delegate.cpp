// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/picture_delegate.h"

#include <QPainter>

namespace models {
namespace {

// The share of the text colour that leaves a picture its shades.
constexpr double lightShare = 0.75;

QPixmap lightened(QPixmap picture, const QColor& text) {
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setOpacity(lightShare);
    painter.fillRect(picture.rect(), text);
    return picture;
}

} // namespace

void lightenSelected(QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
    if (picture.isNull() || !option.state.testFlag(QStyle::State_Selected))
        return;
    const bool active = option.state.testFlag(QStyle::State_Active);
    const QColor text = option.palette.color(active ? QPalette::Active : QPalette::Inactive,
                                             QPalette::HighlightedText);
    option.icon.addPixmap(lightened(picture, text), QIcon::Selected);
}

void PictureDelegate::initStyleOption(QStyleOptionViewItem* option,
                                      const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    lightenSelected(*option, index);
}

} // namespace models
