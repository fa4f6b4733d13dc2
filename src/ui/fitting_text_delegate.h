// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ui/picture_delegate.h"

namespace ui {

/// Draws text slightly too wide for its cell in a narrower font. Text that is still too wide is
/// elided, and a tool tip shows it in full, unless the cell has a tool tip of its own.
class FittingTextDelegate : public PictureDelegate {
    Q_OBJECT
public:
    /// `cut` specifies where text that is too wide is elided.
    explicit FittingTextDelegate(QObject* parent = nullptr, Qt::TextElideMode cut = Qt::ElideRight);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    /// The options for drawing a cell. `option` is the view's, with the cell's rectangle.
    QStyleOptionViewItem fitted(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    /// Whether a cell drawn like this shows its full text.
    static bool showsAll(const QStyleOptionViewItem& fitted);

private:
    Qt::TextElideMode cut_;
};

} // namespace ui
