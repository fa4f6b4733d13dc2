// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/select_display_delegate.h"

#include <QPainter>

#include "models/checkable_node.h"
#include "models/item_pixmap.h"

CSelectDisplayDelegate::CSelectDisplayDelegate(QObject* parent)
    : QItemDelegate(parent) {}

void CSelectDisplayDelegate::drawCheck(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QRect& rect, Qt::CheckState state) const {
    if (static_cast<models::CheckState>(state) != models::CheckState::Excluded) {
        QItemDelegate::drawCheck(painter, option, rect, state);
        return;
    }
    QItemDelegate::drawCheck(painter, option, rect, Qt::Unchecked);
    const QPixmap sign = models::resourcePixmap(QStringLiteral(":/tree/exclusion"));
    const QSizeF size = QSizeF(sign.size()) / sign.devicePixelRatio();
    painter->drawPixmap(QPointF(rect.right() - size.width(), rect.bottom() - size.height()), sign);
}
