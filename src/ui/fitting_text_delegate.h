// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace ui {

/// Draws a text that is a little too wide for its cell in a narrower font. One that is still too
/// wide is cut, and its tool tip shows it whole, unless the cell has a tool tip of its own.
class FittingTextDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// `cut` tells where a text that is too wide loses characters.
    explicit FittingTextDelegate(QObject* parent = nullptr, Qt::TextElideMode cut = Qt::ElideRight);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    /// What a cell is drawn with. `option` is the view's, with the cell's rectangle.
    QStyleOptionViewItem fitted(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    /// Whether a cell drawn so shows its whole text.
    static bool showsAll(const QStyleOptionViewItem& fitted);

private:
    Qt::TextElideMode cut_;
};

} // namespace ui
