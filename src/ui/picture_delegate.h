// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace ui {

/// The picture of a row, as light as the row's text if the row is selected. Styles would tint it
/// with the colour of the row, in which its thin lines get lost.
QPixmap pictureInRow(const QPixmap& picture, const QStyleOptionViewItem& row);

/// Draws the picture of a selected row as light as its text, except for signs (see
/// `ui::sharedIcon`), which keep their colours.
class PictureDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace ui
