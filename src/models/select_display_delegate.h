// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QItemDelegate>

/// Draws the box of an excluded item empty, with a sign in its lower right corner. Unlike its base
/// class, it supports pictures with more device pixels than layout pixels.
class CSelectDisplayDelegate : public QItemDelegate {
    Q_OBJECT
public:
    explicit CSelectDisplayDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void drawCheck(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                   Qt::CheckState state) const override;

private:
    struct Parts;
    Parts partsOf(const QStyleOptionViewItem& option, const QModelIndex& index, bool forHint) const;
};
