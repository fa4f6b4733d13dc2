// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPalette>

class QApplication;

namespace ui {

/// Light text on dark grey, for a desktop that is dark but has no palette for the toolkit.
QPalette darkPalette();

/// Uses this palette for all windows and tool tips, for Qt's own style only. Any other style,
/// chosen by the user, keeps its colours. Call it before the style is replaced by one of the
/// program.
void useDarkPalette(QApplication& application);

} // namespace ui
