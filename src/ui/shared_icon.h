// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace ui {

/// The icon of a resource, read once per application object: views request the same few icons for
/// each cell they paint. A sign, whose colours have a meaning, looks the same in a selected row.
QIcon sharedIcon(const QString& resource);

/// Its picture in its original size, for the program's palette and at the screen's resolution; null
/// if missing.
QPixmap sharedPixmap(const QString& resource);

} // namespace ui
