// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/foreground.h"

#include <windows.h>

namespace platform {

void allowSetForeground() {
    AllowSetForegroundWindow(ASFW_ANY);
}

} // namespace platform
