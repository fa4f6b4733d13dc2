// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QItemDelegate>

/// Draws the box of something excluded as an empty one with a sign in its lower right corner.
class CSelectDisplayDelegate : public QItemDelegate {
    Q_OBJECT
public:
    explicit CSelectDisplayDelegate(QObject* parent = nullptr);

protected:
    void drawCheck(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                   Qt::CheckState state) const override;
};
