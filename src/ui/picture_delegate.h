// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace ui {

/// The picture of a row; in a selected row, blended with the palette's colour of selected text.
/// Styles would tint it with the row's colour, which hides thin lines.
QPixmap pictureInRow(const QPixmap& picture, const QStyleOptionViewItem& row);

/// Blends the picture of a selected row with the colour of the text that the style paints, except
/// for signs (see `ui::sharedIcon`), which keep their colours.
class PictureDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace ui
