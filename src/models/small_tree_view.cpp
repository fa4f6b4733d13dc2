// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/small_tree_view.h"

#include "models/asterisk_key.h"
#include "ui/picture_delegate.h"

CSmallTreeView::CSmallTreeView(QWidget* parent)
    : QTreeView(parent) {
    setUniformRowHeights(true);
    setItemDelegate(new ui::PictureDelegate(this));
    models::expandOneLevelByAsterisk(*this);
}

QSize CSmallTreeView::sizeHint() const {
    return {};
}
