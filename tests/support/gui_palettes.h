// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPalette>

namespace support {

/// White text on black.
QPalette highContrastPalette();

/// Gives the program the palette that the variable TARN_LOOK names, `dark` or `contrast`, if any.
void applyLook();

} // namespace support
