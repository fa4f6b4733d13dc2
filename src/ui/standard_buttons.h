// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QDialog;

namespace ui {

/// Gives the standard buttons of a Qt box or dialog the icons used in the program's dialogs.
/// Without this they follow the desktop's style.
void setStandardButtonPictures(QDialog& dialog);

} // namespace ui
