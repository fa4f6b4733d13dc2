// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/process_id.h"

#include <unistd.h>

namespace platform {

long processId() {
    return getpid();
}

long threadId() {
    return gettid();
}

} // namespace platform
