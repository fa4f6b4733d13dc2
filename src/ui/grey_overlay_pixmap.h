// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QString>

namespace ui {

/// The picture `base` in grey with `overlay` in its lower right corner; both are resources, and
/// follow the program's palette. Each pair is composed once per application object.
QPixmap greyOverlayPixmap(const QString& base, const QString& overlay);

} // namespace ui
