// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/select_display_delegate.h"

#include <QPainter>

#include "models/checkable_node.h"
#include "models/item_pixmap.h"
#include "ui/picture_delegate.h"
#include "ui/shared_icon.h"

/// The layout of an item.
struct CSelectDisplayDelegate::Parts {
    QRect box;
    QRect picture;
    QRect text;
};

CSelectDisplayDelegate::CSelectDisplayDelegate(QObject* parent)
    : QItemDelegate(parent) {}

void CSelectDisplayDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
    const QStyleOptionViewItem look = setOptions(index, option);
    const Parts parts = partsOf(look, index, false);
    painter->save();
    painter->setClipRect(look.rect);
    drawBackground(painter, look, index);
    if (const QVariant state = index.data(Qt::CheckStateRole); state.isValid())
        drawCheck(painter, look, parts.box, static_cast<Qt::CheckState>(state.toInt()));
    painter->drawPixmap(parts.picture.topLeft(),
                        ui::pictureInRow(index.data(Qt::DecorationRole).value<QPixmap>(), look));
    drawDisplay(painter, look, parts.text, index.data().toString());
    drawFocus(painter, look, parts.text);
    painter->restore();
}

QSize CSelectDisplayDelegate::sizeHint(const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const {
    const Parts parts = partsOf(option, index, true);
    return (parts.box | parts.picture | parts.text).size();
}

CSelectDisplayDelegate::Parts CSelectDisplayDelegate::partsOf(const QStyleOptionViewItem& option,
                                                              const QModelIndex& index,
                                                              bool forHint) const {
    Parts parts{rect(option, index, Qt::CheckStateRole),
                {{}, models::sizeOnScreen(index.data(Qt::DecorationRole).value<QPixmap>())},
                rect(option, index, Qt::DisplayRole)};
    doLayout(option, &parts.box, &parts.picture, &parts.text, forHint);
    return parts;
}

void CSelectDisplayDelegate::drawCheck(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QRect& rect, Qt::CheckState state) const {
    if (static_cast<models::CheckState>(state) != models::CheckState::Excluded) {
        QItemDelegate::drawCheck(painter, option, rect, state);
        return;
    }
    QItemDelegate::drawCheck(painter, option, rect, Qt::Unchecked);
    const QPixmap sign = ui::sharedPixmap(QStringLiteral(":/tree/exclusion"));
    const QSize size = models::sizeOnScreen(sign);
    painter->drawPixmap(rect.right() - size.width(), rect.bottom() - size.height(), sign);
}
