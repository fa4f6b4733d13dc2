// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/dark_mode.h"

namespace platform {

bool needsDarkPalette() {
    return false;
}

} // namespace platform
