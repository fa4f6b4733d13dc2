// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace models {

/// Draws the picture of a selected row as light as its text. Styles would tint it with the colour
/// of the row, in which its thin lines get lost.
void lightenSelected(QStyleOptionViewItem& option, const QModelIndex& index);

/// Draws selected rows with light pictures.
class PictureDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace models
