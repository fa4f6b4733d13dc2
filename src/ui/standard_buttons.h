// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

class QDialog;

namespace ui {

/// Gives the standard buttons of a box or a dialog of the toolkit's the pictures that the dialogs
/// of the program have; without that they look as the desktop likes them.
void setStandardButtonPictures(QDialog& dialog);

} // namespace ui
