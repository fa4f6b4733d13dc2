// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace models {

/// Has the picture of a selected row drawn light, as its text is. Styles would tint it with the
/// colour of the row, in which its thin lines are lost.
void lightenSelected(QStyleOptionViewItem& option, const QModelIndex& index);

/// Draws rows so.
class PictureDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace models
