// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/process_id.h"

#include <windows.h>

namespace platform {

long processId() {
    return static_cast<long>(GetCurrentProcessId());
}

long threadId() {
    return static_cast<long>(GetCurrentThreadId());
}

} // namespace platform
