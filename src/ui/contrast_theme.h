// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QApplication;

namespace ui {

/// For a dark contrast theme of Windows. Qt takes only some colours from it, so every other row of
/// a table would have a light background, links would be dark blue, and disabled texts would have a
/// light shadow. Changes nothing for other styles than those of Windows, and on a light palette.
void completeContrastTheme(QApplication& application);

} // namespace ui
