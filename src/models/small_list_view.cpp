// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/small_list_view.h"

#include "models/accessible_list.h"
#include "ui/picture_delegate.h"

CSmallListView::CSmallListView(QWidget* parent)
    : QListView(parent) {
    setUniformItemSizes(true);
    models::announceShownRows();
    setItemDelegate(new ui::PictureDelegate(this));
}

QSize CSmallListView::sizeHint() const {
    return {};
}
