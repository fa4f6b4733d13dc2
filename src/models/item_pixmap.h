// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>

#include "api/selectable_item_type.h"

namespace models {

/// The picture of a resource in its own size, as sharp as the screen; null if there is none.
QPixmap resourcePixmap(const QString& resource);

/// The size of a picture in the pixels of layouts, of which a dense screen has several each.
QSize sizeOnScreen(const QPixmap& pixmap);

/// The picture of an item of a tree by its kind. With `noAccess` it has a sign in its lower right
/// corner; those pictures stay in `QPixmapCache`. Databases have no picture.
QPixmap itemPixmap(hessiancln::SelectableItemType type, bool noAccess = false);

} // namespace models
