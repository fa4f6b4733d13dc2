// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>

#include "api/selectable_item_type.h"

namespace models {

/// The size of a picture in layout pixels, each of which has several device pixels on a dense
/// screen.
QSize sizeOnScreen(const QPixmap& pixmap);

/// The picture for a tree item by type. `noAccess` adds a sign in its lower right corner; these
/// pictures are kept in `QPixmapCache`. Databases have no picture.
QPixmap itemPixmap(hessiancln::SelectableItemType type, bool noAccess = false);

} // namespace models
