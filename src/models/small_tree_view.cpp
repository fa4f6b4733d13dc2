// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/small_tree_view.h"

CSmallTreeView::CSmallTreeView(QWidget* parent)
    : QTreeView(parent) {
    setUniformRowHeights(true);
}

QSize CSmallTreeView::sizeHint() const {
    return {};
}
