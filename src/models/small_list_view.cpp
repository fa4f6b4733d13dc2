// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/small_list_view.h"

CSmallListView::CSmallListView(QWidget* parent)
    : QListView(parent) {
    setUniformItemSizes(true);
}

QSize CSmallListView::sizeHint() const {
    return {};
}
